#include "grid_window.h"
#include "tests/support/framework_printers.h"

namespace
{
bool RaisesInvalidArgument(const std::function<void()>& operation)
{
    try
    {
        operation();
    }
    catch (CInvalidArgException* exception)
    {
        exception->Delete();
        return true;
    }
    return false;
}
}  // namespace

using GridColumns = GridTest;
using GridRows = GridTest;

TEST_F(GridColumns, InsertedColumnReachesTheHeaderWithHeadingFormatAndWidth)
{
    wchar_t heading[20] = {};
    LVCOLUMN column{};
    column.mask = LVCF_TEXT | LVCF_FMT | LVCF_WIDTH;
    column.pszText = heading;
    column.cchTextMax = 20;
    ASSERT_TRUE(grid.GetColumn(1, &column));
    EXPECT_STREQ(heading, L"centred");
    EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, LVCFMT_CENTER);
    EXPECT_EQ(column.cx, 80);
}

TEST_F(GridColumns, RecordKeepsFlagsAndReservedValues)
{
    const CFListCtrl::CFListColumn& tree = grid.Column(0);
    EXPECT_EQ(tree.tree, 1);
    EXPECT_EQ(tree.imageSpace, 0);
    EXPECT_EQ(tree.centred, 0);
    EXPECT_EQ(tree.reserved, 0);
    EXPECT_EQ(tree.reservedIndex, -1);
    EXPECT_EQ(grid.Column(1).centred, 1);
    EXPECT_EQ(grid.Column(1).tree, 0);
}

TEST_F(GridColumns, LastColumnInsertedWithTheTreeFlagIsTheTreeColumn)
{
    EXPECT_EQ(grid.TreeColumn(), 0);
    grid.InsertFColumn(2, L"new tree", LVCFMT_LEFT, 50, true);
    EXPECT_EQ(grid.TreeColumn(), 2);
    EXPECT_EQ(grid.Column(0).tree, 0);
}

TEST_F(GridColumns, TreeColumnMovesAlongWhenAColumnIsInsertedBeforeIt)
{
    grid.InsertFColumn(0, L"first", LVCFMT_LEFT, 50, false);
    EXPECT_EQ(grid.TreeColumn(), 1);
}

TEST_F(GridColumns, ExistingRowsGetANewEmptyCellAtTheIndex)
{
    const RowKey top = window.AddTop(L"A");
    const RowKey hidden = window.AddChild(top, L"B");
    grid.InsertFColumn(1, L"new", LVCFMT_LEFT, 50, false);
    for (const RowKey key : {top, hidden})
    {
        const CFListCtrl::CFListItem& cell = grid.FindRow(key)->Item(1);
        EXPECT_EQ(cell.text, L"");
        EXPECT_EQ(cell.image, -1);
        EXPECT_EQ(cell.kind, kCellText);
    }
    EXPECT_EQ(grid.FindRow(top)->Text(2), L"A1");
}

TEST_F(GridColumns, TextsOfShownRowsStayWithTheirColumns)
{
    window.AddTop(L"A");
    grid.InsertFColumn(0, L"new", LVCFMT_LEFT, 50, false);
    EXPECT_EQ(grid.GetItemText(0, 0), L"");
    EXPECT_EQ(grid.GetItemText(0, 1), L"A");
    EXPECT_EQ(grid.GetItemText(0, 2), L"A1");
    EXPECT_EQ(grid.GetItemText(0, 3), L"A2");
}

TEST_F(GridColumns, FocusStaysOnItsCell)
{
    const RowKey key = window.AddTop(L"A");
    grid.SetFocusCell(key, 1, false);
    grid.InsertFColumn(1, L"new", LVCFMT_LEFT, 50, false);
    EXPECT_EQ(grid.FocusColumn(), 2);
}

