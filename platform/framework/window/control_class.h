#pragma once

#include "window/wnd.h"

/// Says which class stands for the windows of a control's class, so that CWnd::FromHandle makes temporary objects of
/// the right type. Each control has one static object of this.
class ControlClass
{
public:
    ControlClass(LPCWSTR windowClass, CRuntimeClass* objectClass);

    /// A new object for the window, owned by the caller: of the control's class, or a plain CWnd for any other window.
    static CWnd* NewObjectFor(HWND window);
};
