#pragma once

#include <functional>

#include <afxwin.h>

/// When the dialog is shown and works.
inline std::function<bool()> IsShown(const CDialog& dialog)
{
    return [&dialog] { return dialog.m_hWnd != nullptr && dialog.IsWindowVisible(); };
}
