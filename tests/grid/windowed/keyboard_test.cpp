#include "grid_window.h"

namespace
{
using Told = std::vector<std::string>;

// T expanded with A and B, then U; the focus on T's first cell.
class GridKeys : public GridTest
{
protected:
    GridKeys()
    {
        grid.ExpandRow(t);
        grid.SetFocusCell(t, 0, true);
        window.TakeTold();
    }

    RowKey t = window.AddTop(L"T");
    RowKey a = window.AddChild(t, L"A");
    RowKey b = window.AddChild(t, L"B");
    RowKey u = window.AddTop(L"U");
};
}  // namespace

TEST_F(GridKeys, TabGoesToTheNextColumnAndTellsOnce)
{
    PressKey(VK_TAB);
    EXPECT_EQ(window.TakeTold(), (Told{"1116 T 1 \"T1\" expanded"}));
}

TEST_F(GridKeys, TabFromTheLastColumnGoesToTheNextRow)
{
    grid.SetFocusCell(t, 2, false);
    PressKey(VK_TAB);
    EXPECT_EQ(window.TakeTold(), (Told{"1116 A 0 \"A\""}));
}

TEST_F(GridKeys, TabOnTheLastCellOfTheLastRowDoesNothing)
{
    grid.SetFocusCell(u, 2, true);
    window.TakeTold();
    PressKey(VK_TAB);
    EXPECT_TRUE(window.TakeTold().empty());
    EXPECT_EQ(grid.FocusKey(), u);
    EXPECT_EQ(grid.FocusColumn(), 2);
}

TEST_F(GridKeys, ShiftTabFromColumnZeroGoesToTheLastColumnAbove)
{
    grid.SetFocusCell(a, 0, false);
    PressKeyWith(VK_SHIFT, VK_TAB);
    EXPECT_EQ(window.TakeTold(), (Told{"1116 T 2 \"T2\" expanded"}));
}

TEST_F(GridKeys, ArrowsMoveCellByCell)
{
    PressKey(VK_DOWN);
    PressKey(VK_RIGHT);
    PressKey(VK_UP);
    PressKey(VK_LEFT);
    EXPECT_EQ(window.TakeTold(),
              (Told{"1116 A 0 \"A\"", "1116 A 1 \"A1\"", "1116 T 1 \"T1\" expanded", "1116 T 0 \"T\" expanded"}));
}

TEST_F(GridKeys, HomeAndEndGoToTheOutermostColumns)
{
    PressKey(VK_END);
    PressKey(VK_HOME);
    EXPECT_EQ(window.TakeTold(), (Told{"1116 T 2 \"T2\" expanded", "1116 T 0 \"T\" expanded"}));
}

TEST_F(GridKeys, EndScrollsItsCellIn)
{
    grid.InsertFColumn(3, L"wide", LVCFMT_LEFT, 900, false);
    grid.InsertFColumn(4, L"last", LVCFMT_LEFT, 100, false);
    PressKey(VK_END);
    CRect client;
    grid.GetClientRect(&client);
    EXPECT_LE(grid.GetCellRect(t, 4).right, client.right);
}

TEST_F(GridKeys, HomeOnTheFirstColumnStillMakesTheRowVisible)
{
    for (int row = 0; row < 60; ++row)
        window.AddTop(L"V");
    grid.EnsureVisible(grid.GetItemCount() - 1, FALSE);
    ASSERT_GT(grid.GetTopIndex(), 0);
    PressKey(VK_HOME);
    EXPECT_EQ(grid.GetTopIndex(), 0);
}

// The page is as high as the client area has whole rows; a step leaves two of them.
TEST_F(GridKeys, PageKeysMoveByTheVisibleRowsLessTwo)
{
    for (int row = 0; row < 100; ++row)
        window.AddTop(L"V");
    const int step = grid.GetCountPerPage() - 2;
    ASSERT_GT(step, 4);
    PressKey(VK_NEXT);
    EXPECT_EQ(grid.FocusRow()->ListIndex(), step);
    PressKey(VK_NEXT);
    EXPECT_EQ(grid.FocusRow()->ListIndex(), 2 * step);
    PressKey(VK_PRIOR);
    EXPECT_EQ(grid.FocusRow()->ListIndex(), step);
    PressKey(VK_UP);
    PressKey(VK_PRIOR);
    EXPECT_EQ(grid.FocusRow()->ListIndex(), 0);
}

TEST_F(GridKeys, PageDownNearTheEndGoesToTheLastRow)
{
    PressKey(VK_NEXT);
    EXPECT_EQ(grid.FocusKey(), u);
    PressKey(VK_NEXT);
    EXPECT_EQ(window.TakeTold(), (Told{"1116 U 0 \"U\""}));
}

