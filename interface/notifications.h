#pragma once

#include <afxwin.h>

/// What the module tells the host's window: a synchronous WM_CHAR with one of these codes as wParam and
/// kNotificationMark as lParam. The message is only the carrier; the host must not take it for typed text.
enum HostNotification : UINT
{
    kLinkAccepted = 1,           ///< link tolerance confirmed
    kDialogClosed = 2,           ///< the user closed the calculation dialog, which has cleared itself
    kChildCancelled = 3,         ///< a child dialog was cancelled
    kEditBegins = 30,            ///< editing of a link or of the closing link begins, its dialog is not open yet
    kLinkBegins = 32,            ///< adding a link or editing a link's distribution begins
    kDistributionAccepted = 35,  ///< distribution confirmed
    kClosingAccepted = 93,       ///< closing-link tolerance confirmed
    kLinkApplied = 107,          ///< link tolerance applied, its dialog stays open for the next dimension
    kClosingBegins = 246         ///< adding the closing link or editing its distribution begins
};

constexpr LPARAM kNotificationMark = 0xFFFF;
