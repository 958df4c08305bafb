#include "grid_window.h"

namespace
{
using Told = std::vector<std::string>;

class GridFocus : public GridTest
{
protected:
    RowKey a = window.AddTop(L"A");
    RowKey b = window.AddTop(L"B");
};
using GridVisibility = GridFocus;
}  // namespace

TEST_F(GridFocus, MovedFocusIsTold)
{
    grid.SetFocusCell(b, 2, true);
    EXPECT_EQ(window.TakeTold(), (Told{"1116 B 2 \"B2\""}));
    EXPECT_EQ(grid.FocusKey(), b);
    EXPECT_EQ(grid.FocusColumn(), 2);
}

TEST_F(GridFocus, SameCellTwiceIsToldOnce)
{
    grid.SetFocusCell(b, 2, true);
    grid.SetFocusCell(b, 2, true);
    EXPECT_EQ(window.TakeTold().size(), 1U);
}

TEST_F(GridFocus, OtherColumnOfTheSameRowIsTold)
{
    grid.SetFocusCell(b, 2, true);
    grid.SetFocusCell(b, 1, true);
    EXPECT_EQ(window.TakeTold(), (Told{"1116 B 2 \"B2\"", "1116 B 1 \"B1\""}));
}

TEST_F(GridFocus, SilentMoveIsNotTold)
{
    grid.SetFocusCell(b, 2, false);
    EXPECT_TRUE(window.TakeTold().empty());
}

TEST_F(GridFocus, SilentMoveLeavesWhatWasToldLast)
{
    grid.SetFocusCell(a, 1, true);
    grid.SetFocusCell(b, 1, false);
    window.TakeTold();
    grid.SetFocusCell(a, 1, true);
    EXPECT_TRUE(window.TakeTold().empty());
}

TEST_F(GridFocus, WhatWasToldLastCountsForAllGrids)
{
    GridWindow other;
    other.grid.InsertFColumn(0, L"", LVCFMT_LEFT, 100, true);
    const RowKey there = other.AddTop(L"O");
    grid.SetFocusCell(a, 1, true);
    other.grid.SetFocusCell(there, -1, true);
    window.TakeTold();
    grid.SetFocusCell(a, 1, true);
    EXPECT_EQ(window.TakeTold(), (Told{"1116 A 1 \"A1\""}));
}

TEST_F(GridFocus, WholeRowIsItsFirstColumnOutsideRowMode)
{
    grid.SetFocusRow(b, true);
    EXPECT_EQ(grid.FocusColumn(), 0);
    EXPECT_EQ(window.TakeTold(), (Told{"1116 B 0 \"B\""}));
}

TEST_F(GridFocus, ColumnIsAlwaysNoneInRowMode)
{
    grid.SetRowMode(true);
    grid.SetFocusCell(b, 2, true);
    EXPECT_EQ(grid.FocusColumn(), -1);
    EXPECT_EQ(window.TakeTold(), (Told{"1116 B -1 \"\""}));
}

TEST_F(GridFocus, RowModeTakesTheFocusColumnAndGivesTheFirstBack)
{
    grid.SetFocusCell(b, 2, false);
    grid.SetRowMode(true);
    EXPECT_EQ(grid.FocusColumn(), -1);
    grid.SetRowMode(false);
    EXPECT_EQ(grid.FocusColumn(), 0);
}

TEST_F(GridFocus, NoRowTakesTheFocusAway)
{
    grid.SetFocusCell(b, 2, false);
    grid.SetFocusCell(nullptr, 2, true);
    EXPECT_EQ(grid.FocusRow(), nullptr);
    EXPECT_EQ(grid.FocusColumn(), -1);
    EXPECT_EQ(window.TakeTold(), (Told{"1116 none -1 \"\" expanded"}));
}

