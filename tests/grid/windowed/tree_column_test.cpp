#include "grid_window.h"
#include "tests/support/message_pump.h"
#include "tests/support/pixels.h"

namespace
{
// T with a child A below it. A column of 50 pixels before the tree of 130.
class TreeInTheSecondColumn : public GridTest
{
protected:
    TreeInTheSecondColumn()
    {
        grid.InsertFColumn(0, L"first", LVCFMT_LEFT, 50, false);
        t = window.AddTop(L"T");
        a = window.AddChild(t, L"A");
    }

    COLORREF PixelAt(CPoint point)
    {
        grid.UpdateWindow();
        PumpUntilIdle();
        const CClientDC dc(&grid);
        return ::GetPixel(dc.GetSafeHdc(), point.x, point.y);
    }
    /// A point of T's row, so many pixels from the left edge of a column.
    CPoint InRow(int column, int x) const
    {
        const CRect cell = grid.GetCellRect(t, column);
        return {cell.left + x, cell.CenterPoint().y};
    }
    int EditorLeft(int column)
    {
        grid.SetCellKind(t, column, kCellEdit);
        grid.SetFocusCell(t, column, false);
        EXPECT_TRUE(grid.OpenEditor());
        CRect place;
        ::GetWindowRect(Editor(301), &place);
        grid.ScreenToClient(&place);
        return place.left;
    }

    RowKey t = nullptr;
    RowKey a = nullptr;
};
}  // namespace

TEST_F(TreeInTheSecondColumn, HasTheExpandImageThere)
{
    ASSERT_EQ(grid.TreeColumn(), 1);
    EXPECT_EQ(PixelAt(InRow(1, 12)), kCollapsedColour);
    EXPECT_NE(PixelAt(InRow(0, 12)), kCollapsedColour);
    grid.ExpandRow(t);
    EXPECT_EQ(PixelAt(InRow(1, 12)), kExpandedColour);
}

TEST_F(TreeInTheSecondColumn, ExpandsByAClickThere)
{
    LeftClick(grid, InRow(0, 12));
    EXPECT_EQ(window.ShownNames(), "T");
    EXPECT_EQ(grid.FocusColumn(), 0);
    LeftClick(grid, InRow(1, 12));
    EXPECT_EQ(window.ShownNames(), "T A");
}

TEST_F(TreeInTheSecondColumn, LeavesRoomForItInTheEditorsThere)
{
    EXPECT_EQ(EditorLeft(0), 0);
    EXPECT_EQ(EditorLeft(1), 50 + 25);
}
