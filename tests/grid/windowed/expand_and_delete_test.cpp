#include "grid_window.h"

#include <random>

namespace
{
// T with A (A1, A2) and B below it, then U.
class GridTree : public GridTest
{
protected:
    RowKey t = window.AddTop(L"T");
    RowKey a = window.AddChild(t, L"A");
    RowKey aOne = window.AddChild(a, L"Ax");
    RowKey aTwo = window.AddChild(a, L"Ay");
    RowKey b = window.AddChild(t, L"B");
    RowKey u = window.AddTop(L"U");
};
using GridDeletion = GridTree;
using Told = std::vector<std::string>;
}  // namespace

TEST_F(GridTree, ChildrenAreHiddenUntilTheirParentIsExpanded)
{
    EXPECT_EQ(window.ShownNames(), "T U");
    EXPECT_EQ(grid.FindRow(a)->ListIndex(), -1);
}

TEST_F(GridTree, ExpandingShowsTheChildrenAlone)
{
    grid.ExpandRow(t);
    EXPECT_EQ(window.ShownNames(), "T A B U");
    EXPECT_EQ(window.TakeTold(), (Told{"1114 T -1 \"\" expanded"}));
}

TEST_F(GridTree, ExpandingRenumbersAllRowsBelow)
{
    grid.ExpandRow(t);
    EXPECT_EQ(grid.FindRow(u)->ListIndex(), 3);
    grid.ExpandRow(a);
    EXPECT_EQ(window.ShownNames(), "T A Ax Ay B U");
    EXPECT_EQ(grid.FindRow(u)->ListIndex(), 5);
    EXPECT_TRUE(window.IndicesAreExact());
}

namespace
{
// As a list view does that has no memory left.
LRESULT CALLBACK RefuseTheSecondRow(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR count)
{
    if (message == LVM_INSERTITEMW && ++*reinterpret_cast<int*>(count) == 2)
        return -1;
    return ::DefSubclassProc(list, message, wParam, lParam);
}
}  // namespace

TEST_F(GridTree, RowStaysCollapsedWhenTheListRefusesOneOfItsChildren)
{
    int count = 0;
    ::SetWindowSubclass(grid.GetSafeHwnd(), &RefuseTheSecondRow, 1, reinterpret_cast<DWORD_PTR>(&count));
    bool refused = false;
    try
    {
        grid.ExpandRow(t);
    }
    catch (CMemoryException* exception)
    {
        exception->Delete();
        refused = true;
    }
    ::RemoveWindowSubclass(grid.GetSafeHwnd(), &RefuseTheSecondRow, 1);
    EXPECT_TRUE(refused);
    EXPECT_EQ(window.ShownNames(), "T U");
    EXPECT_FALSE(grid.FindRow(t)->IsExpanded());
    EXPECT_TRUE(window.IndicesAreExact());
    grid.ExpandRow(t);
    EXPECT_EQ(window.ShownNames(), "T A B U");
    grid.DeleteRow(a);
    EXPECT_EQ(window.ShownNames(), "T B U");
    EXPECT_TRUE(window.IndicesAreExact());
}

TEST_F(GridTree, ExpandedRowIsNotExpandedAgain)
{
    grid.ExpandRow(t);
    window.TakeTold();
    grid.ExpandRow(t);
    EXPECT_TRUE(window.TakeTold().empty());
    EXPECT_EQ(window.ShownNames(), "T A B U");
}

TEST_F(GridTree, HiddenRowIsNotExpanded)
{
    grid.ExpandRow(a);
    EXPECT_TRUE(window.TakeTold().empty());
    EXPECT_FALSE(grid.FindRow(a)->IsExpanded());
}

TEST_F(GridTree, RowWithoutChildrenIsNeitherExpandedNorCollapsed)
{
    grid.ExpandRow(u);
    grid.CollapseRow(u);
    EXPECT_TRUE(window.TakeTold().empty());
}

TEST_F(GridTree, CollapsingRemovesAllDescendants)
{
    grid.ExpandRow(t);
    grid.ExpandRow(a);
    window.TakeTold();
    grid.CollapseRow(t);
    EXPECT_EQ(window.ShownNames(), "T U");
    EXPECT_TRUE(window.IndicesAreExact());
    EXPECT_EQ(window.TakeTold(), (Told{"1115 T -1 \"\""}));
}

TEST_F(GridTree, CollapsedDescendantsStayCollapsedWhenShownAgain)
{
    grid.ExpandRow(t);
    grid.ExpandRow(a);
    grid.CollapseRow(t);
    grid.ExpandRow(t);
    EXPECT_EQ(window.ShownNames(), "T A B U");
}

TEST_F(GridTree, FocusInsideTheRemovedPartMovesToTheCollapsedRow)
{
    grid.ExpandRow(t);
    grid.ExpandRow(a);
    grid.SetFocusCell(aTwo, 2, false);
    window.TakeTold();
    grid.CollapseRow(t);
    EXPECT_EQ(grid.FocusKey(), t);
    EXPECT_EQ(grid.FocusColumn(), 2);
    EXPECT_EQ(window.TakeTold(), (Told{"1115 T 2 \"T2\"", "1116 T 2 \"T2\""}));
}

