#include "window/window_class.h"

#include <windows.h>

#include <commctrl.h>

#include <set>
#include <string>

#include "window/wnd.h"

void RegisterCommonControls()
{
    static const bool registered = [] {
        INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_WIN95_CLASSES | ICC_USEREX_CLASSES};
        return ::InitCommonControlsEx(&controls) != FALSE;
    }();
    static_cast<void>(registered);
}

LPCWSTR AfxRegisterWndClass(UINT classStyle, HCURSOR cursor, HBRUSH background, HICON icon)
{
    static auto& names = *new std::set<std::wstring>;
    CString name;
    name.Format(L"FrameworkWindow:%x:%p:%p:%p", classStyle, static_cast<void*>(cursor), static_cast<void*>(background),
                static_cast<void*>(icon));
    const auto kept = names.emplace(name.GetString()).first;
    WNDCLASS windowClass = {};
    windowClass.style = classStyle;
    windowClass.lpfnWndProc = &::DefWindowProcW;
    windowClass.hInstance = AfxGetInstanceHandle();
    windowClass.hIcon = icon;
    windowClass.hCursor = cursor;
    windowClass.hbrBackground = background;
    windowClass.lpszClassName = kept->c_str();
    WNDCLASS present = {};
    if (!::GetClassInfoW(windowClass.hInstance, windowClass.lpszClassName, &present) &&
        ::RegisterClassW(&windowClass) == 0)
        AfxThrowResourceException();
    return kept->c_str();
}