TEST_F(GridColumns, IndexOutsideRaisesInvalidArgument)
{
    EXPECT_TRUE(RaisesInvalidArgument([&] { grid.InsertFColumn(4, L"", LVCFMT_LEFT, 10, false); }));
    EXPECT_TRUE(RaisesInvalidArgument([&] { grid.InsertFColumn(-1, L"", LVCFMT_LEFT, 10, false); }));
    EXPECT_TRUE(RaisesInvalidArgument([&] { grid.Column(3); }));
    EXPECT_EQ(grid.ColumnCount(), 3);
}

TEST_F(GridRows, NewRowHasOneCellForEachColumn)
{
    int data = 0;
    const RowKey key = grid.AddTopRow(grid.CreateRow(L"name", 2, &data));
    const CFListCtrl::CFListRow* const row = grid.FindRow(key);
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->ItemCount(), 3);
    EXPECT_EQ(row->Text(0), L"name");
    EXPECT_EQ(row->Image(0), 2);
    EXPECT_EQ(row->UserData(), &data);
    EXPECT_EQ(row->Level(), 0);
    EXPECT_FALSE(row->IsExpanded());
    EXPECT_FALSE(row->IsBold());
    EXPECT_EQ(&row->Grid(), &grid);
}

TEST_F(GridRows, NewCellHasTheInitialValues)
{
    const RowKey key = grid.AddTopRow(grid.CreateRow(L"name", 2));
    const CFListCtrl::CFListItem& cell = grid.FindRow(key)->Item(1);
    EXPECT_EQ(cell.text, L"");
    EXPECT_EQ(cell.image, -1);
    EXPECT_EQ(cell.kind, kCellText);
    EXPECT_EQ(cell.value, 0);
    EXPECT_EQ(cell.buttonShown, 0);
    EXPECT_EQ(cell.checkedImage, -1);
    EXPECT_EQ(cell.uncheckedImage, -1);
    EXPECT_EQ(cell.checked, 0);
}

TEST_F(GridRows, IntegerKeptWithACellIsNotItsImage)
{
    const RowKey key = grid.AddTopRow(grid.CreateRow(L"name", 2));
    grid.FindRow(key)->Item(0).value = -1;
    EXPECT_EQ(grid.FindRow(key)->Image(0), 2);
    EXPECT_EQ(grid.FindRow(key)->Item(0).value, -1);
}

TEST_F(GridRows, UserDataKeepsAWholePointer)
{
    void* const wide = reinterpret_cast<void*>(static_cast<std::uintptr_t>(0x123456789ABCDEF0));
    const RowKey key = grid.AddTopRow(grid.CreateRow(L"name", -1, wide));
    EXPECT_EQ(grid.FindRow(key)->UserData(), wide);
}

TEST_F(GridRows, MissingCellRaisesInvalidArgument)
{
    const RowKey key = window.AddTop(L"A");
    EXPECT_TRUE(RaisesInvalidArgument([&] { grid.FindRow(key)->Item(3); }));
    EXPECT_TRUE(RaisesInvalidArgument([&] { grid.FindRow(key)->Item(-1); }));
    EXPECT_TRUE(RaisesInvalidArgument([&] { grid.SetCellText(key, 3, L"x"); }));
    EXPECT_TRUE(RaisesInvalidArgument([&] { grid.SetFocusCell(key, 3, false); }));
}

TEST_F(GridRows, KeysAreUniqueOverAllGrids)
{
    GridWindow other;
    other.grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, false);
    const RowKey here = window.AddTop(L"A");
    const RowKey there = other.AddTop(L"A");
    EXPECT_NE(here, there);
    EXPECT_EQ(grid.FindRow(there), nullptr);
}

TEST_F(GridRows, KeyOfADeletedRowIsNotUsedAgain)
{
    const RowKey former = window.AddTop(L"A");
    grid.DeleteRow(former);
    for (int row = 0; row < 100; ++row)
        EXPECT_NE(window.AddTop(L"B"), former);
}

