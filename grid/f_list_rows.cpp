#include "grid/f_list_ctrl.h"
#include "grid/painting_pause.h"

#include <algorithm>

namespace
{
// Every grid draws from this, so that a key tells rows of all grids apart.
RowKey NewRowKey()
{
    static std::uintptr_t lastKey = 0;
    return reinterpret_cast<RowKey>(++lastKey);
}
}  // namespace

// --- the model ---

CFListCtrl::CFListRow* CFListCtrl::CreateRow(LPCTSTR text, int image, void* userData)
{
    auto row = std::make_unique<CFListRow>(*this, NewRowKey(), userData);
    for (int column = 0; column < ColumnCount(); ++column)
        row->InsertItem(column, column == 0 ? text : L"", kCellText);
    if (ColumnCount() > 0)
        row->Item(0).image = image;
    return row.release();
}

RowKey CFListCtrl::AddTopRow(CFListRow* row)
{
    if (!CloseEditorAndStay())
    {
        delete row;
        return nullptr;
    }
    const RowKey key = Attach(row, nullptr);
    if (GetSafeHwnd() != nullptr)
        ShowRow(*row, GetItemCount());
    return key;
}

RowKey CFListCtrl::AddChildRow(RowKey parentKey, CFListRow* row)
{
    if (FindRow(parentKey) != nullptr)
        CloseEditor();
    CFListRow* const parent = FindRow(parentKey);
    if (parent == nullptr)
    {
        delete row;
        return nullptr;
    }
    const CFListRow* const formerLast = parent->LastChild();
    const RowKey key = Attach(row, parent);
    if (parent->IsExpanded() && IsShown(*parent))
        ShowRow(*row, formerLast != nullptr ? IndexBehind(*formerLast) : parent->ListIndex() + 1);
    RedrawRow(*parent);  // the first child brings the expand image
    return key;
}

RowKey CFListCtrl::Attach(CFListRow* row, CFListRow* parent)
{
    // A row that was made before a column was inserted lacks a cell where the column came.
    while (row->ItemCount() < ColumnCount())
        row->InsertItem(m_insertedAt[static_cast<std::size_t>(row->ItemCount())], L"", kCellText);

    RowList& siblings = parent != nullptr ? parent->m_children : m_topRows;
    row->m_parent = parent;
    row->m_level = parent != nullptr ? parent->Level() + 1 : 0;
    if (!siblings.IsEmpty())
    {
        row->m_previousSibling = siblings.GetTail();
        row->m_previousSibling->m_nextSibling = row;
    }
    row->m_position = siblings.AddTail(row);
    m_rowsByKey.emplace(row->Key(), row);
    return row->Key();
}

void CFListCtrl::DeleteRow(RowKey key)
{
    if (FindRow(key) != nullptr)
        CloseEditor();
    CFListRow* const row = FindRow(key);
    if (row == nullptr)
        return;
    CFListRow* const parent = row->Parent();
    HandFocusOver(*row);
    const int firstSeen = GetTopIndex();
    HideRow(*row);
    if (GetSafeHwnd() != nullptr && GetTopIndex() != firstSeen)
        Invalidate(FALSE);  // the list, shorter now, scrolled; not every system repaints what has moved
    (parent != nullptr ? parent->m_children : m_topRows).RemoveAt(row->m_position);
    if (row->m_previousSibling != nullptr)
        row->m_previousSibling->m_nextSibling = row->m_nextSibling;
    if (row->m_nextSibling != nullptr)
        row->m_nextSibling->m_previousSibling = row->m_previousSibling;
    Forget(*row);
    delete row;
    if (parent != nullptr)
        RedrawRow(*parent);  // the last child takes the expand image along
}

void CFListCtrl::Forget(CFListRow& row)
{
    for (CFListRow* child = row.FirstChild(); child != nullptr; child = child->NextSibling())
        Forget(*child);
    m_rowsByKey.erase(row.Key());
}

