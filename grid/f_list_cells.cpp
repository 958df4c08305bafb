#include "grid/f_list_ctrl.h"

#include <algorithm>

void CFListCtrl::SetCellText(RowKey key, int column, LPCTSTR text)
{
    CFListRow* const row = FindRow(key);
    if (row == nullptr)
        return;
    row->Item(column).text = text;
    ShowText(key, column);
    RedrawRow(key);
}

// Gives a shown cell's text to the list view, which tells its parent of one in the first column: the row may be gone
// afterwards.
void CFListCtrl::ShowText(RowKey key, int column)
{
    const CFListRow* const row = FindRow(key);
    if (row != nullptr && IsShown(*row))
        SetItemText(row->ListIndex(), column, row->Text(column));
}

void CFListCtrl::SetCellImage(RowKey key, int column, int image)
{
    if (CFListRow* const row = FindRow(key))
    {
        row->Item(column).image = image;
        RedrawRow(*row);
    }
}

void CFListCtrl::SetCellKind(RowKey key, int column, std::int32_t kind)
{
    if (CFListRow* const row = FindRow(key))
    {
        row->Item(column).kind = kind;
        RedrawRow(*row);
    }
}

void CFListCtrl::SetCellChecked(RowKey key, int column, bool checked)
{
    CFListRow* const row = FindRow(key);
    if (row == nullptr || (row->Item(column).checked != 0) == checked)
        return;
    row->Item(column).checked = checked ? 1 : 0;
    RedrawRow(*row);
}

void CFListCtrl::SetCheckImages(RowKey key, int column, int checkedImage, int uncheckedImage)
{
    if (CFListRow* const row = FindRow(key))
    {
        row->Item(column).checkedImage = checkedImage;
        row->Item(column).uncheckedImage = uncheckedImage;
        RedrawRow(*row);
    }
}

void CFListCtrl::SetRowBold(RowKey key, bool bold)
{
    if (CFListRow* const row = FindRow(key))
    {
        row->m_bold = bold ? 1 : 0;
        RedrawRow(*row);
    }
}

CString CFListCtrl::CellText(const CFListRow* row, int column)
{
    return row != nullptr && column >= 0 ? row->Text(column) : CString();
}

std::int32_t CFListCtrl::CellKind(RowKey key, int column) const
{
    const CFListRow* const row = FindRow(key);
    return row != nullptr ? row->Item(column).kind & ~kCellCheckBox : kCellText;
}

CellTraits CFListCtrl::TraitsOf(const CFListRow& row, int column) const
{
    const CFListItem& item = row.Item(column);
    return {.tree = column == m_treeColumn,
            .level = row.Level(),
            .hasChildren = row.ChildCount() > 0,
            .checkBox = (item.kind & kCellCheckBox) != 0,
            .image = item.image >= 0,
            .imageSpace = Column(column).imageSpace != 0,
            .buttonShown = item.buttonShown != 0};
}

// The header knows the order of the columns, and the list moves it along when it scrolls sideways.
CRect CFListCtrl::ColumnSpan(int column) const
{
    const HWND header = ListView_GetHeader(m_hWnd);
    CRect span;
    Header_GetItemRect(header, column, static_cast<RECT*>(&span));
    ::MapWindowPoints(header, m_hWnd, reinterpret_cast<POINT*>(static_cast<RECT*>(&span)), 2);
    return span;
}

CRect CFListCtrl::GetCellRect(RowKey key, int column) const
{
    const CFListRow* const row = FindRow(key);
    if (row == nullptr || !IsShown(*row))
        return {};
    row->Item(column);  // raises for a missing column
    return ShownCellRect(row->ListIndex(), column);
}

CRect CFListCtrl::ShownCellRect(int index, int column) const
{
    CRect cell;
    GetItemRect(index, &cell, LVIR_BOUNDS);
    const CRect span = ColumnSpan(column);
    cell.left = span.left;
    cell.right = span.right;
    return cell;
}

CRect CFListCtrl::EditorRect(const CFListRow& row, int column) const
{
    CRect rect = GetCellRect(row.Key(), column);
    rect.left = EditorLeft(rect.left, TraitsOf(row, column));
    rect.right = std::max(rect.left, rect.right);
    return rect;
}

std::optional<CFListCtrl::CellHit> CFListCtrl::CellAt(CPoint point) const
{
    if (GetItemCount() == 0)
        return std::nullopt;
    const int top = GetTopIndex();
    CRect topRow;
    GetItemRect(top, &topRow, LVIR_BOUNDS);
    if (point.y < topRow.top || topRow.Height() <= 0)
        return std::nullopt;
    const int index = top + (point.y - topRow.top) / topRow.Height();
    if (index >= GetItemCount())
        return std::nullopt;
    for (int column = 0; column < ColumnCount(); ++column)
    {
        const CRect span = ColumnSpan(column);
        if (point.x >= span.left && point.x < span.right)
            return CellHit{index, column};
    }
    return std::nullopt;
}
