#include "grid_window.h"
#include "tests/support/framework_printers.h"

#include <utility>

namespace
{
using Told = std::vector<std::string>;

// Two rows; column 1 is an edit cell, centred, 130 to 210. The focus is on A's.
class EditEditor : public GridTest
{
protected:
    EditEditor()
    {
        for (const RowKey key : {a, b})
            grid.SetCellKind(key, 1, kCellEdit);
        grid.SetFocusCell(a, 1, true);
        window.TakeTold();
    }

    HWND Edit() const { return Editor(301); }
    CString TextOf(HWND editor) const
    {
        CString text;
        CWnd::FromHandle(editor)->GetWindowText(text);
        return text;
    }
    /// Begin and end of the selection; the caret is at both when nothing is selected.
    std::pair<int, int> Caret() const
    {
        const auto selection = static_cast<DWORD>(::SendMessageW(Edit(), EM_GETSEL, 0, 0));
        return {LOWORD(selection), HIWORD(selection)};
    }

    RowKey a = window.AddTop(L"A");
    RowKey b = window.AddTop(L"B");
};
}  // namespace

TEST_F(EditEditor, StandsOnTheCell)
{
    ASSERT_TRUE(grid.OpenEditor());
    CRect place;
    ::GetWindowRect(Edit(), &place);
    grid.ScreenToClient(&place);
    EXPECT_EQ(place, grid.GetCellRect(a, 1));
}

// 130 wide: 20 for an image, 5 of margin.
TEST_F(EditEditor, LeavesTreeIndentationAndImageRoomFree)
{
    grid.SetCellKind(a, 0, kCellEdit);
    grid.SetFocusCell(a, 0, false);
    ASSERT_TRUE(grid.OpenEditor());
    CRect place;
    ::GetWindowRect(Edit(), &place);
    grid.ScreenToClient(&place);
    EXPECT_EQ(place.left, 25);
    EXPECT_EQ(place.right, 130);
}

TEST_F(EditEditor, HasStyleAndFormatOfItsColumn)
{
    ASSERT_TRUE(grid.OpenEditor());
    const auto style = static_cast<DWORD>(::GetWindowLongW(Edit(), GWL_STYLE));
    EXPECT_EQ(style & (WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL | ES_CENTER),
              static_cast<DWORD>(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL | ES_CENTER));
    EXPECT_EQ(::GetWindowLongW(Edit(), GWL_EXSTYLE) & WS_EX_CLIENTEDGE, 0);
    EXPECT_EQ(::SendMessageW(Edit(), WM_GETFONT, 0, 0), grid.SendMessage(WM_GETFONT));
    EXPECT_EQ(::GetFocus(), Edit());
}

TEST_F(EditEditor, IsNotCentredInALeftColumn)
{
    grid.SetCellKind(a, 2, kCellEdit);
    grid.SetFocusCell(a, 2, false);
    ASSERT_TRUE(grid.OpenEditor());
    EXPECT_EQ(::GetWindowLongW(Edit(), GWL_STYLE) & (ES_CENTER | ES_RIGHT), 0);
}

TEST_F(EditEditor, EndOfALongTextIsInSightAtOnce)
{
    const CString text = L"0123456789012345678901234567890123456789";
    grid.SetCellText(a, 1, text);
    ASSERT_TRUE(grid.OpenEditor());
    CRect client;
    ::GetClientRect(Edit(), &client);
    const auto last = static_cast<WPARAM>(text.GetLength() - 1);
    const int x = static_cast<short>(LOWORD(::SendMessageW(Edit(), EM_POSFROMCHAR, last, 0)));
    EXPECT_GE(x, 0);
    EXPECT_LT(x, client.right);
    EXPECT_LT(static_cast<short>(LOWORD(::SendMessageW(Edit(), EM_POSFROMCHAR, 0, 0))), 0);
}

TEST_F(EditEditor, BeginsWithTheWholeTextSelected)
{
    ASSERT_TRUE(grid.OpenEditor());
    EXPECT_EQ(TextOf(Edit()), L"A1");
    EXPECT_EQ(::SendMessageW(Edit(), EM_GETSEL, 0, 0), MAKELONG(0, 2));
}