TEST_F(GridFocus, ButtonCellOpensItsEditorAtOnce)
{
    grid.SetCellKind(b, 1, kCellButton);
    grid.SetFocusCell(b, 1, true);
    EXPECT_NE(Editor(303), nullptr);
    EXPECT_EQ(::GetFocus(), Editor(303));
}

TEST_F(GridFocus, ListCellOpensItsEditorAtOnce)
{
    window.entries = {{L"one", 1}};
    grid.SetCellKind(b, 1, kCellList);
    grid.SetFocusCell(b, 1, true);
    EXPECT_NE(Editor(302), nullptr);
    EXPECT_EQ(window.TakeTold(), (Told{"1116 B 1 \"B1\"", "1121 B 1 \"B1\""}));
}

TEST_F(GridFocus, EditCellWaits)
{
    grid.SetCellKind(b, 1, kCellEdit);
    grid.SetFocusCell(b, 1, true);
    EXPECT_FALSE(grid.HasEditor());
}

TEST_F(GridFocus, NoEditorOpensInRowMode)
{
    grid.SetRowMode(true);
    grid.SetCellKind(b, 0, kCellButton);
    grid.SetFocusCell(b, 0, true);
    EXPECT_FALSE(grid.HasEditor());
    EXPECT_FALSE(grid.OpenEditor());
}

TEST_F(GridFocus, MovingTheFocusClosesAnEditorElsewhere)
{
    grid.SetCellKind(b, 1, kCellEdit);
    grid.SetFocusCell(b, 1, false);
    ASSERT_TRUE(grid.OpenEditor());
    grid.SetFocusCell(a, 0, false);
    EXPECT_FALSE(grid.HasEditor());
}

TEST_F(GridFocus, UnknownRowLeavesFocusAndEditorAlone)
{
    grid.SetCellKind(b, 1, kCellEdit);
    grid.SetFocusCell(b, 1, false);
    ASSERT_TRUE(grid.OpenEditor());
    grid.SetFocusCell(&grid, 0, true);
    EXPECT_TRUE(grid.HasEditor());
    grid.DeleteRow(&grid);
    EXPECT_TRUE(grid.HasEditor());
    EXPECT_EQ(grid.AddChildRow(&grid, grid.CreateRow(L"N", -1)), nullptr);
    EXPECT_TRUE(grid.HasEditor());
    grid.MakeCellVisible(&grid, 0, false);
    EXPECT_TRUE(grid.HasEditor());
    EXPECT_EQ(grid.FocusKey(), b);
}

// The parent's own move inside the notification stands.
TEST_F(GridFocus, ParentMayMoveTheFocusWhenItIsTold)
{
    grid.SetCellKind(a, 1, kCellButton);
    window.onTold = [&](const NMFLISTCTRL& record) {
        if (record.rowKey == a)
            grid.SetFocusCell(b, 0, true);
    };
    grid.SetFocusCell(a, 1, true);
    EXPECT_EQ(grid.FocusKey(), b);
    EXPECT_FALSE(grid.HasEditor());
}

TEST_F(GridFocus, RecordNamesTheGridAndTheRowsData)
{
    int data = 0;
    grid.FindRow(a)->SetUserData(&data);
    NMFLISTCTRL seen;
    window.onTold = [&](const NMFLISTCTRL& record) { seen = record; };
    grid.SetFocusCell(a, 1, true);
    EXPECT_EQ(seen.hdr.hwndFrom, grid.GetSafeHwnd());
    EXPECT_EQ(seen.hdr.idFrom, GridWindow::kGridId);
    EXPECT_EQ(seen.hdr.code, kGridFocusMoved);
    EXPECT_EQ(seen.rowKey, a);
    EXPECT_EQ(seen.userData, reinterpret_cast<LPARAM>(&data));
    EXPECT_EQ(seen.collapsed, 1);
    EXPECT_EQ(seen.extra, 0);
}

