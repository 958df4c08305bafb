#include "window/frame.h"

#include "application/app.h"
#include "graphics/menu.h"
#include "window/message_map.h"

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
END_MESSAGE_MAP()

CFrameWnd::CFrameWnd() = default;
CFrameWnd::~CFrameWnd() = default;

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

BOOL CFrameWnd::Create(LPCWSTR className, LPCWSTR title, DWORD style, const RECT& rect, CWnd* parent, LPCWSTR menuName,
                       DWORD exStyle)
{
    HMENU menu = nullptr;
    if (menuName != nullptr)
    {
        menu = ::LoadMenuW(AfxFindResourceHandle(menuName, RT_MENU), menuName);
        if (menu == nullptr)
        {
            PostNcDestroy();
            return FALSE;
        }
    }
    const bool defaultPlace = rect.left == CW_USEDEFAULT;
    const int width = defaultPlace ? CW_USEDEFAULT : rect.right - rect.left;
    const int height = defaultPlace ? CW_USEDEFAULT : rect.bottom - rect.top;
    if (CreateEx(exStyle, className, title, style, rect.left, rect.top, width, height, HandleOf(parent), menu))
        return TRUE;
    if (menu != nullptr)
        ::DestroyMenu(menu);
    return FALSE;
}

BOOL CFrameWnd::LoadFrame(UINT id, DWORD style, CWnd* parent)
{
    const LPCWSTR name = MAKEINTRESOURCEW(id);
    const HICON icon = ::LoadIconW(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
    const LPCWSTR frameClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                                   reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), icon);
    CString title;
    title.LoadString(id);
    const HINSTANCE menuModule = AfxFindResourceHandle(name, RT_MENU);
    const LPCWSTR menuName = ::FindResourceW(menuModule, name, RT_MENU) == nullptr ? nullptr : name;
    if (!Create(frameClass, title, style, rectDefault, parent, menuName))
        return FALSE;
    if (m_hAccelTable == nullptr)
        LoadAccelTable(name);
    return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCWSTR name)
{
    m_hAccelTable = ::LoadAcceleratorsW(AfxFindResourceHandle(name, RT_ACCELERATOR), name);
    return m_hAccelTable != nullptr;
}

BOOL CFrameWnd::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    return m_hAccelTable != nullptr && ::TranslateAcceleratorW(m_hWnd, m_hAccelTable, message) != 0;
}

BOOL CFrameWnd::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    return CWnd::OnCmdMsg(id, code, extra, handlerInfo) || AfxGetThread()->OnCmdMsg(id, code, extra, handlerInfo);
}

void CFrameWnd::PostNcDestroy()
{
    delete this;
}