TEST_F(EditEditor, TypedCharacterIsTheWholeTextWithTheCaretBehindIt)
{
    TypeText(L"7");
    ASSERT_NE(Edit(), nullptr);
    EXPECT_EQ(TextOf(Edit()), L"7");
    EXPECT_EQ(::SendMessageW(Edit(), EM_GETSEL, 0, 0), MAKELONG(1, 1));
    TypeText(L".");
    TypeText(L"5");
    EXPECT_EQ(TextOf(Edit()), L"7.5");
}

TEST_F(EditEditor, EnterCommits)
{
    PressKey(VK_RETURN);
    TypeText(L"new");
    PressKey(VK_RETURN);
    EXPECT_EQ(window.TakeTold(), (Told{"1117 A 1 \"A1\"", "1118 A 1 \"new\""}));
    EXPECT_EQ(grid.FindRow(a)->Text(1), L"new");
    EXPECT_EQ(grid.GetItemText(0, 1), L"new");
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_EQ(::GetFocus(), grid.GetSafeHwnd());
    EXPECT_EQ(grid.FocusKey(), a);
    EXPECT_EQ(grid.FocusColumn(), 1);
}

TEST_F(EditEditor, VetoOfTheParentKeepsTheOldText)
{
    window.answers[kGridEndEdit] = 1;
    PressKey(VK_RETURN);
    TypeText(L"new");
    PressKey(VK_RETURN);
    EXPECT_EQ(window.TakeTold(), (Told{"1117 A 1 \"A1\"", "1118 A 1 \"new\""}));
    EXPECT_EQ(grid.FindRow(a)->Text(1), L"A1");
}

TEST_F(EditEditor, ParentCanForbidEditing)
{
    window.answers[kGridBeginEdit] = 1;
    PressKey(VK_F2);
    TypeText(L"7");
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_EQ(window.TakeTold(), (Told{"1117 A 1 \"A1\"", "1117 A 1 \"A1\""}));
    EXPECT_EQ(grid.FindRow(a)->Text(1), L"A1");
}

TEST_F(EditEditor, EscapeDiscards)
{
    PressKey(VK_RETURN);
    TypeText(L"new");
    PressKey(VK_ESCAPE);
    EXPECT_EQ(window.TakeTold(), (Told{"1117 A 1 \"A1\""}));
    EXPECT_EQ(grid.FindRow(a)->Text(1), L"A1");
    EXPECT_FALSE(grid.HasEditor());
}

TEST_F(EditEditor, TabDiscardsAndMovesOn)
{
    PressKey(VK_RETURN);
    TypeText(L"new");
    PressKey(VK_TAB);
    EXPECT_EQ(window.TakeTold(), (Told{"1117 A 1 \"A1\"", "1116 A 2 \"A2\""}));
    EXPECT_EQ(grid.FindRow(a)->Text(1), L"A1");
}

TEST_F(EditEditor, ShiftTabMovesBack)
{
    PressKey(VK_RETURN);
    PressKeyWith(VK_SHIFT, VK_TAB);
    EXPECT_EQ(window.TakeTold(), (Told{"1117 A 1 \"A1\"", "1116 A 0 \"A\""}));
}

TEST_F(EditEditor, DownAndUpEndAndMove)
{
    PressKey(VK_RETURN);
    PressKey(VK_DOWN);
    PressKey(VK_RETURN);
    PressKey(VK_UP);
    EXPECT_EQ(window.TakeTold(), (Told{"1117 A 1 \"A1\"", "1116 B 1 \"B1\"", "1117 B 1 \"B1\"", "1116 A 1 \"A1\""}));
    EXPECT_FALSE(grid.HasEditor());
}

TEST_F(EditEditor, PageKeysEndAndMove)
{
    PressKey(VK_RETURN);
    PressKey(VK_NEXT);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_EQ(grid.FocusKey(), b);
    PressKey(VK_RETURN);
    PressKey(VK_PRIOR);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_EQ(grid.FocusKey(), a);
}

