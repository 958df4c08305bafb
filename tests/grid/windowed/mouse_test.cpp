#include "grid_window.h"
#include "tests/support/framework_printers.h"

#include <algorithm>

namespace
{
using Told = std::vector<std::string>;

// T collapsed with A below it, then U. The expand image of T covers 5 to 25.
class GridMouse : public GridTest
{
protected:
    CPoint At(RowKey key, int x) const { return CPoint(x, grid.GetCellRect(key, 0).CenterPoint().y); }

    RowKey t = window.AddTop(L"T");
    RowKey a = window.AddChild(t, L"A");
    RowKey u = window.AddTop(L"U");
};

class MenuParent : public GridWindow, public GridEditMenuParent
{
public:
    std::vector<std::pair<CPoint, int>> menus;
    RowKey focusAtMenu = nullptr;
    bool hadKeyboard = false;

    void TrackEditMenu(CPoint screenPoint, int gridId) override
    {
        menus.emplace_back(screenPoint, gridId);
        focusAtMenu = grid.FocusKey();
        hadKeyboard = ::GetFocus() == grid.GetSafeHwnd();
    }
};

class SelectionParent : public GridWindow, public GridSelectionParent
{
public:
    std::vector<std::pair<int, RowKey>> selections;

    void OnSelectionChanged(int gridId, void* rowKey) override { selections.emplace_back(gridId, rowKey); }
};
}  // namespace

TEST_F(GridMouse, ClickMakesTheCellTheFocusCellAndTakesTheKeyboard)
{
    ::SetFocus(window.GetSafeHwnd());
    LeftClick(grid, CellCentre(u, 2));
    EXPECT_EQ(window.TakeTold(), (Told{"1116 U 2 \"U2\""}));
    EXPECT_EQ(::GetFocus(), grid.GetSafeHwnd());
}

TEST_F(GridMouse, ClickOutsideTheRowsDoesNothing)
{
    ::SetFocus(window.GetSafeHwnd());
    LeftClick(grid, CPoint(10, 250));
    EXPECT_TRUE(window.TakeTold().empty());
    EXPECT_EQ(::GetFocus(), window.GetSafeHwnd());
}

TEST_F(GridMouse, ClickOnTheExpandImageExpandsAndCollapses)
{
    LeftClick(grid, At(t, 5));
    EXPECT_EQ(window.ShownNames(), "T A U");
    LeftClick(grid, At(t, 24));
    EXPECT_EQ(window.ShownNames(), "T U");
    EXPECT_EQ(window.TakeTold(), (Told{"1114 T -1 \"\" expanded", "1115 T -1 \"\""}));
    EXPECT_EQ(grid.FocusRow(), nullptr);
}

TEST_F(GridMouse, ClickBesideTheExpandImageSelects)
{
    LeftClick(grid, At(t, 25));
    LeftClick(grid, At(t, 4));
    EXPECT_EQ(window.TakeTold(), (Told{"1116 T 0 \"T\""}));
}

TEST_F(GridMouse, RowWithoutChildrenHasNoExpandImage)
{
    LeftClick(grid, At(u, 10));
    EXPECT_EQ(window.TakeTold(), (Told{"1116 U 0 \"U\""}));
}

// Column 1 begins at 130: its check box covers 130 to 150.
TEST_F(GridMouse, FirstClickInACheckBoxOnlySelects)
{
    grid.SetCellKind(u, 1, kCellCheckBox);
    LeftClick(grid, At(u, 135));
    EXPECT_EQ(grid.FindRow(u)->Item(1).checked, 0);
    EXPECT_EQ(grid.FocusColumn(), 1);
}

TEST_F(GridMouse, ClickInTheCheckBoxOfTheFocusCellToggles)
{
    grid.SetCellKind(u, 1, kCellCheckBox);
    grid.SetFocusCell(u, 1, true);
    window.TakeTold();
    LeftClick(grid, At(u, 149));
    EXPECT_EQ(grid.FindRow(u)->Item(1).checked, 1);
    LeftClick(grid, At(u, 130));
    EXPECT_EQ(grid.FindRow(u)->Item(1).checked, 0);
    LeftClick(grid, At(u, 150));
    EXPECT_EQ(grid.FindRow(u)->Item(1).checked, 0);
    EXPECT_TRUE(window.TakeTold().empty());
}

