#pragma once

#include "graphics/dc.h"

class CWnd;

/// The client area of a window, or of the screen for a null window, until the end of the object. Both raise
/// CResourceException when Windows has no context to give.
class FRAMEWORK_API CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)

public:
    explicit CClientDC(CWnd* wnd);
    ~CClientDC() override;

private:
    HWND m_window;
};

/// The part of a window that needs painting, for the time of a WM_PAINT handler.
class FRAMEWORK_API CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)

public:
    explicit CPaintDC(CWnd* wnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps = {};

private:
    HWND m_window;
};