TEST_F(EditEditor, SpaceEndsSoThatNoBlankCanBeTyped)
{
    PressKey(VK_RETURN);
    PressKey(VK_SPACE);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_EQ(grid.FocusKey(), a);
    EXPECT_EQ(window.TakeTold(), (Told{"1117 A 1 \"A1\""}));
}

TEST_F(EditEditor, SpaceAlsoTogglesTheCellsCheckBox)
{
    grid.SetCellKind(a, 1, kCellEdit | kCellCheckBox);
    PressKey(VK_RETURN);
    PressKey(VK_SPACE);
    EXPECT_EQ(grid.FindRow(a)->Item(1).checked, 1);
}

TEST_F(EditEditor, LeftAndRightMoveTheCaret)
{
    PressKey(VK_RETURN);
    PressKey(VK_END);
    PressKey(VK_LEFT);
    EXPECT_EQ(Caret(), std::pair(1, 1));
    PressKey(VK_RIGHT);
    EXPECT_EQ(Caret(), std::pair(2, 2));
}

TEST_F(EditEditor, LeftAndRightEndWithControlHeld)
{
    PressKey(VK_RETURN);
    PressKeyWith(VK_CONTROL, VK_RIGHT);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_EQ(grid.FocusColumn(), 2);
    grid.SetFocusCell(a, 1, false);
    PressKey(VK_RETURN);
    PressKeyWith(VK_CONTROL, VK_LEFT);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_EQ(grid.FocusColumn(), 0);
}

TEST_F(EditEditor, OtherKeysAreTheEdits)
{
    PressKey(VK_RETURN);
    for (const UINT key : {VK_HOME, VK_END, VK_DELETE, VK_BACK, VK_INSERT, VK_F2})
        PressKey(key);
    EXPECT_NE(Edit(), nullptr);
}

TEST_F(EditEditor, OtherKeysDoWhatTheyDoInAnEdit)
{
    PressKey(VK_RETURN);
    PressKey(VK_END);
    EXPECT_EQ(Caret(), std::pair(2, 2));
    PressKey(VK_HOME);
    EXPECT_EQ(Caret(), std::pair(0, 0));
    PressKey(VK_DELETE);
    EXPECT_EQ(TextOf(Edit()), L"1");
}

TEST_F(EditEditor, ClickOnAnotherCellDiscards)
{
    PressKey(VK_RETURN);
    TypeText(L"new");
    LeftClick(grid, CellCentre(b, 2));
    EXPECT_EQ(window.TakeTold(), (Told{"1117 A 1 \"A1\"", "1116 B 2 \"B2\""}));
    EXPECT_EQ(grid.FindRow(a)->Text(1), L"A1");
    EXPECT_FALSE(grid.HasEditor());
}

TEST_F(EditEditor, ClickInTheEmptyAreaDiscards)
{
    PressKey(VK_RETURN);
    TypeText(L"new");
    LeftClick(grid, CPoint(10, 250));
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_EQ(grid.FindRow(a)->Text(1), L"A1");
    EXPECT_EQ(grid.FocusKey(), a);
}

TEST_F(EditEditor, FocusTakenByAnotherWindowDiscards)
{
    PressKey(VK_RETURN);
    const HWND edit = Edit();
    ::SetFocus(window.GetSafeHwnd());
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_FALSE(::IsWindow(edit));
    EXPECT_EQ(window.TakeTold(), (Told{"1117 A 1 \"A1\""}));
}

TEST_F(EditEditor, ScrollingClosesIt)
{
    grid.InsertFColumn(3, L"wide", LVCFMT_LEFT, 900, false);
    for (const UINT message : {WM_HSCROLL, WM_VSCROLL, WM_MOUSEWHEEL, WM_MOUSEHWHEEL})
    {
        SCOPED_TRACE(message);
        grid.SetFocusCell(a, 1, false);
        ASSERT_TRUE(grid.OpenEditor());
        const bool wheel = message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL;
        grid.SendMessage(message, wheel ? MAKEWPARAM(0, WHEEL_DELTA) : SB_LINERIGHT, 0);
        EXPECT_FALSE(grid.HasEditor());
        EXPECT_EQ(::GetFocus(), grid.GetSafeHwnd());
    }
}