// Client area 640; columns at 0 to 130, 210, 290, then 500 more: the third ends at 290, the wide fourth at 790.
TEST_F(GridVisibility, OverhangScrollsTheCellInWithTenPixelsToSpare)
{
    grid.InsertFColumn(3, L"wide", LVCFMT_LEFT, 500, false);
    grid.MakeCellVisible(a, 3, false);
    CRect client;
    grid.GetClientRect(&client);
    // All columns end at 790, so the list can't scroll further than that.
    EXPECT_EQ(grid.GetCellRect(a, 3).right, client.right);
}

TEST_F(GridVisibility, OverhangInTheMiddleLeavesTenPixels)
{
    grid.InsertFColumn(3, L"wide", LVCFMT_LEFT, 400, false);
    grid.InsertFColumn(4, L"last", LVCFMT_LEFT, 200, false);
    grid.MakeCellVisible(a, 3, false);
    CRect client;
    grid.GetClientRect(&client);
    EXPECT_EQ(grid.GetCellRect(a, 3).right, client.right - 10);
}

TEST_F(GridVisibility, LeftEdgeComesTenPixelsInside)
{
    grid.InsertFColumn(3, L"wide", LVCFMT_LEFT, 900, false);
    grid.Scroll(CSize(300, 0));
    ASSERT_LT(grid.GetCellRect(a, 1).left, 0);
    grid.MakeCellVisible(a, 1, false);
    EXPECT_EQ(grid.GetCellRect(a, 1).left, 10);
}

TEST_F(GridVisibility, FirstColumnComesExactlyToTheEdge)
{
    grid.InsertFColumn(3, L"wide", LVCFMT_LEFT, 900, false);
    grid.Scroll(CSize(300, 0));
    grid.MakeCellVisible(a, 0, false);
    EXPECT_EQ(grid.GetCellRect(a, 0).left, 0);
}

TEST_F(GridVisibility, PartlyVisibleIsEnoughWhenAsked)
{
    grid.InsertFColumn(3, L"wide", LVCFMT_LEFT, 900, false);
    grid.Scroll(CSize(300, 0));
    const CRect before = grid.GetCellRect(a, 0);
    grid.MakeCellVisible(a, 0, true);
    EXPECT_EQ(grid.GetCellRect(a, 0), before);
}

TEST_F(GridVisibility, RowBelowIsScrolledIn)
{
    for (int row = 0; row < 40; ++row)
        window.AddTop(L"V");
    const RowKey last = window.AddTop(L"W");
    grid.MakeCellVisible(last, -1, false);
    CRect client;
    grid.GetClientRect(&client);
    const CRect cell = grid.GetCellRect(last, 0);
    EXPECT_LE(cell.bottom, client.bottom);
    EXPECT_GT(cell.top, 0);
}

TEST_F(GridVisibility, RowCutOffAtTheBottomIsEnoughOnlyWhenAsked)
{
    for (int row = 0; row < 40; ++row)
        window.AddTop(L"V");
    const RowKey cutOff = grid.RowAtIndex(grid.GetCountPerPage())->Key();
    CRect client;
    grid.GetClientRect(&client);
    ASSERT_LT(grid.GetCellRect(cutOff, 0).top, client.bottom);
    ASSERT_GT(grid.GetCellRect(cutOff, 0).bottom, client.bottom);
    grid.MakeCellVisible(cutOff, 0, true);
    EXPECT_EQ(grid.GetTopIndex(), 0);
    grid.MakeCellVisible(cutOff, 0, false);
    EXPECT_EQ(grid.GetTopIndex(), 1);
    EXPECT_LE(grid.GetCellRect(cutOff, 0).bottom, client.bottom);
}

TEST_F(GridVisibility, RowOutOfSightIsScrolledInAlsoWhenPartlyVisibleIsEnough)
{
    for (int row = 0; row < 40; ++row)
        window.AddTop(L"V");
    const RowKey last = window.AddTop(L"W");
    CRect client;
    grid.GetClientRect(&client);
    ASSERT_GT(grid.GetCellRect(last, 0).top, client.bottom);
    grid.MakeCellVisible(last, 0, true);
    EXPECT_LT(grid.GetCellRect(last, 0).top, client.bottom);
}

