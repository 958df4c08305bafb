#include "window/window_creation.h"

#include <cwchar>

#include "window/wnd.h"

namespace
{
WindowCreation* innermost = nullptr;
}

WindowCreation::WindowCreation(CWnd& object, LPCWSTR className)
    : m_object(&object), m_className(className), m_outer(innermost),
      m_hook(::SetWindowsHookExW(WH_CBT, &OnHook, nullptr, ::GetCurrentThreadId()))
{
    innermost = this;
    if (m_hook == nullptr)
    {
        innermost = m_outer;
        AfxThrowResourceException();
    }
}

WindowCreation::~WindowCreation()
{
    innermost = m_outer;
    ::UnhookWindowsHookEx(m_hook);
    if (m_window == nullptr || ::IsWindow(m_window))
        return;
    // Refused by another hook: it never got a message, not even its last one.
    if (CWnd* const object = CWnd::FromHandlePermanent(m_window))
    {
        object->Detach();
        object->PostNcDestroy();
    }
}

bool WindowCreation::IsExpected(HWND window) const
{
    if (IS_INTRESOURCE(m_className))
        return ::GetClassLongPtrW(window, GCW_ATOM) == reinterpret_cast<ULONG_PTR>(m_className);
    wchar_t name[256];
    return ::GetClassNameW(window, name, 256) > 0 && ::_wcsicmp(name, m_className) == 0;
}

LRESULT CALLBACK WindowCreation::OnHook(int code, WPARAM wParam, LPARAM lParam)
{
    WindowCreation* creation = innermost;
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_CREATEWND && creation != nullptr && creation->m_object != nullptr && creation->IsExpected(window))
    {
        CWnd* object = creation->m_object;
        creation->m_object = nullptr;
        creation->m_window = window;
        object->TakeMessages(window);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}
