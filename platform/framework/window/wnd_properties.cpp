// Text, font, style and menu of a window.

#include "graphics/gdi_object.h"
#include "graphics/menu.h"
#include "window/wnd.h"

namespace
{
BOOL ModifyWindowBits(HWND window, int index, DWORD remove, DWORD add, UINT positionFlags)
{
    const auto former = static_cast<DWORD>(::GetWindowLongW(window, index));
    const DWORD bits = (former & ~remove) | add;
    if (bits == former)
        return FALSE;
    ::SetWindowLongW(window, index, static_cast<LONG>(bits));
    if (positionFlags != 0)
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | positionFlags);
    return TRUE;
}
}  // namespace

void CWnd::GetWindowText(CString& text) const
{
    const int length = GetWindowTextLength();
    const int copied = ::GetWindowTextW(m_hWnd, text.GetBuffer(length), length + 1);
    text.ReleaseBuffer(copied);
}

int CWnd::GetDlgItemText(int id, CString& text) const
{
    const HWND item = ::GetDlgItem(m_hWnd, id);
    text.Empty();
    if (item != nullptr)
        FromHandle(item)->GetWindowText(text);
    return text.GetLength();
}

void CWnd::SetFont(CFont* font, BOOL redraw)
{
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(HandleOf(font)), redraw);
}

CFont* CWnd::GetFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT positionFlags)
{
    return ModifyWindowBits(m_hWnd, GWL_STYLE, remove, add, positionFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD remove, DWORD add, UINT positionFlags)
{
    return ModifyWindowBits(m_hWnd, GWL_EXSTYLE, remove, add, positionFlags);
}

CMenu* CWnd::GetMenu() const
{
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* menu)
{
    return ::SetMenu(m_hWnd, menu == nullptr ? nullptr : menu->m_hMenu);
}

int CWnd::MessageBox(LPCWSTR text, LPCWSTR caption, UINT type)
{
    return ::MessageBoxW(m_hWnd, text, caption, type);
}
