#pragma once

#include "afx.h"

class CWnd;

/// A menu, destroyed with this object. FromHandle makes temporary objects, which destroy nothing, until the thread is
/// idle.
class FRAMEWORK_API CMenu : public CObject
{
    DECLARE_DYNCREATE(CMenu)

public:
    CMenu();
    ~CMenu() override;

    HMENU m_hMenu = nullptr;

    HMENU GetSafeHmenu() const { return m_hMenu; }
    operator HMENU() const { return m_hMenu; }
    static CMenu* FromHandle(HMENU menu);
    BOOL Attach(HMENU menu);
    HMENU Detach();

    BOOL CreatePopupMenu() { return Attach(::CreatePopupMenu()); }
    /// From the current resource module.
    BOOL LoadMenu(UINT id) { return LoadMenu(MAKEINTRESOURCEW(id)); }
    BOOL LoadMenu(LPCWSTR name);
    BOOL DestroyMenu();

    BOOL AppendMenu(UINT flags, UINT_PTR idOrPopup = 0, LPCWSTR text = nullptr)
    {
        return ::AppendMenuW(m_hMenu, flags, idOrPopup, text);
    }
    /// @return  the former state; (UINT)-1 when there is no such item
    UINT EnableMenuItem(UINT item, UINT flags) { return static_cast<UINT>(::EnableMenuItem(m_hMenu, item, flags)); }
    UINT CheckMenuItem(UINT item, UINT flags) { return ::CheckMenuItem(m_hMenu, item, flags); }
    UINT GetMenuState(UINT item, UINT flags) const { return ::GetMenuState(m_hMenu, item, flags); }
    UINT GetMenuItemCount() const { return static_cast<UINT>(::GetMenuItemCount(m_hMenu)); }
    int GetMenuString(UINT item, CString& text, UINT flags) const;
    /// The pop-up at that position; null when there is none.
    CMenu* GetSubMenu(int position) const;
    /// @param owner  gets the command
    /// @return       as ::TrackPopupMenu
    BOOL TrackPopupMenu(UINT flags, int x, int y, CWnd* owner, LPCRECT keepOpen = nullptr);
};
