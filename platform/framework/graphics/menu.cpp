#include "graphics/menu.h"

#include "window/handle_map.h"
#include "window/wnd.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

namespace
{
auto& Menus()
{
    static auto& map = *new HandleMap<HMENU, CMenu, &CMenu::m_hMenu>;
    return map;
}
}  // namespace

CMenu::CMenu() = default;

CMenu::~CMenu()
{
    DestroyMenu();
}

CMenu* CMenu::FromHandle(HMENU menu)
{
    return Menus().Find(menu, [](HMENU) { return new CMenu; });
}

BOOL CMenu::Attach(HMENU menu)
{
    ASSERT(m_hMenu == nullptr);
    if (menu == nullptr)
        return FALSE;
    Menus().AddPermanent(menu, this);
    m_hMenu = menu;
    return TRUE;
}

HMENU CMenu::Detach()
{
    const HMENU menu = m_hMenu;
    if (menu != nullptr)
        Menus().RemovePermanent(menu, this);
    m_hMenu = nullptr;
    return menu;
}

BOOL CMenu::LoadMenu(LPCWSTR name)
{
    return Attach(::LoadMenuW(AfxFindResourceHandle(name, RT_MENU), name));
}

BOOL CMenu::DestroyMenu()
{
    const HMENU menu = Detach();
    return menu != nullptr && ::DestroyMenu(menu);
}

int CMenu::GetMenuString(UINT item, CString& text, UINT flags) const
{
    const int length = ::GetMenuStringW(m_hMenu, item, nullptr, 0, flags);
    const int copied = ::GetMenuStringW(m_hMenu, item, text.GetBuffer(length), length + 1, flags);
    text.ReleaseBuffer(copied);
    return copied;
}

CMenu* CMenu::GetSubMenu(int position) const
{
    return FromHandle(::GetSubMenu(m_hMenu, position));
}

BOOL CMenu::TrackPopupMenu(UINT flags, int x, int y, CWnd* owner, LPCRECT keepOpen)
{
    return ::TrackPopupMenu(m_hMenu, flags, x, y, 0, HandleOf(owner), keepOpen);
}
