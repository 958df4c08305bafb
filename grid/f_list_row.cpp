#include "grid/f_list_ctrl.h"

CFListCtrl::CFListRow::CFListRow(CFListCtrl& grid, RowKey key, void* userData)
    : m_grid(grid), m_key(key), m_userData(userData)
{
}

CFListCtrl::CFListRow::~CFListRow()
{
    for (POSITION position = m_children.GetHeadPosition(); position != nullptr;)
        delete m_children.GetNext(position);
    for (int column = 0; column < ItemCount(); ++column)
        delete m_items[column];
}

CFListCtrl::CFListRow* CFListCtrl::CFListRow::FirstChild() const
{
    return m_children.IsEmpty() ? nullptr : m_children.GetHead();
}

CFListCtrl::CFListRow* CFListCtrl::CFListRow::LastChild() const
{
    return m_children.IsEmpty() ? nullptr : m_children.GetTail();
}

bool CFListCtrl::CFListRow::IsWithin(const CFListRow& ancestor) const
{
    const CFListRow* row = this;
    while (row != nullptr && row != &ancestor)
        row = row->m_parent;
    return row != nullptr;
}

int CFListCtrl::CFListRow::ColumnOf(const CFListItem& item) const
{
    int column = 0;
    while (&Item(column) != &item)
        ++column;
    return column;
}

CFListCtrl::CFListItem& CFListCtrl::CFListRow::InsertItem(int column, LPCTSTR text, std::int32_t kind)
{
    if (column < 0 || column > ItemCount())
        AfxThrowInvalidArgException();
    auto item = std::make_unique<CFListItem>();
    item->text = text;
    item->kind = kind;
    m_items.InsertAt(column, item.get());
    return *item.release();
}