TEST_F(GridRows, ChildrenAreLinkedInTheirOrder)
{
    const RowKey top = window.AddTop(L"T");
    window.AddChild(top, L"A");
    window.AddChild(top, L"B");
    window.AddChild(top, L"C");
    const CFListCtrl::CFListRow& row = *grid.FindRow(top);
    ASSERT_EQ(row.ChildCount(), 3);
    const CFListCtrl::CFListRow* const middle = row.FirstChild()->NextSibling();
    EXPECT_EQ(middle->Text(0), L"B");
    EXPECT_EQ(middle->Parent(), &row);
    EXPECT_EQ(middle->Level(), 1);
    EXPECT_EQ(middle->PreviousSibling(), row.FirstChild());
    EXPECT_EQ(middle->NextSibling(), row.LastChild());
    EXPECT_EQ(row.FirstChild()->PreviousSibling(), nullptr);
    EXPECT_EQ(row.LastChild()->NextSibling(), nullptr);
}

TEST_F(GridRows, RowCountCountsTheModelWhateverIsShown)
{
    const RowKey top = window.AddTop(L"T");
    const RowKey child = window.AddChild(top, L"A");
    window.AddChild(child, L"B");
    window.AddTop(L"U");
    EXPECT_EQ(grid.RowCount(), 4);
    EXPECT_EQ(grid.GetItemCount(), 2);
    grid.ExpandRow(top);
    EXPECT_EQ(grid.RowCount(), 4);
}

TEST_F(GridRows, ShownRowHasItsTextsAndItselfInTheList)
{
    const RowKey key = window.AddTop(L"A");
    EXPECT_EQ(grid.GetItemText(0, 0), L"A");
    EXPECT_EQ(grid.GetItemText(0, 1), L"A1");
    EXPECT_EQ(grid.GetItemText(0, 2), L"A2");
    EXPECT_EQ(grid.RowAtIndex(0), grid.FindRow(key));
}

TEST_F(GridRows, TextOfAHiddenRowAppearsWhenItIsShown)
{
    const RowKey top = window.AddTop(L"T");
    const RowKey child = window.AddChild(top, L"A");
    grid.SetCellText(child, 2, L"later");
    EXPECT_EQ(grid.FindRow(child)->Text(2), L"later");
    grid.ExpandRow(top);
    EXPECT_EQ(grid.GetItemText(1, 2), L"later");
}

TEST_F(GridRows, EmptyTextReplacesTheOneInTheList)
{
    const RowKey key = window.AddTop(L"A");
    grid.SetCellText(key, 1, L"");
    EXPECT_EQ(grid.GetItemText(0, 1), L"");
}

TEST_F(GridRows, RowMadeBeforeAColumnWasInsertedGetsItsCellWhenAdded)
{
    CFListCtrl::CFListRow* const row = grid.CreateRow(L"A", -1);
    grid.InsertFColumn(3, L"new", LVCFMT_LEFT, 50, false);
    EXPECT_EQ(grid.FindRow(grid.AddTopRow(row))->ItemCount(), 4);
}

TEST_F(GridRows, RowMadeBeforeAColumnWasInsertedHasItsNewCellWhereTheColumnCame)
{
    CFListCtrl::CFListRow* const row = grid.CreateRow(L"A", -1);
    row->Item(1).text = L"A1";
    grid.InsertFColumn(1, L"new", LVCFMT_LEFT, 50, false);
    grid.InsertFColumn(0, L"new", LVCFMT_LEFT, 50, false);
    grid.AddTopRow(row);
    const wchar_t* const texts[] = {L"", L"A", L"", L"A1", L""};
    ASSERT_EQ(row->ItemCount(), 5);
    for (int column = 0; column < 5; ++column)
        EXPECT_STREQ(row->Text(column), texts[column]) << column;
}

