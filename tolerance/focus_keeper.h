#pragma once

#include <afxwin.h>

/// While one is alive, controls of a dialog are enabled and disabled. When that takes the keyboard focus from the
/// control that has it, another control of the dialog gets it at the end: without one no key would reach the dialog.
/// A dialog that hasn't the focus doesn't get it.
class FocusKeeper
{
public:
    FocusKeeper(CDialog& dialog, int fallbackControl);
    ~FocusKeeper();
    FocusKeeper(const FocusKeeper&) = delete;
    FocusKeeper& operator=(const FocusKeeper&) = delete;

private:
    HWND m_dialog;
    HWND m_fallback;
    bool m_hadFocus;
};