TEST_F(EditEditor, ScrollingGoesOnBehindIt)
{
    grid.InsertFColumn(3, L"wide", LVCFMT_LEFT, 900, false);
    for (int row = 0; row < 20; ++row)
        window.AddTop(L"V");
    ASSERT_TRUE(grid.OpenEditor());
    ASSERT_EQ(grid.GetCellRect(a, 1).left, 130);
    grid.SendMessage(WM_HSCROLL, SB_LINERIGHT, 0);
    EXPECT_LT(grid.GetCellRect(a, 1).left, 130);
    ASSERT_TRUE(grid.OpenEditor());
    ASSERT_EQ(grid.GetTopIndex(), 0);
    grid.SendMessage(WM_VSCROLL, SB_LINEDOWN, 0);
    EXPECT_EQ(grid.GetTopIndex(), 1);
}

TEST_F(EditEditor, WheelScrollsTheRowsWithAndWithoutIt)
{
    for (int row = 0; row < 40; ++row)
        window.AddTop(L"V");
    for (const bool open : {false, true})
    {
        SCOPED_TRACE(open ? "with an editor" : "without one");
        grid.EnsureVisible(0, FALSE);
        ASSERT_EQ(grid.GetTopIndex(), 0);
        ASSERT_EQ(open && grid.OpenEditor(), open);
        grid.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
        EXPECT_GT(grid.GetTopIndex(), 0);
        EXPECT_FALSE(grid.HasEditor());
    }
}

TEST_F(EditEditor, DraggedColumnClosesIt)
{
    ASSERT_TRUE(grid.OpenEditor());
    const HWND header = ListView_GetHeader(grid.GetSafeHwnd());
    NMHEADER dragged{};
    dragged.hdr = {header, static_cast<UINT_PTR>(::GetDlgCtrlID(header)), static_cast<UINT>(HDN_BEGINDRAG)};
    dragged.iItem = 1;
    grid.SendMessage(WM_NOTIFY, dragged.hdr.idFrom, reinterpret_cast<LPARAM>(&dragged));
    EXPECT_FALSE(grid.HasEditor());
}

TEST_F(EditEditor, ColumnOfAnotherWidthClosesIt)
{
    PressKey(VK_RETURN);
    grid.SetColumnWidth(0, 200);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_EQ(grid.GetCellRect(a, 1).left, 200);
}

TEST_F(EditEditor, ScrollingGivesTheGridTheKeyboard)
{
    for (const UINT message : {WM_VSCROLL, WM_HSCROLL})
    {
        SCOPED_TRACE(message);
        ::SetFocus(window.GetSafeHwnd());
        grid.SendMessage(message, SB_LINEDOWN, 0);
        EXPECT_EQ(::GetFocus(), grid.GetSafeHwnd());
    }
}

TEST_F(EditEditor, RowModeClosesItWithoutCommit)
{
    ASSERT_TRUE(grid.OpenEditor());
    const HWND edit = Edit();
    TypeText(L"new");
    grid.SetRowMode(true);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_FALSE(::IsWindow(edit));
    EXPECT_EQ(window.TakeTold(), (Told{"1117 A 1 \"A1\""}));
    EXPECT_EQ(grid.FindRow(a)->Text(1), L"A1");
}

TEST_F(EditEditor, LongTextWidensItToTheGridsRightEdgeAndNoFurther)
{
    PressKey(VK_RETURN);
    CRect grown;
    TypeText(L"0123456789012345");
    ::GetWindowRect(Edit(), &grown);
    grid.ScreenToClient(&grown);
    EXPECT_EQ(grown.left, 130);
    EXPECT_GT(grown.right, 210);
    CRect client;
    grid.GetClientRect(&client);
    EXPECT_LT(grown.right, client.right);
    TypeText(
        L"01234567890123456789012345678901234567890123456789012345678901234567890123456789012345678901234567890123456");
    ::GetWindowRect(Edit(), &grown);
    grid.ScreenToClient(&grown);
    EXPECT_EQ(grown.right, client.right);
}

