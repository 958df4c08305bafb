#include "tests/dialog/windowed/list_view.h"

int ListView::Rows() const
{
    return ListView_GetItemCount(m_window);
}

CString ListView::Text(int row, int column) const
{
    wchar_t text[300] = L"";
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = 300;
    ::SendMessageW(m_window, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return text;
}

std::vector<CString> ListView::Texts(int row) const
{
    std::vector<CString> texts;
    for (int column = 0; column < static_cast<int>(Columns().size()); ++column)
        texts.push_back(Text(row, column));
    return texts;
}

std::vector<ListView::Column> ListView::Columns() const
{
    std::vector<Column> columns;
    wchar_t heading[100] = L"";
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_FMT | LVCF_WIDTH;
    column.pszText = heading;
    column.cchTextMax = 100;
    for (WPARAM index = 0; ::SendMessageW(m_window, LVM_GETCOLUMNW, index, reinterpret_cast<LPARAM>(&column)); ++index)
        columns.push_back({heading, column.fmt & LVCFMT_JUSTIFYMASK, column.cx});
    return columns;
}

CPoint ListView::CellCentre(int row, int column) const
{
    CRect cell;
    ListView_GetSubItemRect(m_window, row, column, LVIR_BOUNDS, &cell);
    if (column == 0)
        cell.right = cell.left + ListView_GetColumnWidth(m_window, 0);
    return cell.CenterPoint();
}

CPoint ListView::NamePoint(int row) const
{
    CPoint point = CellCentre(row, 0);
    point.x = ListView_GetColumnWidth(m_window, 0) - 10;
    return point;
}

CPoint ListView::ExpandPoint(int row) const
{
    CPoint point = CellCentre(row, 0);
    point.x = kCellMargin + kCellStep / 2;
    return point;
}

CFListCtrl& ListView::Grid() const
{
    return static_cast<CFListCtrl&>(*CWnd::FromHandlePermanent(m_window));
}

CFListCtrl::CFListRow& ListView::Row(int row) const
{
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    ::SendMessageW(m_window, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return *reinterpret_cast<CFListCtrl::CFListRow*>(item.lParam);
}

int ListView::FocusRow() const
{
    for (int row = 0; row < Rows(); ++row)
        if (Row(row).Key() == Grid().FocusKey())
            return row;
    return -1;
}