TEST_F(GridKeys, NumericMinusCollapsesAndPlusExpands)
{
    PressKey(VK_SUBTRACT);
    EXPECT_EQ(window.ShownNames(), "T U");
    PressKey(VK_SUBTRACT);
    PressKey(VK_ADD);
    EXPECT_EQ(window.ShownNames(), "T A B U");
    PressKey(VK_ADD);
    EXPECT_EQ(window.TakeTold(), (Told{"1115 T 0 \"T\"", "1114 T 0 \"T\" expanded"}));
}

TEST_F(GridKeys, SpaceTogglesTheFocusCellsCheckBoxSilently)
{
    grid.SetCellKind(t, 0, kCellCheckBox);
    PressKey(VK_SPACE);
    EXPECT_EQ(grid.FindRow(t)->Item(0).checked, 1);
    PressKey(VK_SPACE);
    EXPECT_EQ(grid.FindRow(t)->Item(0).checked, 0);
    EXPECT_TRUE(window.TakeTold().empty());
}

TEST_F(GridKeys, SpaceOnACellWithoutCheckBoxDoesNothing)
{
    PressKey(VK_SPACE);
    EXPECT_EQ(grid.FindRow(t)->Item(0).checked, 0);
}

TEST_F(GridKeys, EnterAndF2OpenTheEditor)
{
    grid.SetCellKind(t, 1, kCellEdit);
    grid.SetFocusCell(t, 1, false);
    for (const UINT key : {VK_RETURN, VK_F2})
    {
        SCOPED_TRACE(key);
        PressKey(key);
        EXPECT_NE(Editor(301), nullptr);
        PressKey(VK_ESCAPE);
    }
}

TEST_F(GridKeys, EnterOnATextCellOpensNothing)
{
    PressKey(VK_RETURN);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_TRUE(window.TakeTold().empty());
}

TEST_F(GridKeys, TypingOnAnEditCellReplacesItsText)
{
    grid.SetCellKind(t, 1, kCellEdit);
    grid.SetFocusCell(t, 1, true);
    window.TakeTold();
    TypeText(L"7");
    ASSERT_NE(Editor(301), nullptr);
    CString text;
    CWnd::FromHandle(Editor(301))->GetWindowText(text);
    EXPECT_EQ(text, L"7");
    EXPECT_EQ(window.TakeTold(), (Told{"1117 T 1 \"T1\" expanded"}));
}

TEST_F(GridKeys, TypingPunctuationOpensNoEditor)
{
    grid.SetCellKind(t, 1, kCellEdit);
    grid.SetFocusCell(t, 1, true);
    TypeText(L"-");
    TypeText(L" ");
    EXPECT_FALSE(grid.HasEditor());
}

TEST_F(GridKeys, TypingOnATextCellOpensNoEditor)
{
    TypeText(L"7");
    EXPECT_FALSE(grid.HasEditor());
}

TEST(GridCharacters, ThatOpenNoEditorReachTheListControl)
{
    class ListenedGrid : public CFListCtrl
    {
    public:
        std::wstring reached;

    protected:
        LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_CHAR)
                reached += static_cast<wchar_t>(wParam);
            return CFListCtrl::DefWindowProc(message, wParam, lParam);
        }
    };
    GridWindow window;
    ListenedGrid grid;
    grid.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 100, 100), &window, 1001);
    grid.SetRowMode(false);
    for (const int column : {0, 1})
        grid.InsertFColumn(column, L"", LVCFMT_LEFT, 40, false);
    const RowKey row = grid.AddTopRow(grid.CreateRow(L"A", -1));
    grid.SetCellKind(row, 1, kCellEdit);
    grid.SetFocus();

    grid.SetFocusCell(row, 0, false);
    TypeText(L"U7-");
    EXPECT_EQ(grid.reached, L"U7-") << "on a text cell";
    grid.reached.clear();
    grid.SetFocusCell(row, 1, false);
    TypeText(L"-, ");
    EXPECT_EQ(grid.reached, L"-, ") << "on an edit cell";
    grid.reached.clear();
    TypeText(L"U");
    EXPECT_TRUE(grid.HasEditor());
    EXPECT_EQ(grid.reached, L"") << "by opening an editor";
    grid.SetRowMode(true);
    TypeText(L"U-");
    EXPECT_EQ(grid.reached, L"U-") << "by rows";
    grid.DestroyWindow();
}

TEST_F(GridKeys, MoveOntoAButtonCellOpensItsEditorAtOnce)
{
    grid.SetCellKind(a, 0, kCellButton);
    PressKey(VK_DOWN);
    EXPECT_NE(Editor(303), nullptr);
    PressKey(VK_DOWN);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_EQ(grid.FocusKey(), b);
}