TEST_F(GridVisibility, EditorOfEachKindOpensInSight)
{
    constexpr std::pair<std::int32_t, int> kKinds[] = {{kCellEdit, 301}, {kCellList, 302}, {kCellButton, 303}};
    window.entries = {{L"one", 1}};
    grid.InsertFColumn(3, L"wide", LVCFMT_LEFT, 1500, false);
    for (int row = 0; row < 40; ++row)
        window.AddTop(L"V");
    CRect client;
    grid.GetClientRect(&client);
    CRect header;
    ::GetWindowRect(ListView_GetHeader(grid.GetSafeHwnd()), &header);
    for (const auto& [kind, id] : kKinds)
    {
        SCOPED_TRACE(kind);
        grid.SetCellKind(b, 1, kCellText);
        grid.SetFocusCell(b, 1, false);
        grid.SetCellKind(b, 1, kind);
        grid.Scroll(CSize(500, 20 * grid.GetCellRect(b, 1).Height()));
        ASSERT_LT(grid.GetCellRect(b, 1).right, 0);
        ASSERT_LT(grid.GetCellRect(b, 1).bottom, 0);
        ASSERT_TRUE(grid.OpenEditor());
        CRect place;
        ::GetWindowRect(Editor(id), &place);
        grid.ScreenToClient(&place);
        EXPECT_GE(place.left, 0);
        EXPECT_LE(place.right, client.right);
        EXPECT_GE(place.top, header.Height());
        EXPECT_LE(place.bottom, client.bottom);
    }
}

TEST_F(GridVisibility, CellRectangleFollowsTheShownOrderOfTheColumns)
{
    int order[] = {2, 0, 1};
    grid.SetColumnOrderArray(3, order);
    EXPECT_EQ(grid.GetCellRect(a, 2).left, 0);
    EXPECT_EQ(grid.GetCellRect(a, 2).right, 80);
    EXPECT_EQ(grid.GetCellRect(a, 0).left, 80);
    EXPECT_EQ(grid.GetCellRect(a, 0).right, 210);
    EXPECT_EQ(grid.GetCellRect(a, 1).left, 210);
}

TEST_F(GridVisibility, HitTestFollowsTheShownOrderOfTheColumns)
{
    int order[] = {2, 0, 1};
    grid.SetColumnOrderArray(3, order);
    const std::optional<CFListCtrl::CellHit> hit = grid.CellAt(CPoint(40, grid.GetCellRect(b, 0).CenterPoint().y));
    ASSERT_TRUE(hit);
    EXPECT_EQ(hit->index, 1);
    EXPECT_EQ(hit->column, 2);
}

TEST_F(GridVisibility, HitTestFollowsScrolling)
{
    grid.InsertFColumn(3, L"wide", LVCFMT_LEFT, 900, false);
    grid.Scroll(CSize(100, 0));
    const std::optional<CFListCtrl::CellHit> hit = grid.CellAt(CPoint(35, grid.GetCellRect(a, 0).CenterPoint().y));
    ASSERT_TRUE(hit);
    EXPECT_EQ(hit->column, 1);
}

TEST_F(GridVisibility, NothingIsHitOutsideTheCells)
{
    const CRect lastCell = grid.GetCellRect(b, 2);
    EXPECT_FALSE(grid.CellAt(CPoint(10, 2)));                                        // header
    EXPECT_FALSE(grid.CellAt(CPoint(10, lastCell.bottom)));                          // below the last row
    EXPECT_FALSE(grid.CellAt(CPoint(lastCell.right, lastCell.CenterPoint().y)));     // behind the last column
    EXPECT_TRUE(grid.CellAt(CPoint(lastCell.right - 1, lastCell.CenterPoint().y)));  // the last pixel of it
}