TEST_F(GridTree, FocusOutsideTheRemovedPartStays)
{
    grid.ExpandRow(t);
    grid.SetFocusCell(u, 1, false);
    window.TakeTold();
    grid.CollapseRow(t);
    EXPECT_EQ(grid.FocusKey(), u);
    EXPECT_EQ(window.TakeTold(), (Told{"1115 T 1 \"T1\""}));
}

TEST_F(GridTree, NothingIsToldOfTheFocusWhileExpanding)
{
    grid.SetFocusCell(t, 0, false);
    grid.ExpandRow(t);
    EXPECT_EQ(window.TakeTold(), (Told{"1114 T 0 \"T\" expanded"}));
}

TEST_F(GridTree, FocusSetAgainByExpandingDoesNotCountAsTold)
{
    grid.SetFocusCell(t, 1, false);
    grid.ExpandRow(t);
    window.TakeTold();
    grid.SetFocusCell(t, 1, true);
    EXPECT_EQ(window.TakeTold(), (Told{"1116 T 1 \"T1\" expanded"}));
}

// The focus is set again, and a button opens at once; the entries of a list can't be asked for meanwhile.
TEST_F(GridTree, ExpandingBringsTheButtonOfTheFocusCellBackAndNoList)
{
    window.entries = {{L"one", 1}};
    grid.SetCellKind(u, 1, kCellButton);
    grid.SetCellKind(u, 2, kCellList);
    grid.SetFocusCell(u, 1, false);
    grid.ExpandRow(t);
    EXPECT_NE(Editor(303), nullptr);
    grid.CollapseRow(t);
    grid.SetFocusCell(u, 2, false);
    ASSERT_NE(Editor(302), nullptr);
    window.TakeTold();
    grid.ExpandRow(t);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_EQ(window.TakeTold(), (Told{"1114 T 2 \"T2\" expanded"}));
}

TEST_F(GridTree, ExpandedRowAndItsLastChildAreMadeVisible)
{
    for (int row = 0; row < 30; ++row)
        window.AddTop(L"V");
    const RowKey late = window.AddTop(L"W");
    window.AddChild(late, L"X");
    grid.ExpandRow(late);
    const int last = grid.GetTopIndex() + grid.GetCountPerPage() - 1;
    EXPECT_GE(last, grid.FindRow(late)->ListIndex() + 1);
    EXPECT_LE(grid.GetTopIndex(), grid.FindRow(late)->ListIndex());
}

TEST_F(GridTree, ChildAddedToAnExpandedRowAppearsBehindTheLastOnesDescendants)
{
    grid.ExpandRow(t);
    window.AddChild(b, L"Bx");
    grid.ExpandRow(b);
    window.AddChild(t, L"C");
    EXPECT_EQ(window.ShownNames(), "T A B Bx C U");
    EXPECT_TRUE(window.IndicesAreExact());
}

TEST_F(GridTree, FirstChildOfARowThatWasEmptiedWhileExpandedAppearsAtOnce)
{
    grid.ExpandRow(t);
    grid.DeleteRow(a);
    grid.DeleteRow(b);
    window.AddChild(t, L"C");
    EXPECT_EQ(window.ShownNames(), "T C U");
}

TEST_F(GridTree, RowEmptiedWhileExpandedIsCollapsedWithItsParent)
{
    grid.ExpandRow(t);
    grid.ExpandRow(a);
    grid.DeleteRow(aOne);
    grid.DeleteRow(aTwo);
    grid.CollapseRow(t);
    window.AddChild(a, L"Az");
    grid.ExpandRow(t);
    EXPECT_EQ(window.ShownNames(), "T A B U");
    grid.ExpandRow(a);
    EXPECT_EQ(window.ShownNames(), "T A Az B U");
}

// The list control tells of each inserted and deleted row: the parent may ask for indices right then.
TEST_F(GridTree, IndicesAreExactAtEveryMomentOfExpandingCollapsingAndDeleting)
{
    int observed = 0;
    window.onListTold = [&](UINT code) {
        if (code == LVN_INSERTITEM || code == LVN_DELETEITEM)
        {
            ++observed;
            EXPECT_TRUE(window.IndicesAreExact()) << observed;
        }
    };
    window.AddChild(t, L"C");
    grid.ExpandRow(t);
    EXPECT_EQ(observed, 3);
    EXPECT_TRUE(window.IndicesAreExact());
    grid.CollapseRow(t);
    EXPECT_EQ(observed, 6);
    EXPECT_TRUE(window.IndicesAreExact());
    grid.ExpandRow(t);
    grid.ExpandRow(a);
    EXPECT_EQ(observed, 11);
    grid.DeleteRow(t);
    EXPECT_EQ(observed, 17);
    EXPECT_TRUE(window.IndicesAreExact());
}

