// Text, style, place and relatives of a window.

#include <algorithm>
#include <vector>

#include "graphics/dc.h"
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

int CWnd::GetCheckedRadioButton(int first, int last) const
{
    for (int id = first; id <= last; ++id)
    {
        if (IsDlgButtonChecked(id) != BST_UNCHECKED)
            return id;
    }
    return 0;
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

void CWnd::CenterWindow(CWnd* other)
{
    const bool child = (GetStyle() & WS_CHILD) != 0;
    HWND reference = HandleOf(other);
    if (reference == nullptr)
        reference = child ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);
    const bool usable = reference != nullptr && ::IsWindowVisible(reference) && !::IsIconic(reference);

    CRect area;  // that the window must not leave; screen coordinates
    if (child)
    {
        ::GetClientRect(::GetParent(m_hWnd), &area);
        ::MapWindowPoints(::GetParent(m_hWnd), nullptr, reinterpret_cast<LPPOINT>(&area), 2);
    }
    else
    {
        MONITORINFO monitor = {};
        monitor.cbSize = sizeof(monitor);
        ::GetMonitorInfoW(::MonitorFromWindow(usable ? reference : m_hWnd, MONITOR_DEFAULTTOPRIMARY), &monitor);
        area = monitor.rcWork;
    }
    CRect middle = area;
    if (usable && (!child || other != nullptr))
        ::GetWindowRect(reference, &middle);

    CRect own;
    GetWindowRect(&own);
    const int left = middle.left + (middle.Width() - own.Width()) / 2;
    const int top = middle.top + (middle.Height() - own.Height()) / 2;
    const int rightmost = std::max<int>(area.left, area.right - own.Width());
    const int lowest = std::max<int>(area.top, area.bottom - own.Height());
    CPoint place(std::clamp<int>(left, area.left, rightmost), std::clamp<int>(top, area.top, lowest));
    if (child)
        ::ScreenToClient(::GetParent(m_hWnd), &place);
    SetWindowPos(nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

CDC* CWnd::GetDC() const
{
    return CDC::FromHandle(::GetDC(m_hWnd));
}

CDC* CWnd::GetWindowDC() const
{
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}

int CWnd::ReleaseDC(CDC* dc) const
{
    return ::ReleaseDC(m_hWnd, dc->m_hDC);
}

CDC* CWnd::BeginPaint(LPPAINTSTRUCT paint)
{
    return CDC::FromHandle(::BeginPaint(m_hWnd, paint));
}

BOOL CWnd::GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask) const
{
    info->cbSize = sizeof(*info);
    info->fMask = mask;
    return ::GetScrollInfo(m_hWnd, bar, info);
}

BOOL CWnd::SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw)
{
    info->cbSize = sizeof(*info);
    ::SetScrollInfo(m_hWnd, bar, info, redraw);
    return TRUE;
}

CMenu* CWnd::GetMenu() const
{
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* menu)
{
    return ::SetMenu(m_hWnd, menu == nullptr ? nullptr : menu->m_hMenu);
}

CMenu* CWnd::GetSystemMenu(BOOL revert) const
{
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, revert));
}

int CWnd::MessageBox(LPCWSTR text, LPCWSTR caption, UINT type)
{
    return ::MessageBoxW(m_hWnd, text, caption, type);
}
