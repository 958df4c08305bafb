#include "grid/f_list_ctrl.h"
#include "grid/grid_parent.h"

void CFListCtrl::OnLButtonDown(UINT, CPoint point)
{
    Click(point);
}

void CFListCtrl::OnLButtonDblClk(UINT, CPoint point)
{
    const HWND window = m_hWnd;
    if (Click(point) != ClickResult::Cell || !::IsWindow(window) || HasEditor() || OpenEditor())
        return;
    if (CWnd* const parent = GetParent())
        parent->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), kGridDoubleClick), reinterpret_cast<LPARAM>(m_hWnd));
}

CFListCtrl::ClickResult CFListCtrl::Click(CPoint point)
{
    const std::optional<CellHit> hit = CellAt(point);
    if (!hit)
    {
        if (HasEditor())
            TakeFocus();  // a click anywhere else ends it
        return ClickResult::Outside;
    }
    const RowKey key = RowAtIndex(hit->index)->Key();
    TakeFocus();
    CFListRow* const row = FindRow(key);
    if (row == nullptr)
        return ClickResult::Outside;

    const CRect cell = GetCellRect(key, hit->column);
    const CellPart part =
        CellPartAt(LayoutCell(cell.left, cell.right, cell.Height(), TraitsOf(*row, hit->column)), point.x);
    if (part == CellPart::ExpandImage)
    {
        if (row->IsExpanded())
            CollapseRow(key);
        else
            ExpandRow(key);
        return ClickResult::ExpandImage;
    }

    const bool hadFocus = key == m_focusKey && (m_rowMode || hit->column == m_focusColumn);
    const bool toggles = part == CellPart::CheckBox && hadFocus;
    if (toggles)
        SetCellChecked(key, hit->column, row->Item(hit->column).checked == 0);
    MakeCellVisible(key, -1, false);
    SetFocusCell(key, hit->column, true);
    if (auto* const parent = dynamic_cast<GridSelectionParent*>(GetParent()))
        parent->OnSelectionChanged(GetDlgCtrlID(), m_focusKey);
    return toggles ? ClickResult::CheckToggled : ClickResult::Cell;
}

void CFListCtrl::OnRButtonDown(UINT flags, CPoint point)
{
    if (!RightClick(point))
        CListCtrlWithCustomDraw::OnRButtonDown(flags, point);
}

// @return  false when there is no row at the point
bool CFListCtrl::RightClick(CPoint point)
{
    const std::optional<CellHit> hit = CellAt(point);
    if (!hit)
        return false;
    const RowKey key = RowAtIndex(hit->index)->Key();
    SetFocusRow(key, true);
    TakeFocus();
    if (FindRow(key) != nullptr)
        AskForMenu(point);
    return true;
}

// The menu key and Shift+F10 give no point: the menu belongs below the focus cell then. The mouse's menu has been shown
// when the button went down, unless it went down on an open list or button, which hand the message on when it goes up.
void CFListCtrl::OnContextMenu(CWnd* wnd, CPoint screenPoint)
{
    const bool byKeyboard = screenPoint == CPoint(-1, -1);
    if (!byKeyboard && wnd->GetSafeHwnd() != m_hWnd)
    {
        CPoint point = screenPoint;
        ScreenToClient(&point);
        if (RightClick(point))
            return;
    }
    if (byKeyboard && FocusRow() == nullptr)
        MoveFocus(GridMove::Up);  // to the first row, as with any key that moves by rows
    if (!byKeyboard || FocusRow() == nullptr)
    {
        CListCtrlWithCustomDraw::OnContextMenu(wnd, screenPoint);
        return;
    }
    MakeCellVisible(m_focusKey, m_focusColumn, false);
    if (FocusRow() == nullptr)
        return;
    const CRect cell = GetCellRect(m_focusKey, m_rowMode ? 0 : m_focusColumn);
    AskForMenu(CPoint(cell.left, cell.bottom));
}

void CFListCtrl::AskForMenu(CPoint point)
{
    if (auto* const parent = dynamic_cast<GridEditMenuParent*>(GetParent()))
    {
        ClientToScreen(&point);
        parent->TrackEditMenu(point, GetDlgCtrlID());
    }
}
