#include "window/wnd.h"

#include "window/control_class.h"
#include "window/disabled_owners.h"
#include "window/handle_map.h"
#include "window/window_class.h"
#include "window/window_creation.h"
#include "window/window_procedure.h"

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

namespace
{
auto& Windows()
{
    static auto& map = *new HandleMap<HWND, CWnd, &CWnd::m_hWnd>;
    return map;
}
}  // namespace

CWnd::CWnd() = default;

CWnd::~CWnd()
{
    if (m_hWnd != nullptr && Windows().FindPermanent(m_hWnd) == this)
        CWnd::DestroyWindow();
}

CWnd* CWnd::FromHandle(HWND window)
{
    return Windows().Find(window, &ControlClass::NewObjectFor);
}

CWnd* CWnd::FromHandlePermanent(HWND window)
{
    return Windows().FindPermanent(window);
}

BOOL CWnd::Attach(HWND window)
{
    if (window == nullptr || m_hWnd != nullptr)
        return FALSE;
    Windows().AddPermanent(window, this);
    m_hWnd = window;
    return TRUE;
}

HWND CWnd::Detach()
{
    const HWND window = m_hWnd;
    if (window == nullptr)
        return nullptr;
    if (m_formerProcedure != nullptr)
        LeaveWindowProcedure(window, m_formerProcedure);
    Windows().RemovePermanent(window, this);
    m_hWnd = nullptr;
    m_formerProcedure = nullptr;
    return window;
}

BOOL CWnd::TakeMessages(HWND window)
{
    if (!Attach(window))
        return FALSE;
    PreSubclassWindow();
    m_formerProcedure = EnterWindowProcedure(window);
    return TRUE;
}

BOOL CWnd::SubclassWindow(HWND window)
{
    return TakeMessages(window);
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent)
{
    return SubclassWindow(::GetDlgItem(HandleOf(parent), static_cast<int>(id)));
}

HWND CWnd::UnsubclassWindow()
{
    return Detach();
}

void CWnd::PreSubclassWindow() {}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& creation)
{
    if (creation.lpszClass == nullptr)
    {
        creation.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                                 reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    }
    return TRUE;
}

BOOL CWnd::Create(LPCWSTR className, LPCWSTR windowName, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CreateEx(0, className, windowName, style | WS_CHILD, rect, parent, id);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR windowName, DWORD style, const RECT& rect, CWnd* parent,
                    UINT id, LPVOID parameter)
{
    return CreateEx(exStyle, className, windowName, style, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, HandleOf(parent), reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)),
                    parameter);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR windowName, DWORD style, int x, int y, int width,
                    int height, HWND parent, HMENU idOrMenu, LPVOID parameter)
{
    RegisterCommonControls();
    CREATESTRUCT creation = {};
    creation.dwExStyle = exStyle;
    creation.lpszClass = className;
    creation.lpszName = windowName;
    creation.style = static_cast<LONG>(style);
    creation.x = x;
    creation.y = y;
    creation.cx = width;
    creation.cy = height;
    creation.hwndParent = parent;
    creation.hMenu = idOrMenu;
    creation.hInstance = AfxGetInstanceHandle();
    creation.lpCreateParams = parameter;
    if (!PreCreateWindow(creation))
    {
        PostNcDestroy();
        return FALSE;
    }
    WindowCreation begun(*this, creation.lpszClass);
    const HWND window =
        ::CreateWindowExW(creation.dwExStyle, creation.lpszClass, creation.lpszName, static_cast<DWORD>(creation.style),
                          creation.x, creation.y, creation.cx, creation.cy, creation.hwndParent, creation.hMenu,
                          creation.hInstance, creation.lpCreateParams);
    if (window == nullptr && !begun.HasBegun())
        PostNcDestroy();  // as it is called for a window that fails later on
    return window != nullptr;
}

BOOL CWnd::DestroyWindow()
{
    const HWND window = m_hWnd;
    if (window == nullptr)
        return FALSE;
    DisabledOwners::RestoreBelow(window);
    if (!::IsWindow(window))  // somebody who was told has destroyed it, and this object may be deleted
        return TRUE;
    const bool onlyAttached = m_formerProcedure == nullptr;
    const BOOL destroyed = ::DestroyWindow(window);
    if (onlyAttached && destroyed)
        Detach();  // no message told this object; otherwise it may be deleted by now
    return destroyed;
}

void CWnd::PostNcDestroy() {}

BOOL CWnd::PreTranslateMessage(MSG*)
{
    return FALSE;
}

BOOL CWnd::WalkPreTranslateTree(HWND last, MSG* message)
{
    for (HWND window = message->hwnd; window != nullptr; window = ::GetParent(window))
    {
        CWnd* wnd = FromHandlePermanent(window);
        if (wnd != nullptr && wnd->PreTranslateMessage(message))
            return TRUE;
        if (window == last)
            return FALSE;
    }
    return FALSE;
}
