#include "grid/f_list_ctrl.h"

int CFListCtrl::InsertFColumn(int index, LPCTSTR heading, int format, int width, bool tree)
{
    if (!CloseEditorAndStay())
        return -1;
    if (index < 0 || index > ColumnCount())
        AfxThrowInvalidArgException();

    auto column = std::make_unique<CFListColumn>();
    column->tree = tree ? 1 : 0;
    column->centred = (format & LVCFMT_JUSTIFYMASK) == LVCFMT_CENTER ? 1 : 0;
    m_columns.InsertAt(index, column.get());
    static_cast<void>(column.release());  // the array's now
    m_insertedAt.push_back(index);
    if (tree && m_treeColumn >= 0)
        Column(m_treeColumn < index ? m_treeColumn : m_treeColumn + 1).tree = 0;
    if (tree)
        m_treeColumn = index;
    else if (index <= m_treeColumn)
        ++m_treeColumn;
    if (index <= m_focusColumn)
        ++m_focusColumn;

    for (const auto& [key, row] : m_rowsByKey)
        row->InsertItem(index, L"", kCellText);
    CListCtrl::InsertColumn(index, heading, format, width);

    // The list view may have kept the texts of the columns at and behind the new one where they were.
    std::vector<RowKey> shown;
    shown.reserve(static_cast<std::size_t>(GetItemCount()));
    for (int row = 0; row < GetItemCount(); ++row)
        shown.push_back(RowAtIndex(row)->Key());
    for (const RowKey key : shown)
        for (int moved = index; moved < ColumnCount(); ++moved)
            ShowText(key, moved);
    return GetSafeHwnd() != nullptr ? index : -1;
}