CFListCtrl::CFListRow* CFListCtrl::FindRow(RowKey key) const
{
    const auto found = m_rowsByKey.find(key);
    return found != m_rowsByKey.end() ? found->second : nullptr;
}

CFListCtrl::CFListRow* CFListCtrl::FirstTopRow() const
{
    return m_topRows.IsEmpty() ? nullptr : m_topRows.GetHead();
}

// --- list indices ---

CFListCtrl::CFListRow* CFListCtrl::RowAtIndex(int index) const
{
    if (index < 0 || index >= GetItemCount())
        return nullptr;
    return reinterpret_cast<CFListRow*>(GetItemData(index));
}

bool CFListCtrl::IsShown(const CFListRow& row) const
{
    return row.m_listIndex >= 0;
}

// Inserting and removing rows moves all rows below. Instead of renumbering them each time, a row that is asked for its
// index compares with the list, and the rows that lie between the last exact index and the asked one are renumbered
// then. So a run of insertions or removals costs linear time, and every answer is right at every moment.
int CFListCtrl::IndexOf(const CFListRow& row) const
{
    if (!IsShown(row) || RowAtIndex(row.m_listIndex) == &row)
        return row.m_listIndex;
    const CFListRow* renumbered = nullptr;
    while (renumbered != &row && m_exactIndices < GetItemCount())
    {
        renumbered = RowAtIndex(m_exactIndices);
        renumbered->m_listIndex = m_exactIndices++;
    }
    return row.m_listIndex;
}

// List index behind a shown row and all that is shown below it.
int CFListCtrl::IndexBehind(const CFListRow& row) const
{
    const CFListRow* last = &row;
    while (last->IsExpanded() && last->LastChild() != nullptr)
        last = last->LastChild();
    return last->ListIndex() + 1;
}

// --- showing and hiding ---

// Shows the row alone, not its children.
void CFListCtrl::ShowRow(CFListRow& row, int index)
{
    m_exactIndices = std::min(m_exactIndices, index);
    row.m_listIndex = index;
    LVITEM item{};
    item.mask = LVIF_TEXT | LVIF_PARAM;
    item.iItem = index;
    item.pszText = const_cast<LPTSTR>(row.ItemCount() > 0 ? static_cast<LPCTSTR>(row.Text(0)) : L"");
    item.lParam = reinterpret_cast<LPARAM>(&row);
    if (InsertItem(&item) < 0)
    {
        row.m_listIndex = -1;
        AfxThrowMemoryException();
    }
    for (int column = 1; column < row.ItemCount(); ++column)
        if (!row.Text(column).IsEmpty())
            SetItemText(index, column, row.Text(column));
}

void CFListCtrl::ShowChildren(CFListRow& row)
{
    const PaintingPause pause(*this);
    int index = row.ListIndex();
    SetItemCount(GetItemCount() + row.ChildCount());  // makes room for all at once
    CFListRow* child = row.FirstChild();
    try
    {
        for (; child != nullptr; child = child->NextSibling())
            ShowRow(*child, ++index);
    }
    catch (CMemoryException*)  // the row stays collapsed
    {
        int last = index - 1;
        while ((child = child->PreviousSibling()) != nullptr)
            HideBranch(*child, last);
        throw;
    }
}

// The last row, then the first, in one step: each would make the list scroll and paint.
void CFListCtrl::MakeRowsVisible(int first, int last)
{
    const int top = GetTopIndex();
    const int wanted = TopRowToShow(top, GetCountPerPage(), first, last);
    if (wanted == top)
        return;
    CRect row;
    GetItemRect(top, &row, LVIR_BOUNDS);
    Scroll(CSize(0, (wanted - top) * row.Height()));
}

// Takes the row and what is shown below it out of the list.
void CFListCtrl::HideRow(CFListRow& row)
{
    if (IsShown(row))
    {
        int last = IndexBehind(row) - 1;
        HideBranch(row, last);
    }
}

