#include "grid/f_list_ctrl.h"
#include "grid/in_place_button.h"
#include "grid/in_place_edit.h"
#include "grid/in_place_list.h"

#include <utility>

namespace
{
constexpr UINT kEditId = 301;
constexpr UINT kListId = 302;
constexpr UINT kButtonId = 303;
constexpr int kDropDownCells = 10;  // height of the open list below its cell, in cells
}  // namespace

bool CFListCtrl::OpenEditor()
{
    return OpenEditor(std::nullopt);
}

bool CFListCtrl::OpenEditor(std::optional<TCHAR> typed)
{
    if (m_closingEditor)
        return false;
    CloseEditor();
    if (m_rowMode || FocusRow() == nullptr || !IsShown(*FocusRow()))
        return false;
    const RowKey key = m_focusKey;
    const int column = m_focusColumn;
    switch (CellKind(key, column))
    {
    case kCellEdit:
        return OpenEdit(key, column, typed);
    case kCellList:
        return OpenList(key, column);
    case kCellButton:
        return OpenButton(key, column);
    default:
        return false;
    }
}

void CFListCtrl::OpenEditorAtOnce()
{
    if (m_rowMode || FocusRow() == nullptr || HasEditor())
        return;
    const std::int32_t kind = CellKind(m_focusKey, m_focusColumn);
    if (kind == kCellList || kind == kCellButton)
        OpenEditor();
}

// The parent may have deleted the row or moved the focus while it was asked, or told that the list scrolls.
bool CFListCtrl::CanStillEdit(RowKey key, int column) const
{
    const CFListRow* const row = FindRow(key);
    return row != nullptr && IsShown(*row) && key == m_focusKey && column == m_focusColumn && !HasEditor();
}

bool CFListCtrl::OpenEdit(RowKey key, int column, std::optional<TCHAR> typed)
{
    const CFListRow* const asked = FindRow(key);
    const LRESULT forbidden = Notify(kGridBeginEdit, asked, column, asked->Text(column));
    if (forbidden != 0 || !CanStillEdit(key, column))
        return false;
    MakeCellVisible(key, column, false);
    if (!CanStillEdit(key, column))
        return false;

    const CFListRow& row = *FindRow(key);
    const CString text = typed ? CString(*typed) : row.Text(column);
    auto edit = std::make_unique<CInPlaceEdit>(key, column, text, !typed);
    const auto format = static_cast<DWORD>(Column(column).centred);
    if (!edit->Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL | format, EditorRect(row, column), this, kEditId))
        return false;
    edit->ModifyStyleEx(WS_EX_CLIENTEDGE, 0, SWP_FRAMECHANGED);
    return BeginEditing(*edit.release(), key, column);
}

bool CFListCtrl::OpenList(RowKey key, int column)
{
    const CFListRow* const asked = FindRow(key);
    InPlaceComboItems entries;
    NMFLISTCOMBO request;
    FillRecord(request, kGridListContents, asked, column, asked->Text(column));
    request.items = &entries;
    const LRESULT forbidden = SendRecord(request);
    if (forbidden != 0 || entries.IsEmpty() || !CanStillEdit(key, column))
        return false;
    MakeCellVisible(key, column, false);
    if (!CanStillEdit(key, column))
        return false;

    const CFListRow& row = *FindRow(key);
    auto list = std::make_unique<CInPlaceList>(key, column, entries, request.selected);
    list->SetLook({.back = m_focusBack, .text = m_focusText, .centred = Column(column).centred, .bold = row.IsBold()});
    const CRect cell = EditorRect(row, column);
    CRect place = cell;
    place.bottom += kDropDownCells * cell.Height();
    if (!list->Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_DISABLENOSCROLL, place, this,
                      kListId))
        return false;
    list->ModifyStyleEx(WS_EX_CLIENTEDGE, 0, SWP_FRAMECHANGED);
    list->SetClosedHeight(cell.Height());
    list->SetDropDownHeight(kDropDownCells * cell.Height());
    return BeginEditing(*list.release(), key, column);
}