TEST_F(GridMouse, CheckBoxOfAnotherColumnOfTheFocusRowOnlySelects)
{
    grid.SetCellKind(u, 1, kCellCheckBox);
    grid.SetFocusCell(u, 2, false);
    LeftClick(grid, At(u, 135));
    EXPECT_EQ(grid.FindRow(u)->Item(1).checked, 0);
}

TEST_F(GridMouse, RowModeTogglesAnyCheckBoxOfTheFocusRow)
{
    grid.SetRowMode(true);
    grid.SetCellKind(u, 1, kCellCheckBox);
    LeftClick(grid, At(u, 135));
    EXPECT_EQ(grid.FindRow(u)->Item(1).checked, 0);
    LeftClick(grid, At(u, 135));
    EXPECT_EQ(grid.FindRow(u)->Item(1).checked, 1);
}

TEST_F(GridMouse, ClickMakesAPartlyVisibleRowVisible)
{
    for (int row = 0; row < 40; ++row)
        window.AddTop(L"V");
    const RowKey below = grid.RowAtIndex(grid.GetTopIndex() + grid.GetCountPerPage())->Key();
    CRect client;
    grid.GetClientRect(&client);
    const CRect before = grid.GetCellRect(below, 1);
    ASSERT_LT(before.top + 2, client.bottom);
    ASSERT_GT(before.bottom, client.bottom);
    LeftClick(grid, CPoint(before.left + 30, before.top + 1));
    EXPECT_EQ(grid.FocusKey(), below);
    EXPECT_LE(grid.GetCellRect(below, 1).bottom, client.bottom);
}

TEST_F(GridMouse, ClickFollowsTheShownOrderOfTheColumns)
{
    int order[] = {2, 1, 0};
    grid.SetColumnOrderArray(3, order);
    LeftClick(grid, At(u, 40));
    EXPECT_EQ(grid.FocusColumn(), 2);
}

TEST_F(GridMouse, DoubleClickOnATextCellIsTheParentsCommand)
{
    DoubleClick(grid, CellCentre(u, 2));
    EXPECT_EQ(window.TakeTold(), (Told{"1116 U 2 \"U2\"", "command 2"}));
}

TEST_F(GridMouse, DoubleClickOnAnEditCellOpensItsEditorInstead)
{
    grid.SetCellKind(u, 2, kCellEdit);
    DoubleClick(grid, CellCentre(u, 2));
    EXPECT_EQ(window.TakeTold(), (Told{"1116 U 2 \"U2\"", "1117 U 2 \"U2\""}));
    EXPECT_NE(Editor(301), nullptr);
}

TEST_F(GridMouse, DoubleClickOnAListCellAsksOnceAndOpensItsEditorInstead)
{
    window.entries = {{L"one", 1}};
    grid.SetCellKind(u, 2, kCellList);
    DoubleClick(grid, CellCentre(u, 2));
    EXPECT_EQ(window.TakeTold(), (Told{"1116 U 2 \"U2\"", "1121 U 2 \"U2\""}));
    EXPECT_NE(Editor(302), nullptr);
}

TEST_F(GridMouse, DoubleClickOnAButtonCellOpensItsEditorInstead)
{
    grid.SetCellKind(u, 2, kCellButton);
    DoubleClick(grid, CellCentre(u, 2));
    EXPECT_EQ(window.TakeTold(), (Told{"1116 U 2 \"U2\""}));
    EXPECT_NE(Editor(303), nullptr);
}

TEST_F(GridMouse, DoubleClickOnAForbiddenEditCellIsTheParentsCommand)
{
    grid.SetCellKind(u, 2, kCellEdit);
    window.answers[kGridBeginEdit] = 1;
    DoubleClick(grid, CellCentre(u, 2));
    EXPECT_EQ(window.TakeTold(), (Told{"1116 U 2 \"U2\"", "1117 U 2 \"U2\"", "command 2"}));
}

TEST_F(GridMouse, DoubleClickInRowModeIsTheParentsCommand)
{
    grid.SetRowMode(true);
    grid.SetCellKind(u, 2, kCellEdit);
    DoubleClick(grid, CellCentre(u, 2));
    EXPECT_EQ(window.TakeTold(), (Told{"1116 U -1 \"\"", "command 2"}));
}

