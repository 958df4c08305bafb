#include "grid/f_list_ctrl.h"

#include <algorithm>

namespace
{
// The cell that the last kGridFocusMoved of any grid told: the same cell is not told twice in a row.
RowKey lastToldKey = nullptr;
int lastToldColumn = -1;
}  // namespace

void CFListCtrl::SetFocusCell(RowKey key, int column, bool notify)
{
    if (key != nullptr && FindRow(key) == nullptr)
        return;
    if (key != m_editorKey || FocusColumnFor(key, column) != m_editorColumn)
        CloseEditor();
    // The list tells its parent that it has the keyboard again: the row may be gone, or the grid in row mode.
    if (key != nullptr && FindRow(key) == nullptr)
        return;

    const int target = FocusColumnFor(key, column);
    const RowKey former = m_focusKey;
    m_focusKey = key;
    m_focusColumn = target;
    RedrawFocusRow(former);
    RedrawFocusRow(key);
    if (notify)
        TellFocusMoved();
    if (m_focusKey == key && m_focusColumn == target)
        OpenEditorAtOnce();
}

// The focus column when the focus goes to that cell. Raises for a missing column.
int CFListCtrl::FocusColumnFor(RowKey key, int column) const
{
    if (m_rowMode || key == nullptr)
        return -1;
    const int target = std::max(column, 0);
    FindRow(key)->Item(target);
    return target;
}

void CFListCtrl::TellFocusMoved()
{
    if (m_notificationLock != 0 || (m_focusKey == lastToldKey && m_focusColumn == lastToldColumn))
        return;
    lastToldKey = m_focusKey;
    lastToldColumn = m_focusColumn;
    const CFListRow* const row = FocusRow();
    Notify(kGridFocusMoved, row, m_focusColumn, CellText(row, m_focusColumn));
}

void CFListCtrl::HandFocusOver(const CFListRow& deleted)
{
    const CFListRow* const focus = FocusRow();
    if (focus == nullptr || !focus->IsWithin(deleted))
        return;
    const CFListRow* heir = deleted.NextSibling();
    if (heir == nullptr)
        heir = deleted.PreviousSibling();
    if (heir == nullptr)
        heir = deleted.Parent();
    m_focusKey = heir != nullptr ? heir->Key() : nullptr;
    if (heir == nullptr)
        m_focusColumn = -1;
    RedrawRow(m_focusKey);
}

void CFListCtrl::SetRowMode(bool rowMode)
{
    CloseEditor();
    m_rowMode = rowMode;
    m_focusColumn = rowMode || FocusRow() == nullptr ? -1 : std::max(m_focusColumn, 0);
    RedrawRow(m_focusKey);
}

void CFListCtrl::SetFocusColours(COLORREF back, COLORREF text)
{
    m_focusBack = back;
    m_focusText = text;
    RedrawRow(m_focusKey);
}

void CFListCtrl::MakeCellVisible(RowKey key, int column, bool partial)
{
    if (FindRow(key) != nullptr)
        CloseEditor();
    const CFListRow* const row = FindRow(key);
    if (row == nullptr || !IsShown(*row))
        return;
    EnsureVisible(row->ListIndex(), partial);
    // The list tells its parent of scrolling: the row may be gone.
    if (partial || column < 0 || FindRow(key) == nullptr)
        return;
    const CRect cell = GetCellRect(key, column);
    CRect client;
    GetClientRect(&client);
    const int distance = ScrollToShow(cell.left, cell.right, client.right, column);
    if (distance != 0)
        Scroll(CSize(distance, 0));
}