bool CFListCtrl::OpenButton(RowKey key, int column)
{
    MakeCellVisible(key, column, false);
    if (!CanStillEdit(key, column))
        return false;

    const CFListRow& row = *FindRow(key);
    CRect place = EditorRect(row, column);
    place.left = place.right - place.Height();
    auto button = std::make_unique<CInPlaceButton>(key, column, L"...");
    if (!button->Create(L"", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, place, this, kButtonId))
        return false;
    row.Item(column).buttonShown = 1;
    RedrawRow(row);
    return BeginEditing(*button.release(), key, column);
}

// From here on the editor deletes itself. One that can't take the focus, as in a disabled window, would never lose it
// and so never close: it goes at once.
bool CFListCtrl::BeginEditing(CWnd& editor, RowKey key, int column)
{
    const HWND window = editor.GetSafeHwnd();
    m_editor = &editor;
    m_editorKey = key;
    m_editorColumn = column;
    ::SetFocus(window);
    // By windows: the parent may have opened another editor, which may lie where this one was.
    const auto isOpen = [this, window] { return m_editor != nullptr && m_editor->GetSafeHwnd() == window; };
    if (isOpen() && ::GetFocus() != window)
        CloseEditor();
    return isOpen();
}

// The editor's report comes in while the grid takes the keyboard, and the list tells its parent: whoever closes an
// editor counts on there being none, so no other one opens meanwhile.
void CFListCtrl::CloseEditor()
{
    if (m_editor == nullptr)
        return;
    const HWND window = m_editor->GetSafeHwnd();
    if (::GetFocus() == window)
    {
        const bool former = std::exchange(m_closingEditor, true);
        SetFocus();
        m_closingEditor = former;
    }
    if (m_editor == nullptr)
        return;
    ForgetEditor(m_editorKey, m_editorColumn);
    ::DestroyWindow(window);
}

// @return  false when the parent destroyed the grid while it was told that the grid has the keyboard again
bool CFListCtrl::CloseEditorAndStay()
{
    const bool hadEditor = HasEditor();
    CloseEditor();
    return !hadEditor || GetSafeHwnd() != nullptr;
}

void CFListCtrl::ForgetEditor(RowKey key, int column)
{
    if (key == m_editorKey && column == m_editorColumn)
    {
        m_editor = nullptr;
        m_editorKey = nullptr;
        m_editorColumn = -1;
    }
    if (const CFListRow* const row = FindRow(key))
    {
        row->Item(column).buttonShown = 0;
        RedrawRow(*row);
    }
}

// --- reports of editors that close ---

void CFListCtrl::OnEditClosed(NMHDR* header, LRESULT* result)
{
    EndEditing(*reinterpret_cast<const NMFLISTCTRL*>(header), kGridEndEdit);
    *result = 0;
}

void CFListCtrl::OnListClosed(NMHDR* header, LRESULT* result)
{
    EndEditing(*reinterpret_cast<const NMFLISTCTRL*>(header), kGridEndList);
    *result = 0;
}

void CFListCtrl::OnButtonClosed(NMHDR* header, LRESULT* result)
{
    EndEditing(*reinterpret_cast<const NMFLISTCTRL*>(header), kGridButtonPressed);
    *result = 0;
}

// @param code  what the parent is told when the editor was ended with Enter
void CFListCtrl::EndEditing(const NMFLISTCTRL& report, UINT code)
{
    const RowKey key = report.rowKey;
    const int column = report.column;
    ForgetEditor(key, column);
    const CFListRow* const row = FindRow(key);
    if (row == nullptr)
        return;

    const auto endingKey = static_cast<UINT>(report.userData);
    if (endingKey == VK_RETURN)
    {
        const bool hasValue = code != kGridButtonPressed;
        const CFListItem& cell = row->Item(column);
        const LRESULT answer = Notify(code, row, column, hasValue ? report.text : row->Text(column), report.extra);
        // The parent may have deleted the row, or inserted a column, which moves the cell.
        const CFListRow* const told = FindRow(key);
        if (hasValue && answer == 0 && told != nullptr)
            SetCellText(key, told->ColumnOf(cell), report.text);
        if (code == kGridEndList && answer == kGridKeepFocus)
            return;
    }
    // The focus may have gone on elsewhere while the parent was told: then it stays there.
    if (endingKey == VK_RETURN || endingKey == VK_ESCAPE)
    {
        if (::GetFocus() == m_hWnd)
            OpenEditorAtOnce();
    }
    else if (endingKey != 0)
        Navigate(endingKey);
}