TEST_F(EditEditor, GrownWidthIsThatOfItsTextInTheGridsFontAndFivePixels)
{
    const LargeGridFont font(grid);
    PressKey(VK_RETURN);
    TypeText(L"0123456789012345");
    CRect client;
    ::GetClientRect(Edit(), &client);
    EXPECT_EQ(client.Width(), font.WidthOf(L"0123456789012345") + 5);
}

TEST_F(EditEditor, WholeTextIsInSightAsLongAsItGrows)
{
    PressKey(VK_RETURN);
    TypeText(L"0123456789012345");
    const auto first = ::SendMessageW(Edit(), EM_POSFROMCHAR, 0, 0);
    EXPECT_GE(static_cast<short>(LOWORD(first)), 0);
    EXPECT_EQ(::SendMessageW(Edit(), EM_GETSEL, 0, 0), MAKELONG(16, 16));
}

TEST_F(EditEditor, ShorterTextLeavesItsWidth)
{
    PressKey(VK_RETURN);
    TypeText(L"0123456789012345");
    CRect wide;
    ::GetWindowRect(Edit(), &wide);
    for (int character = 0; character < 10; ++character)
        TypeText(L"\b");
    CRect after;
    ::GetWindowRect(Edit(), &after);
    EXPECT_EQ(after, wide);
}

TEST_F(EditEditor, RowDeletedUnderItClosesItWithoutCommit)
{
    PressKey(VK_RETURN);
    TypeText(L"new");
    const HWND edit = Edit();
    grid.DeleteRow(a);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_FALSE(::IsWindow(edit));
    EXPECT_EQ(window.TakeTold(), (Told{"1117 A 1 \"A1\""}));
    EXPECT_EQ(grid.FocusKey(), b);
}

TEST_F(EditEditor, ParentMayDeleteTheRowWhenItEnds)
{
    window.onTold = [&](const NMFLISTCTRL& record) {
        if (record.hdr.code == kGridEndEdit)
            grid.DeleteRow(record.rowKey);
    };
    PressKey(VK_RETURN);
    PressKey(VK_RETURN);
    EXPECT_EQ(window.ShownNames(), "B");
    EXPECT_FALSE(grid.HasEditor());
}

TEST_F(EditEditor, ParentMayDeleteTheRowWhenItIsAsked)
{
    window.onTold = [&](const NMFLISTCTRL& record) { grid.DeleteRow(record.rowKey); };
    PressKey(VK_RETURN);
    EXPECT_EQ(window.ShownNames(), "B");
    EXPECT_FALSE(grid.HasEditor());
}

TEST_F(EditEditor, ReportOfAnUnknownRowIsIgnored)
{
    NMFLISTCTRL report;
    report.hdr = {grid.GetSafeHwnd(), GridWindow::kGridId, kGridEditClosed};
    report.rowKey = &report;
    report.column = 1;
    report.userData = VK_RETURN;
    grid.SendMessage(WM_NOTIFY, GridWindow::kGridId, reinterpret_cast<LPARAM>(&report));
    EXPECT_TRUE(window.TakeTold().empty());
}

TEST_F(EditEditor, WindowThatCannotTakeTheFocusKeepsNoEditor)
{
    window.EnableWindow(FALSE);
    EXPECT_FALSE(grid.OpenEditor());
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_EQ(::GetDlgItem(grid.GetSafeHwnd(), 301), nullptr);
    window.EnableWindow(TRUE);
}

TEST_F(EditEditor, GridDestroyedWhileItIsOpenTakesItAlong)
{
    PressKey(VK_RETURN);
    const HWND edit = Edit();
    grid.DestroyWindow();
    EXPECT_FALSE(::IsWindow(edit));
    EXPECT_EQ(window.TakeTold(), (Told{"1117 A 1 \"A1\""}));
}