// From the last row up, so that the rows still to be removed keep their indices.
// @param last  list index of the last shown row below this one; afterwards of the row before the removed ones
void CFListCtrl::HideBranch(CFListRow& row, int& last)
{
    if (row.IsExpanded())
        HideChildren(row, last);
    const int index = last--;
    // The list tells its parent, which may ask for indices and so have rows renumbered that are about to move: what is
    // exact is set back once more behind it. Until then the row knows its place.
    m_exactIndices = std::min(m_exactIndices, index);
    DeleteItem(index);
    m_exactIndices = std::min(m_exactIndices, index);
    row.m_listIndex = -1;
}

void CFListCtrl::HideChildren(CFListRow& row, int& last)
{
    row.m_collapsed = 1;
    for (CFListRow* child = row.LastChild(); child != nullptr; child = child->PreviousSibling())
        HideBranch(*child, last);
}

CFListCtrl::CFListRow* CFListCtrl::RowToExpand(RowKey key) const
{
    CFListRow* const row = FindRow(key);
    return row != nullptr && !row->IsExpanded() && IsShown(*row) && row->ChildCount() > 0 ? row : nullptr;
}

CFListCtrl::CFListRow* CFListCtrl::RowToCollapse(RowKey key) const
{
    CFListRow* const row = FindRow(key);
    return row != nullptr && row->IsExpanded() && row->ChildCount() > 0 ? row : nullptr;
}

// The parent is told while an editor closes: it may do with the row, or to it, what is asked here.
void CFListCtrl::ExpandRow(RowKey key)
{
    if (RowToExpand(key) == nullptr)
        return;
    CloseEditor();
    CFListRow* const row = RowToExpand(key);
    if (row == nullptr)
        return;
    {
        const NotificationLock lock(*this);
        ShowChildren(*row);
        row->m_collapsed = 0;
        MakeRowsVisible(row->ListIndex(), row->LastChild()->ListIndex());
        SetFocusCell(m_focusKey, m_focusColumn, true);
    }
    // The list tells its parent of scrolling and of the keyboard: the row may be gone.
    if (const CFListRow* const expanded = FindRow(key))
        Notify(kGridRowExpanded, expanded, m_focusColumn, CellText(expanded, m_focusColumn));
    RedrawRow(key);
}

void CFListCtrl::CollapseRow(RowKey key)
{
    if (RowToCollapse(key) == nullptr)
        return;
    CloseEditor();
    CFListRow* const row = RowToCollapse(key);
    if (row == nullptr)
        return;
    {
        const NotificationLock lock(*this);
        const PaintingPause pause(*this);
        int last = IndexBehind(*row) - 1;
        HideChildren(*row, last);
    }
    if (const CFListRow* const told = FindRow(key))
        Notify(kGridRowCollapsed, told, m_focusColumn, CellText(told, m_focusColumn));
    // Only now: the parent may have moved the focus or deleted the row when it was told.
    const CFListRow* const focus = FocusRow();
    const CFListRow* const collapsed = FindRow(key);
    if (focus != nullptr && collapsed != nullptr && !IsShown(*focus) && focus->IsWithin(*collapsed))
        SetFocusCell(key, m_focusColumn, true);
    RedrawRow(key);
}

// From edge to edge: the list's own way of redrawing an item may leave out the space before its first image.
void CFListCtrl::RedrawRow(const CFListRow& row)
{
    if (!IsShown(row))
        return;
    CRect place;
    GetItemRect(row.ListIndex(), &place, LVIR_BOUNDS);
    CRect client;
    GetClientRect(&client);
    place.left = client.left;
    place.right = client.right;
    InvalidateRect(&place, FALSE);
}

void CFListCtrl::RedrawRow(RowKey key)
{
    if (const CFListRow* const row = FindRow(key))
        RedrawRow(*row);
}

// @param key  null for no focus row: then the first row shows where the keyboard is
void CFListCtrl::RedrawFocusRow(RowKey key)
{
    const CFListRow* const row = key != nullptr ? FindRow(key) : FirstTopRow();
    if (row != nullptr)
        RedrawRow(*row);
}
