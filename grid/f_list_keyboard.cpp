#include "grid/f_list_ctrl.h"

namespace
{
constexpr UINT kFirstGridKey = VK_TAB;
constexpr UINT kLastGridKey = VK_F2;

bool IsHeld(int key)
{
    return ::GetKeyState(key) < 0;
}

bool IsKeyMessage(const MSG& message)
{
    return message.message == WM_KEYDOWN || message.message == WM_CHAR;
}

// Of the keys that a dialog would act on or look up as mnemonics, those that a grid of cells takes although no general
// claim covers them.
bool CellGridWants(const MSG& message)
{
    return IsKeyMessage(message) && message.wParam == VK_RETURN;
}

bool RowGridWants(const MSG& message)
{
    switch (message.wParam)
    {
    case VK_PRIOR:
    case VK_NEXT:
    case VK_ADD:
    case VK_SUBTRACT:
        return message.message == WM_KEYDOWN;
    case VK_SPACE:  // the character blank has the same number
        return IsKeyMessage(message);
    case L'+':
    case L'-':  // VK_INSERT as a key
        return message.message == WM_CHAR;
    default:
        return false;
    }
}
}  // namespace

// What the dialog leaves to the grid. By rows, Tab and Enter stay the dialog's.
LRESULT CFListCtrl::OnGetDlgCode(WPARAM /*key*/, LPARAM lParam)
{
    const auto* const message = reinterpret_cast<const MSG*>(lParam);
    LRESULT claims = DLGC_WANTARROWS;
    if (!m_rowMode)
        claims |= DLGC_WANTTAB | DLGC_WANTCHARS;
    if (message != nullptr && (m_rowMode ? RowGridWants(*message) : CellGridWants(*message)))
        claims |= DLGC_WANTMESSAGE;
    return claims;
}

void CFListCtrl::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (key < kFirstGridKey || key > kLastGridKey)
        CListCtrlWithCustomDraw::OnKeyDown(key, repeat, flags);
    else
        Navigate(key);
}

// Typing on an edit cell replaces its text.
void CFListCtrl::OnChar(UINT character, UINT repeat, UINT flags)
{
    const auto typed = static_cast<TCHAR>(character);
    const bool onEditCell = !m_rowMode && FocusRow() != nullptr && CellKind(m_focusKey, m_focusColumn) == kCellEdit;
    if (onEditCell && ::IsCharAlphaNumeric(typed))
        OpenEditor(typed);
    else
        CListCtrlWithCustomDraw::OnChar(character, repeat, flags);
}

// What a key does, pressed in the grid or as the one that ended an editor.
void CFListCtrl::Navigate(UINT key)
{
    switch (key)
    {
    case VK_TAB:
        if (IsHeld(VK_CONTROL))
            LeaveGrid(IsHeld(VK_SHIFT));
        else
            MoveFocus(IsHeld(VK_SHIFT) ? GridMove::PreviousCell : GridMove::NextCell);
        break;
    case VK_RETURN:
    case VK_F2:
        OpenEditor();
        break;
    case VK_SPACE:
        ToggleFocusCell();
        break;
    case VK_PRIOR:
        MoveFocus(GridMove::PageUp);
        break;
    case VK_NEXT:
        MoveFocus(GridMove::PageDown);
        break;
    case VK_HOME:
        MoveFocus(GridMove::FirstColumn);
        break;
    case VK_END:
        MoveFocus(GridMove::LastColumn);
        break;
    case VK_LEFT:
        MoveFocus(GridMove::Left);
        break;
    case VK_RIGHT:
        MoveFocus(GridMove::Right);
        break;
    case VK_UP:
        MoveFocus(GridMove::Up);
        break;
    case VK_DOWN:
        MoveFocus(GridMove::Down);
        break;
    case VK_ADD:
        ExpandRow(m_focusKey);
        break;
    case VK_SUBTRACT:
        CollapseRow(m_focusKey);
        break;
    default:
        break;
    }
}

void CFListCtrl::MoveFocus(GridMove move)
{
    const CFListRow* const row = FocusRow();
    const GridPlace from{row != nullptr ? row->ListIndex() : -1, m_focusColumn};
    const GridPlace to = PlaceAfter(
        from, move,
        {.rows = GetItemCount(), .columns = ColumnCount(), .rowsPerPage = GetCountPerPage(), .rowMode = m_rowMode});
    const CFListRow* const target = RowAtIndex(to.row);
    if (target == nullptr || !ShowsItsPlace(move, m_rowMode))
        return;
    const RowKey key = target->Key();
    MakeCellVisible(key, to.column, false);
    if (to != from)
        SetFocusCell(key, to.column, true);
}

void CFListCtrl::LeaveGrid(bool backwards)
{
    if (CWnd* const parent = GetParent())
        parent->SendMessage(WM_NEXTDLGCTL, backwards ? 1 : 0, FALSE);
}

void CFListCtrl::ToggleFocusCell()
{
    const CFListRow* const row = FocusRow();
    if (row == nullptr)
        return;
    const int column = m_rowMode ? 0 : m_focusColumn;
    const CFListItem& item = row->Item(column);
    if ((item.kind & kCellCheckBox) != 0)
        SetCellChecked(m_focusKey, column, item.checked == 0);
}