TEST_F(GridTree, ParentMayDeleteTheRowItIsToldOf)
{
    window.onTold = [&](const NMFLISTCTRL& record) { grid.DeleteRow(record.rowKey); };
    grid.ExpandRow(t);
    EXPECT_EQ(window.ShownNames(), "U");
    EXPECT_EQ(grid.RowCount(), 1);
}

TEST_F(GridDeletion, DeletedRowTakesItsDescendantsAlong)
{
    grid.ExpandRow(t);
    grid.ExpandRow(a);
    grid.DeleteRow(a);
    EXPECT_EQ(window.ShownNames(), "T B U");
    EXPECT_EQ(grid.RowCount(), 3);
    EXPECT_EQ(grid.FindRow(a), nullptr);
    EXPECT_EQ(grid.FindRow(aOne), nullptr);
    EXPECT_TRUE(window.IndicesAreExact());
}

TEST_F(GridDeletion, SiblingsCloseTheGap)
{
    const RowKey c = window.AddChild(t, L"C");
    grid.DeleteRow(b);
    EXPECT_EQ(grid.FindRow(a)->NextSibling(), grid.FindRow(c));
    EXPECT_EQ(grid.FindRow(c)->PreviousSibling(), grid.FindRow(a));
    EXPECT_EQ(grid.FindRow(t)->ChildCount(), 2);
}

TEST_F(GridDeletion, FirstChildCanBeDeletedUntilNoneIsLeft)
{
    grid.ExpandRow(t);
    while (grid.FindRow(t)->FirstChild() != nullptr)
        grid.DeleteRow(grid.FindRow(t)->FirstChild()->Key());
    EXPECT_EQ(window.ShownNames(), "T U");
    EXPECT_EQ(grid.RowCount(), 2);
}

TEST_F(GridDeletion, UnknownKeyIsIgnored)
{
    grid.DeleteRow(a);
    grid.DeleteRow(a);
    EXPECT_EQ(grid.RowCount(), 3);
}

TEST_F(GridDeletion, FocusMovesSilentlyToTheNextSibling)
{
    grid.ExpandRow(t);
    window.TakeTold();
    grid.SetFocusCell(a, 1, false);
    grid.DeleteRow(a);
    EXPECT_EQ(grid.FocusKey(), b);
    EXPECT_EQ(grid.FocusColumn(), 1);
    EXPECT_TRUE(window.TakeTold().empty());
}

TEST_F(GridDeletion, FocusMovesToThePreviousSiblingBehindTheLast)
{
    grid.ExpandRow(t);
    grid.SetFocusCell(b, 1, false);
    grid.DeleteRow(b);
    EXPECT_EQ(grid.FocusKey(), a);
}

TEST_F(GridDeletion, FocusMovesToTheParentFromAnOnlyChild)
{
    grid.ExpandRow(t);
    grid.DeleteRow(a);
    grid.SetFocusCell(b, 1, false);
    grid.DeleteRow(b);
    EXPECT_EQ(grid.FocusKey(), t);
}

TEST_F(GridDeletion, FocusBelowTheDeletedRowMovesToItsNeighbour)
{
    grid.ExpandRow(t);
    grid.ExpandRow(a);
    grid.SetFocusCell(aTwo, 1, false);
    grid.DeleteRow(a);
    EXPECT_EQ(grid.FocusKey(), b);
}

TEST_F(GridDeletion, LastRowTakesTheFocusAlong)
{
    grid.DeleteRow(t);
    grid.SetFocusCell(u, 1, false);
    grid.DeleteRow(u);
    EXPECT_EQ(grid.FocusKey(), nullptr);
    EXPECT_EQ(grid.FocusColumn(), -1);
}

// Heirs that are buttons must not open their editor.
TEST_F(GridDeletion, FocusHandedOverOpensNoEditor)
{
    grid.ExpandRow(t);
    grid.SetCellKind(b, 1, kCellButton);
    grid.SetFocusCell(a, 1, false);
    grid.DeleteRow(a);
    EXPECT_EQ(grid.FocusKey(), b);
    EXPECT_FALSE(grid.HasEditor());
}

// A thousand steps with a fixed seed: the list always shows what the model says.
TEST(GridTreeAtRandom, IndicesEqualPositionsAfterEveryStep)
{
    GridWindow window;
    CFListCtrl& grid = window.grid;
    grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, true);
    std::vector<RowKey> keys{window.AddTop(L"r")};
    std::mt19937 random(20240607);
    for (int step = 0; step < 1000; ++step)
    {
        SCOPED_TRACE(step);
        const RowKey key = keys[random() % keys.size()];
        switch (random() % 5)
        {
        case 0:
            keys.push_back(window.AddTop(L"r"));
            break;
        case 1:
        case 2:
            if (const RowKey added = window.AddChild(key, L"r"))
                keys.push_back(added);
            break;
        case 3:
            if (const auto* const row = grid.FindRow(key); row != nullptr && row->IsExpanded())
                grid.CollapseRow(key);
            else
                grid.ExpandRow(key);
            break;
        default:
            if (random() % 2 == 0)
                grid.DeleteRow(key);
            break;
        }
        ASSERT_TRUE(window.IndicesAreExact());
    }
}
