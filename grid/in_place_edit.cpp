#include "grid/in_place_edit.h"

namespace
{
constexpr UINT kMargin = 2;  // beside the text, pixels: both fit into the 5 that a grown edit is wider than its text

bool EndsEdit(UINT key)
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
        return true;
    case VK_LEFT:
    case VK_RIGHT:
        return ::GetKeyState(VK_CONTROL) < 0;
    default:
        return false;
    }
}
}  // namespace

BEGIN_MESSAGE_MAP(CInPlaceEdit, CEdit)
    ON_WM_CREATE()
    ON_WM_KILLFOCUS()
    ON_WM_NCDESTROY()
    ON_WM_GETDLGCODE()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
END_MESSAGE_MAP()

CInPlaceEdit::CInPlaceEdit(RowKey rowKey, std::int32_t column, LPCTSTR initialText, bool selectAll)
    : m_cell{rowKey, column}, m_initialText(initialText), m_selectAll(selectAll)
{
}

int CInPlaceEdit::OnCreate(LPCREATESTRUCT create)
{
    if (CEdit::OnCreate(create) == -1)
        return -1;
    SetFont(GetParent()->GetFont());
    SetMargins(kMargin, kMargin);
    SetWindowText(m_initialText);
    // Either way the caret stands behind the text, and SetSel scrolls it into view.
    if (m_selectAll)
        SetSel(0, -1);
    else
        SetSel(m_initialText.GetLength(), m_initialText.GetLength());
    m_cell.isMade = true;
    return 0;
}

void CInPlaceEdit::OnKillFocus(CWnd* newFocus)
{
    const HWND window = m_hWnd;
    CEdit::OnKillFocus(newFocus);
    if (ReportEnd(*this, m_cell, kGridEditClosed, 0))
        ::DestroyWindow(window);
}

void CInPlaceEdit::OnNcDestroy()
{
    CEdit::OnNcDestroy();
    if (m_cell.isMade)
        delete this;
}

// Enter and Escape would otherwise be the dialog's.
UINT CInPlaceEdit::OnGetDlgCode()
{
    return CEdit::OnGetDlgCode() | DLGC_WANTALLKEYS;
}

void CInPlaceEdit::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (EndsEdit(key))
        EndByKey(*this, m_cell, key);
    else
        CEdit::OnKeyDown(key, repeat, flags);
}

void CInPlaceEdit::OnChar(UINT character, UINT repeat, UINT flags)
{
    CEdit::OnChar(character, repeat, flags);
    if (!GrowToText(*this))
        return;
    // The text was scrolled to the caret while the edit was narrower: show its beginning again where it fits now.
    int start = 0;
    int end = 0;
    GetSel(start, end);
    SetSel(0, 0);
    SetSel(start, end);
}