TEST_F(GridMouse, DoubleClickOnTheExpandImageTogglesTwiceWithoutCommand)
{
    DoubleClick(grid, At(t, 10));
    EXPECT_EQ(window.TakeTold(), (Told{"1114 T -1 \"\" expanded", "1115 T -1 \"\""}));
}

TEST_F(GridMouse, DoubleClickThatTogglesOpensNoEditorAndIsNoCommand)
{
    grid.SetCellKind(u, 1, kCellEdit | kCellCheckBox);
    DoubleClick(grid, At(u, 135));
    EXPECT_EQ(window.TakeTold(), (Told{"1116 U 1 \"U1\""}));
    EXPECT_EQ(grid.FindRow(u)->Item(1).checked, 1);
    EXPECT_FALSE(grid.HasEditor());
}

TEST_F(GridMouse, DoubleClickOutsideTheRowsDoesNothing)
{
    DoubleClick(grid, CPoint(10, 250));
    EXPECT_TRUE(window.TakeTold().empty());
}

TEST_F(GridMouse, ClickOnAListCellAsksForItsEntriesOnce)
{
    window.entries = {{L"one", 1}};
    grid.SetCellKind(u, 2, kCellList);
    LeftClick(grid, CellCentre(u, 2));
    EXPECT_EQ(window.TakeTold(), (Told{"1116 U 2 \"U2\"", "1121 U 2 \"U2\""}));
    EXPECT_NE(Editor(302), nullptr);
}

TEST_F(GridMouse, RightClickMakesTheRowTheFocusRow)
{
    ::SetFocus(window.GetSafeHwnd());
    RightClick(grid, CellCentre(u, 2));
    EXPECT_EQ(window.TakeTold(), (Told{"1116 U 0 \"U\""}));
    EXPECT_EQ(::GetFocus(), grid.GetSafeHwnd());
}

TEST_F(GridMouse, RightClickOutsideTheRowsIsLeftToTheListControl)
{
    std::vector<UINT> codes;
    window.onListTold = [&](UINT code) { codes.push_back(code); };
    RightClick(grid, CPoint(10, 250));
    EXPECT_NE(std::ranges::find(codes, NM_RCLICK), codes.end());
    EXPECT_TRUE(window.TakeTold().empty());
    EXPECT_EQ(grid.FocusRow(), nullptr);
}

TEST(GridMenuParent, IsAskedForTheMenuAtTheScreenPoint)
{
    MenuParent parent;
    parent.grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, true);
    parent.AddTop(L"A");
    const RowKey b = parent.AddTop(L"B");
    CPoint point = parent.grid.GetCellRect(b, 0).CenterPoint();
    RightClick(parent.grid, point);
    parent.grid.ClientToScreen(&point);
    ASSERT_EQ(parent.menus.size(), 1U);
    EXPECT_EQ(parent.menus[0].first, point);
    EXPECT_EQ(parent.menus[0].second, 1000);
    EXPECT_EQ(parent.focusAtMenu, b);
    EXPECT_TRUE(parent.hadKeyboard);
}

TEST(GridMenuParent, IsNotAskedForTheEmptyArea)
{
    MenuParent parent;
    parent.grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, true);
    parent.AddTop(L"A");
    RightClick(parent.grid, CPoint(10, 250));
    EXPECT_TRUE(parent.menus.empty());
}

TEST(GridMenuParent, IsAskedForTheMenuBelowTheFocusCellByTheMenuKey)
{
    MenuParent parent;
    parent.grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, true);
    parent.AddTop(L"A");
    const RowKey b = parent.AddTop(L"B");
    parent.grid.SetFocusRow(b, false);
    parent.grid.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(parent.grid.GetSafeHwnd()), -1);
    const CRect cell = parent.grid.GetCellRect(b, 0);
    CPoint below(cell.left, cell.bottom);
    parent.grid.ClientToScreen(&below);
    ASSERT_EQ(parent.menus.size(), 1U);
    EXPECT_EQ(parent.menus[0].first, below);
    EXPECT_EQ(parent.menus[0].second, 1000);
}

TEST(GridMenuParent, MenuKeyWithoutFocusRowIsForTheFirstRow)
{
    MenuParent parent;
    parent.grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, true);
    const RowKey a = parent.AddTop(L"A");
    parent.AddTop(L"B");
    parent.grid.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(parent.grid.GetSafeHwnd()), -1);
    EXPECT_EQ(parent.menus.size(), 1U);
    EXPECT_EQ(parent.focusAtMenu, a);
    EXPECT_EQ(parent.TakeTold(), (Told{"1116 A -1 \"\""}));
}

