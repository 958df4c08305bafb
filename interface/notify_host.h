#pragma once

#include "interface/notifications.h"

/// Tells the host's window and waits until it has dealt with it; nothing without a window. The host may end, destroy or
/// delete the caller meanwhile.
inline void NotifyHost(CWnd* hostWindow, HostNotification code)
{
    if (hostWindow == nullptr || hostWindow->m_hWnd == nullptr)
        return;
    // Between the two character sets Windows translates this message as if it were typed text, and changes the code.
    if (::IsWindowUnicode(hostWindow->m_hWnd))
        ::SendMessageW(hostWindow->m_hWnd, WM_CHAR, code, kNotificationMark);
    else
        ::SendMessageA(hostWindow->m_hWnd, WM_CHAR, code, kNotificationMark);
}