// The list control takes End-like keys itself and would move its own focus; keys it must get are outside 9 to 113.
TEST_F(GridKeys, KeysOutsideTheRangeReachTheListControl)
{
    class KeyParent : public GridWindow
    {
    public:
        std::vector<int> passedOn;

    protected:
        BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
        {
            if (reinterpret_cast<NMHDR*>(lParam)->code == LVN_KEYDOWN)
                passedOn.push_back(reinterpret_cast<NMLVKEYDOWN*>(lParam)->wVKey);
            return GridWindow::OnNotify(wParam, lParam, result);
        }
    };
    KeyParent parent;
    parent.grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, true);
    parent.AddTop(L"A");
    parent.grid.SetFocus();
    for (const UINT key : {VK_BACK, VK_TAB, VK_F2, VK_F3})
        PressKey(key);
    EXPECT_EQ(parent.passedOn, (std::vector<int>{VK_BACK, VK_F3}));
}

TEST_F(GridKeys, FirstKeyWithoutFocusGoesToTheFirstCell)
{
    grid.SetFocusCell(nullptr, -1, true);
    window.TakeTold();
    PressKey(VK_DOWN);
    EXPECT_EQ(window.TakeTold(), (Told{"1116 T 0 \"T\" expanded"}));
}

TEST_F(GridKeys, KeysOfACellWithoutFocusDoNothing)
{
    for (const bool rowMode : {false, true})
    {
        SCOPED_TRACE(rowMode);
        grid.SetRowMode(rowMode);
        grid.SetFocusCell(nullptr, -1, true);
        window.TakeTold();
        for (const UINT key : {VK_SPACE, VK_RETURN, VK_F2, VK_ADD, VK_SUBTRACT})
            PressKey(key);
        TypeText(L"7");
        EXPECT_TRUE(window.TakeTold().empty());
        EXPECT_FALSE(grid.HasEditor());
        EXPECT_EQ(grid.FocusRow(), nullptr);
    }
}

TEST_F(GridKeys, RowModeMovesByRowsAlone)
{
    grid.SetRowMode(true);
    grid.SetFocusRow(t, true);
    window.TakeTold();
    for (const UINT key : {VK_TAB, VK_HOME, VK_END, VK_LEFT, VK_RIGHT, VK_RETURN, VK_F2})
        PressKey(key);
    TypeText(L"7");
    EXPECT_TRUE(window.TakeTold().empty());
    EXPECT_FALSE(grid.HasEditor());
    PressKey(VK_DOWN);
    EXPECT_EQ(window.TakeTold(), (Told{"1116 A -1 \"\""}));
}

TEST_F(GridKeys, RowModeColumnKeysWithoutFocusRowDoNothing)
{
    grid.SetRowMode(true);
    grid.SetFocusCell(nullptr, -1, true);
    window.TakeTold();
    for (const UINT key : {VK_TAB, VK_HOME, VK_END, VK_LEFT, VK_RIGHT})
        PressKey(key);
    PressKeyWith(VK_SHIFT, VK_TAB);
    EXPECT_TRUE(window.TakeTold().empty());
    EXPECT_EQ(grid.FocusRow(), nullptr);
}

TEST_F(GridKeys, RowModeKeysToTheNeighbouringColumnDoNotScrollBack)
{
    for (int row = 0; row < 60; ++row)
        window.AddTop(L"V");
    grid.SetRowMode(true);
    grid.SetFocusRow(t, true);
    grid.EnsureVisible(grid.GetItemCount() - 1, FALSE);
    window.TakeTold();
    const int top = grid.GetTopIndex();
    ASSERT_GT(top, 0);
    for (const UINT key : {VK_TAB, VK_LEFT, VK_RIGHT})
        PressKey(key);
    PressKeyWith(VK_SHIFT, VK_TAB);
    EXPECT_EQ(grid.GetTopIndex(), top);
    EXPECT_TRUE(window.TakeTold().empty());
}

TEST_F(GridKeys, RowModeHomeAndEndMakeTheRowVisible)
{
    for (int row = 0; row < 60; ++row)
        window.AddTop(L"V");
    grid.SetRowMode(true);
    grid.SetFocusRow(t, true);
    window.TakeTold();
    for (const UINT key : {VK_HOME, VK_END})
    {
        SCOPED_TRACE(key);
        grid.EnsureVisible(grid.GetItemCount() - 1, FALSE);
        ASSERT_GT(grid.GetTopIndex(), 0);
        PressKey(key);
        EXPECT_EQ(grid.GetTopIndex(), 0);
    }
    EXPECT_TRUE(window.TakeTold().empty());
}

TEST_F(GridKeys, RowModeSpaceTogglesTheCheckBoxOfColumnZero)
{
    grid.SetRowMode(true);
    PressKey(VK_SPACE);
    EXPECT_EQ(grid.FindRow(t)->Item(0).checked, 0);
    grid.SetCellKind(t, 0, kCellCheckBox);
    PressKey(VK_SPACE);
    EXPECT_EQ(grid.FindRow(t)->Item(0).checked, 1);
}