TEST(GridMenuParent, IsNotAskedByTheMenuKeyWithoutRows)
{
    MenuParent parent;
    parent.grid.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(parent.grid.GetSafeHwnd()), -1);
    EXPECT_TRUE(parent.menus.empty());
}

// An open list or button has the keyboard; the menu of its row can be had all the same.
TEST(GridMenuParent, IsAskedByTheMenuKeyInAnOpenButton)
{
    MenuParent parent;
    parent.grid.SetRowMode(false);
    parent.grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, true);
    const RowKey a = parent.AddTop(L"A");
    parent.grid.SetCellKind(a, 0, kCellButton);
    parent.grid.SetFocusCell(a, 0, false);
    ASSERT_TRUE(parent.grid.HasEditor());
    ::SendMessageW(::GetFocus(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(::GetFocus()), -1);
    EXPECT_EQ(parent.menus.size(), 1U);
    EXPECT_EQ(parent.focusAtMenu, a);
    EXPECT_FALSE(parent.grid.HasEditor());
}

TEST(GridMenuParent, IsAskedForTheMenuByARightClickOnAnOpenListOrButton)
{
    for (const std::int32_t kind : {kCellList, kCellButton})
        for (const int column : {0, 1})
        {
            SCOPED_TRACE(testing::Message() << "kind " << kind << ", column " << column);
            MenuParent parent;
            parent.entries = {{L"one", 1}};
            parent.grid.SetRowMode(false);
            parent.grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, true);
            parent.grid.InsertFColumn(1, L"", LVCFMT_LEFT, 100, false);
            parent.AddTop(L"A");
            const RowKey b = parent.AddTop(L"B");
            parent.grid.SetCellKind(b, column, kind);
            parent.grid.SetFocusCell(b, column, false);
            ASSERT_TRUE(parent.grid.HasEditor());
            const CRect cell = parent.grid.GetCellRect(b, column);
            CPoint point(cell.right - 5, cell.CenterPoint().y);
            RightClick(parent.grid, point);
            parent.grid.ClientToScreen(&point);
            ASSERT_EQ(parent.menus.size(), 1U);
            EXPECT_EQ(parent.menus[0].first, point);
            EXPECT_EQ(parent.menus[0].second, 1000);
            EXPECT_EQ(parent.focusAtMenu, b);
            EXPECT_TRUE(parent.hadKeyboard);
            EXPECT_FALSE(parent.grid.HasEditor());
        }
}

TEST(GridMenuParent, IsNotAskedByARightClickOnTheHeader)
{
    MenuParent parent;
    parent.grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, true);
    parent.AddTop(L"A");
    RightClick(parent.grid, CPoint(10, 3));
    EXPECT_TRUE(parent.menus.empty());
    EXPECT_EQ(parent.grid.FocusKey(), nullptr);
}

TEST(GridSelectionParent, IsToldOfEveryClickOnARow)
{
    SelectionParent parent;
    parent.grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, true);
    const RowKey a = parent.AddTop(L"A");
    const RowKey b = parent.AddTop(L"B");
    LeftClick(parent.grid, parent.grid.GetCellRect(b, 0).CenterPoint());
    LeftClick(parent.grid, parent.grid.GetCellRect(b, 0).CenterPoint());
    LeftClick(parent.grid, parent.grid.GetCellRect(a, 0).CenterPoint());
    LeftClick(parent.grid, CPoint(10, 250));
    EXPECT_EQ(parent.selections, (std::vector<std::pair<int, RowKey>>{{1000, b}, {1000, b}, {1000, a}}));
}

TEST(GridSelectionParent, IsNotToldOfAClickOnTheExpandImage)
{
    SelectionParent parent;
    parent.grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, true);
    const RowKey a = parent.AddTop(L"A");
    parent.AddChild(a, L"B");
    LeftClick(parent.grid, CPoint(10, parent.grid.GetCellRect(a, 0).CenterPoint().y));
    EXPECT_TRUE(parent.selections.empty());
    EXPECT_TRUE(parent.grid.FindRow(a)->IsExpanded());
}
