#include "grid/in_place_list.h"

#include "grid/cell_text.h"

#include <algorithm>

namespace
{
constexpr int kButtonGap = 2;  // between the text and the drop-down button
}  // namespace

BEGIN_MESSAGE_MAP(CInPlaceList, CComboBox)
    // window
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_WM_KILLFOCUS()
    ON_WM_NCDESTROY()
    ON_WM_GETDLGCODE()
    ON_WM_KEYDOWN()
    ON_MESSAGE(WM_MOUSEWHEEL, &CInPlaceList::OnWheel)
    // what the combo box tells
    ON_CONTROL_REFLECT(CBN_DROPDOWN, &CInPlaceList::OnDropDown)
    ON_CONTROL_REFLECT(CBN_SELCHANGE, &CInPlaceList::OnSelChange)
    ON_CONTROL_REFLECT(CBN_SELENDCANCEL, &CInPlaceList::OnSelEndCancel)
    ON_CONTROL_REFLECT(CBN_CLOSEUP, &CInPlaceList::OnCloseUp)
END_MESSAGE_MAP()

CInPlaceList::CInPlaceList(RowKey rowKey, std::int32_t column, const InPlaceComboItems& entries, std::int32_t selected)
    : m_cell{rowKey, column}, m_selected(selected)
{
    m_entries.Copy(entries);
}

int CInPlaceList::OnCreate(LPCREATESTRUCT create)
{
    if (CComboBox::OnCreate(create) == -1)
        return -1;
    LOGFONT description{};
    GetParent()->GetFont()->GetLogFont(&description);
    if (m_look.bold)
        description.lfWeight = FW_BOLD;
    m_font.CreateFontIndirect(&description);
    SetFont(&m_font);
    for (int entry = 0; entry < m_entries.GetSize(); ++entry)
        SetItemData(AddString(m_entries[entry].text), static_cast<DWORD_PTR>(m_entries[entry].value));
    SetCurSel(m_selected);
    m_cell.isMade = true;
    return 0;
}

// The frame around the selection field differs between systems and themes: the height is set once to learn it.
void CInPlaceList::SetClosedHeight(int height)
{
    SetItemHeight(-1, static_cast<UINT>(height));
    CRect window;
    GetWindowRect(&window);
    const int frame = window.Height() - height;
    if (frame > 0 && frame < height)
        SetItemHeight(-1, static_cast<UINT>(height - frame));
}

void CInPlaceList::SetDropDownHeight(int height)
{
    const int borders = 2 * ::GetSystemMetrics(SM_CYBORDER);
    const int entry = GetItemHeight(0);
    if (entry > 0)
        SendMessage(CB_SETMINVISIBLE, static_cast<WPARAM>(std::max(1, (height - borders) / entry)));
}

void CInPlaceList::OnPaint()
{
    // The dotted line inverts what is there: all of it is drawn anew before, whatever part has to be.
    Invalidate(FALSE);
    Default();
    CRect client;
    GetClientRect(&client);
    const int height = client.Height();
    CString text;
    GetWindowText(text);

    CClientDC dc(this);
    dc.DrawFocusRect(&client);
    dc.FillSolidRect(CRect(client.left, client.top + 1, client.right, client.bottom - 1), m_look.back);
    dc.SetTextColor(m_look.text);
    dc.SetBkColor(m_look.back);
    CFont* const former = dc.SelectObject(&m_font);
    CRect textArea(client.left, client.top, client.right - (height + kButtonGap), client.bottom);
    dc.DrawText(text, &textArea, kCellTextFormat | static_cast<UINT>(m_look.centred));
    dc.SelectObject(former);
    CRect arrow(client.right - height, client.top, client.right, client.bottom);
    dc.DrawFrameControl(&arrow, DFC_SCROLL, DFCS_SCROLLDOWN);
}

// The window stays until the message that is being handled has ended: the combo box may be in the midst of its own
// work.
void CInPlaceList::OnKillFocus(CWnd* newFocus)
{
    const HWND window = m_hWnd;
    CComboBox::OnKillFocus(newFocus);
    const int selected = GetCurSel();
    const auto data = selected >= 0 ? static_cast<std::int32_t>(GetItemData(selected)) : 0;
    if (ReportEnd(*this, m_cell, kGridListClosed, data) && ::IsWindow(window))
    {
        ::InvalidateRect(window, nullptr, TRUE);
        ::PostMessage(window, WM_CLOSE, 0, 0);
    }
}

void CInPlaceList::OnNcDestroy()
{
    CComboBox::OnNcDestroy();
    if (m_cell.isMade)
        delete this;
}

UINT CInPlaceList::OnGetDlgCode()
{
    return CComboBox::OnGetDlgCode() | DLGC_WANTALLKEYS;
}

bool CInPlaceList::Ends(UINT key) const
{
    switch (key)
    {
    case VK_TAB:
    case VK_ESCAPE:
    case VK_LEFT:
    case VK_RIGHT:
        return true;
    case VK_RETURN:
        return GetDroppedState();
    case VK_PRIOR:
    case VK_NEXT:
    case VK_UP:
    case VK_DOWN:
        return !GetDroppedState();
    default:
        return false;
    }
}

void CInPlaceList::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (Ends(key))
        EndByKey(*this, m_cell, key);
    else if (key == VK_RETURN)
        ShowDropDown(TRUE);
    else
        CComboBox::OnKeyDown(key, repeat, flags);
}

// A closed combo box would take a turned wheel for its arrow keys, and those end the editor.
LRESULT CInPlaceList::OnWheel(WPARAM keysAndDistance, LPARAM screenPoint)
{
    if (GetDroppedState())
        return Default();
    return GetParent()->SendMessage(WM_MOUSEWHEEL, keysAndDistance, screenPoint);
}

void CInPlaceList::OnDropDown()
{
    m_cancelled = false;
}

void CInPlaceList::OnSelChange()
{
    Invalidate();
}

void CInPlaceList::OnSelEndCancel()
{
    m_cancelled = true;
}

// A pick from the open list commits. A key that ends the editor closes the list too, and so does a click elsewhere,
// which the combo box calls cancelled: those don't commit.
void CInPlaceList::OnCloseUp()
{
    if (m_cell.endingKey == 0 && !m_cancelled && ::GetFocus() == m_hWnd)
        EndByKey(*this, m_cell, VK_RETURN);
}