TEST_F(GridRows, CellsAreInsertedAtAnyIndexWithTextAndKind)
{
    CFListCtrl::CFListRow& row = *grid.FindRow(window.AddTop(L"A"));
    const CFListCtrl::CFListItem& first = row.InsertItem(0, L"first", kCellEdit);
    EXPECT_EQ(&first, &row.Item(0));
    EXPECT_EQ(row.Text(0), L"first");
    EXPECT_EQ(row.Item(0).kind, kCellEdit);
    EXPECT_EQ(row.Item(0).image, -1);
    row.InsertItem(4, L"last", kCellButton | kCellCheckBox);
    EXPECT_EQ(row.Text(1), L"A");
    EXPECT_EQ(row.Text(3), L"A2");
    EXPECT_EQ(row.Text(4), L"last");
    EXPECT_EQ(row.Item(4).kind, kCellButton | kCellCheckBox);
    EXPECT_EQ(row.ItemCount(), 5);
}

TEST_F(GridRows, CellInsertedBehindAGapRaisesInvalidArgument)
{
    CFListCtrl::CFListRow& row = *grid.FindRow(window.AddTop(L"A"));
    EXPECT_TRUE(RaisesInvalidArgument([&] { row.InsertItem(-1, L"", kCellText); }));
    EXPECT_TRUE(RaisesInvalidArgument([&] { row.InsertItem(4, L"", kCellText); }));
    EXPECT_EQ(row.ItemCount(), 3);
}

TEST_F(GridRows, ChildOfAnUnknownParentIsNotAdded)
{
    EXPECT_EQ(grid.AddChildRow(nullptr, grid.CreateRow(L"A", -1)), nullptr);
    EXPECT_EQ(grid.RowCount(), 0);
}

TEST_F(GridRows, CellKindLeavesTheCheckBoxOut)
{
    const RowKey key = window.AddTop(L"A");
    grid.SetCellKind(key, 1, kCellEdit | kCellCheckBox);
    EXPECT_EQ(grid.CellKind(key, 1), kCellEdit);
    EXPECT_EQ(grid.CellKind(key, 2), kCellText);
    EXPECT_EQ(grid.CellKind(nullptr, 2), kCellText);
}

TEST_F(GridRows, CellsOfAnUnknownRowAreIgnored)
{
    const RowKey key = window.AddTop(L"A");
    grid.DeleteRow(key);
    grid.SetCellText(key, 0, L"x");
    grid.SetCellImage(key, 0, 1);
    grid.SetCellChecked(key, 0, true);
    grid.SetFocusCell(key, 0, true);
    EXPECT_TRUE(grid.GetCellRect(key, 0).IsRectEmpty());
    EXPECT_EQ(grid.FocusKey(), nullptr);
    EXPECT_TRUE(window.TakeTold().empty());
}

TEST(GridControl, BeginsInRowModeWithoutFocus)
{
    const CFListCtrl grid;
    EXPECT_TRUE(grid.RowMode());
    EXPECT_EQ(grid.FocusColumn(), -1);
    EXPECT_EQ(grid.FocusRow(), nullptr);
}

TEST(GridControl, SelectsFullRowsWhenCreated)
{
    GridWindow window;
    EXPECT_TRUE(window.grid.GetExtendedStyle() & LVS_EX_FULLROWSELECT);
}

TEST(GridControl, RowsGoWithTheWindow)
{
    GridWindow window;
    window.grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, true);
    const RowKey top = window.AddTop(L"A");
    window.AddChild(top, L"B");
    window.grid.DestroyWindow();
    EXPECT_EQ(window.grid.RowCount(), 0);
    EXPECT_EQ(window.grid.FirstTopRow(), nullptr);
}

TEST(GridControl, ColumnsGoWithTheWindow)
{
    GridWindow window;
    window.grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, true);
    window.grid.InsertFColumn(1, L"", LVCFMT_LEFT, 100, false);
    window.grid.DestroyWindow();
    EXPECT_EQ(window.grid.ColumnCount(), 0);
    EXPECT_EQ(window.grid.TreeColumn(), -1);
}
