#include "grid/in_place_button.h"

namespace
{
bool EndsButton(UINT key)
{
    switch (key)
    {
    case VK_TAB:
    case VK_RETURN:
    case VK_ESCAPE:
    case VK_SPACE:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_UP:
    case VK_DOWN:
    case VK_LEFT:
    case VK_RIGHT:
        return true;
    default:
        return false;
    }
}
}  // namespace

BEGIN_MESSAGE_MAP(CInPlaceButton, CButton)
    // window
    ON_WM_CREATE()
    ON_WM_KILLFOCUS()
    ON_WM_NCDESTROY()
    ON_WM_GETDLGCODE()
    // keyboard and mouse
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

CInPlaceButton::CInPlaceButton(RowKey rowKey, std::int32_t column, LPCTSTR caption)
    : m_cell{rowKey, column}, m_caption(caption)
{
}

int CInPlaceButton::OnCreate(LPCREATESTRUCT create)
{
    if (CButton::OnCreate(create) == -1)
        return -1;
    SetFont(GetParent()->GetFont());
    SetWindowText(m_caption);
    m_cell.isMade = true;
    return 0;
}

void CInPlaceButton::OnKillFocus(CWnd* newFocus)
{
    const HWND window = m_hWnd;
    CButton::OnKillFocus(newFocus);
    if (ReportEnd(*this, m_cell, kGridButtonClosed, 0))
        ::DestroyWindow(window);
}

void CInPlaceButton::OnNcDestroy()
{
    CButton::OnNcDestroy();
    if (m_cell.isMade)
        delete this;
}

UINT CInPlaceButton::OnGetDlgCode()
{
    return CButton::OnGetDlgCode() | DLGC_WANTALLKEYS;
}

void CInPlaceButton::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (EndsButton(key))
        EndByKey(*this, m_cell, key);
    else
        CButton::OnKeyDown(key, repeat, flags);
}

void CInPlaceButton::OnChar(UINT character, UINT repeat, UINT flags)
{
    CButton::OnChar(character, repeat, flags);
    GrowToText(*this);
}

// The button itself captures the mouse while it is pressed.
void CInPlaceButton::OnLButtonDown(UINT flags, CPoint point)
{
    m_pressed = true;
    CButton::OnLButtonDown(flags, point);
}

// The second of two quick presses.
void CInPlaceButton::OnLButtonDblClk(UINT flags, CPoint point)
{
    OnLButtonDown(flags, point);
}

void CInPlaceButton::OnLButtonUp(UINT flags, CPoint point)
{
    const HWND window = m_hWnd;
    CRect client;
    GetClientRect(&client);
    const bool clicked = m_pressed && client.PtInRect(point);
    m_pressed = false;
    CButton::OnLButtonUp(flags, point);
    if (clicked && ::IsWindow(window))
        EndByKey(*this, m_cell, VK_RETURN);
}
