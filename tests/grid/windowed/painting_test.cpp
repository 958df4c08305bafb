#include "grid_window.h"
#include "tests/support/message_pump.h"
#include "tests/support/pixels.h"

#include <algorithm>
#include <ostream>
#include <ranges>

namespace
{
/// What a pixel of the grid shows.
struct Colour
{
    COLORREF value;

    bool operator==(const Colour&) const = default;
};

void PrintTo(const Colour& colour, std::ostream* stream)
{
    *stream << "RGB(" << int{GetRValue(colour.value)} << ", " << int{GetGValue(colour.value)} << ", "
            << int{GetBValue(colour.value)} << ")";
}

constexpr Colour kFocusColour{RGB(240, 220, 40)};

// T (image) > A (image) > X, and U. Row height 17, columns at 0, 130, 210 up to 290.
class GridPainting : public GridTest
{
protected:
    GridPainting() { Paint(); }

    void Paint()
    {
        grid.UpdateWindow();
        PumpUntilIdle();
    }
    Colour PixelAt(int x, int y)
    {
        CClientDC dc(&grid);
        return {::GetPixel(dc.GetSafeHdc(), x, y)};
    }
    /// A pixel of a cell, counted from the cell's corner.
    Colour CellPixel(RowKey key, int column, int x, int y)
    {
        Paint();
        const CRect cell = grid.GetCellRect(key, column);
        return PixelAt(cell.left + x, cell.top + y);
    }
    /// The middle row of the cell at x.
    Colour Middle(RowKey key, int column, int x) { return CellPixel(key, column, x, 8); }
    /// Leftmost and rightmost column of a cell, from its left edge, with a pixel that isn't background; -1 for none.
    std::pair<int, int> TextSpan(RowKey key, int column, Colour back)
    {
        Paint();
        const CRect cell = grid.GetCellRect(key, column);
        std::pair<int, int> span{-1, -1};
        for (int x = 1; x < cell.Width() - 2; ++x)  // the grid line covers the first column
            for (int y = 2; y < cell.Height() - 2; ++y)
                if (!(PixelAt(cell.left + x, cell.top + y) == back))
                {
                    if (span.first < 0)
                        span.first = x;
                    span.second = x;
                }
        return span;
    }
    int InkOf(RowKey key, int column, Colour back)
    {
        Paint();
        const CRect cell = grid.GetCellRect(key, column);
        int ink = 0;
        for (int x = 2; x < cell.Width() - 2; ++x)
            for (int y = 2; y < cell.Height() - 2; ++y)
                ink += PixelAt(cell.left + x, cell.top + y) == back ? 0 : 1;
        return ink;
    }

    /// The lines of a cell, from its top edge, with a pixel that isn't background.
    std::vector<int> TextLines(RowKey key, int column, Colour back)
    {
        Paint();
        const CRect cell = grid.GetCellRect(key, column);
        std::vector<int> lines;
        for (int y = 0; y < cell.Height() - 1; ++y)  // the grid line covers the last line
            if (std::ranges::any_of(std::views::iota(2, cell.Width() - 2),
                                    [&](int x) { return !(PixelAt(cell.left + x, cell.top + y) == back); }))
                lines.push_back(y);
        return lines;
    }

    /// Whether a pixel of the cell, off its edges, has just that colour.
    bool Shows(RowKey key, int column, Colour colour)
    {
        Paint();
        const CRect cell = grid.GetCellRect(key, column);
        for (int x = 2; x < cell.Width() - 2; ++x)
            for (int y = 2; y < cell.Height() - 2; ++y)
                if (PixelAt(cell.left + x, cell.top + y) == colour)
                    return true;
        return false;
    }

    const Colour window_{::GetSysColor(COLOR_WINDOW)};
    const Colour highlight{::GetSysColor(COLOR_HIGHLIGHT)};
    const Colour expanded{kExpandedColour};
    const Colour collapsed{kCollapsedColour};
    const Colour rowImage{kRowImageColour};

    RowKey t = window.AddTop(L"T", 2);
    RowKey a = window.AddChild(t, L"A", 2);
    RowKey x = window.AddChild(a, L"X");
    RowKey u = window.AddTop(L"U");
};
}  // namespace

TEST_F(GridPainting, RowsWithoutFocusHaveTheListsBackground)
{
    EXPECT_EQ(Middle(u, 1, 3), window_);
    EXPECT_EQ(Middle(u, 2, 70), window_);
    grid.SetBkColor(RGB(200, 210, 220));
    grid.Invalidate();
    EXPECT_EQ(Middle(u, 2, 70), Colour{RGB(200, 210, 220)});
}

TEST_F(GridPainting, FocusCellHasItsColourAndTheRestOfItsRowIsHighlighted)
{
    grid.SetFocusCell(u, 1, false);
    EXPECT_EQ(Middle(u, 1, 3), kFocusColour);
    EXPECT_EQ(Middle(u, 0, 100), highlight);
    EXPECT_EQ(Middle(u, 2, 70), highlight);
    EXPECT_EQ(Middle(t, 1, 3), window_);
}

TEST_F(GridPainting, WholeFocusRowIsHighlightedInRowMode)
{
    grid.SetRowMode(true);
    grid.SetFocusRow(u, false);
    for (const int column : {0, 1, 2})
        EXPECT_EQ(Middle(u, column, 78), highlight);
}

TEST_F(GridPainting, MovedFocusLeavesNoTrace)
{
    grid.SetFocusCell(u, 1, false);
    Paint();
    grid.SetFocusCell(t, 2, false);
    EXPECT_EQ(Middle(u, 1, 3), window_);
    for (const int x : {0, 1, 2, 100})
        EXPECT_EQ(Middle(u, 0, x), window_) << x;
    EXPECT_EQ(Middle(t, 2, 70), kFocusColour);
}

TEST_F(GridPainting, FocusColoursAreTheParentsChoice)
{
    grid.SetFocusCell(u, 1, false);
    grid.SetFocusColours(RGB(10, 200, 30), RGB(255, 0, 0));
    EXPECT_EQ(Middle(u, 1, 3), Colour{RGB(10, 200, 30)});
}

TEST_F(GridPainting, TextsHaveTheColourOfTheirPlace)
{
    const Colour windowText{::GetSysColor(COLOR_WINDOWTEXT)};
    const Colour highlightText{::GetSysColor(COLOR_HIGHLIGHTTEXT)};
    const Colour chosen{RGB(255, 0, 0)};
    ASSERT_NE(windowText, highlightText);
    for (const int column : {1, 2})
        grid.SetCellText(u, column, L"IMI");
    EXPECT_TRUE(Shows(u, 1, windowText));
    grid.SetFocusCell(u, 1, false);
    EXPECT_TRUE(Shows(u, 1, windowText));
    EXPECT_TRUE(Shows(u, 2, highlightText));
    EXPECT_FALSE(Shows(u, 2, windowText));
    grid.SetFocusColours(kFocusColour.value, chosen.value);
    EXPECT_TRUE(Shows(u, 1, chosen));
    EXPECT_FALSE(Shows(u, 1, windowText));
}

// Every second pixel of the edge of a cell is inverted; the grid lines cover the bottom and the first column of the
// next.
TEST_F(GridPainting, CellsOfTheFocusRowHaveADottedEdge)
{
    grid.SetFocusCell(u, 1, false);
    for (const int column : {0, 1, 2})
    {
        int changed = 0;
        for (int offset = 10; offset < 30; ++offset)
            changed += CellPixel(u, column, offset, 0) == CellPixel(u, column, offset, 1) ? 0 : 1;
        EXPECT_EQ(changed, 10) << column;
    }
    EXPECT_EQ(CellPixel(t, 1, 10, 0), CellPixel(t, 1, 11, 0));
}

// Who comes by the keyboard sees where it is: the first key goes to the first row.
TEST_F(GridPainting, FirstRowHasADottedEdgeWhileTheGridHasTheKeyboardButNoFocusRow)
{
    const auto dots = [&](RowKey key) {
        int changed = 0;
        for (int offset = 10; offset < 30; ++offset)
            changed += CellPixel(key, 2, offset, 0) == CellPixel(key, 2, offset, 1) ? 0 : 1;
        return changed;
    };
    ASSERT_EQ(::GetFocus(), grid.GetSafeHwnd());
    EXPECT_EQ(dots(t), 10);
    EXPECT_EQ(Middle(t, 2, 70), window_);
    EXPECT_EQ(dots(u), 0);
    ::SetFocus(window.GetSafeHwnd());
    EXPECT_EQ(dots(t), 0);
    grid.SetFocus();
    EXPECT_EQ(dots(t), 10);
    grid.SetFocusCell(u, 1, false);
    EXPECT_EQ(dots(t), 0);
    grid.SetFocusCell(nullptr, -1, false);
    EXPECT_EQ(dots(t), 10);
}

TEST_F(GridPainting, ExpandImageFollowsTheState)
{
    EXPECT_EQ(Middle(t, 0, 12), collapsed);
    grid.ExpandRow(t);
    EXPECT_EQ(Middle(t, 0, 12), expanded);
    grid.CollapseRow(t);
    EXPECT_EQ(Middle(t, 0, 12), collapsed);
}

TEST_F(GridPainting, ExpandImageComesWithTheFirstChildAndGoesWithTheLast)
{
    EXPECT_NE(Middle(u, 0, 12), collapsed);
    const RowKey first = window.AddChild(u, L"C");
    const RowKey second = window.AddChild(u, L"D");
    EXPECT_EQ(Middle(u, 0, 12), collapsed);
    grid.DeleteRow(first);
    EXPECT_EQ(Middle(u, 0, 12), collapsed);
    grid.DeleteRow(second);
    EXPECT_NE(Middle(u, 0, 12), collapsed);
}

// The image is 16 wide: 5 to 21 within the 20 pixels kept for it.
TEST_F(GridPainting, ExpandImageBeginsFivePixelsIn)
{
    EXPECT_EQ(Middle(t, 0, 4), window_);
    EXPECT_EQ(Middle(t, 0, 5), collapsed);
    EXPECT_EQ(Middle(t, 0, 20), collapsed);
    EXPECT_EQ(Middle(t, 0, 21), window_);
}

TEST_F(GridPainting, RowImageFollowsTheExpandImage)
{
    EXPECT_EQ(Middle(t, 0, 25), rowImage);
    EXPECT_EQ(Middle(t, 0, 40), rowImage);
    EXPECT_EQ(Middle(t, 0, 41), window_);
}

TEST_F(GridPainting, EachLevelIsIndentedByTwentyPixels)
{
    grid.ExpandRow(t);
    grid.ExpandRow(a);
    EXPECT_EQ(Middle(a, 0, 24), window_);
    EXPECT_EQ(Middle(a, 0, 25), expanded);
    EXPECT_EQ(Middle(a, 0, 45), rowImage);
    // X: two levels of 20 and 5, no images; the text begins there.
    EXPECT_GE(TextSpan(x, 0, window_).first, 45);
    EXPECT_LE(TextSpan(x, 0, window_).first, 47);
}

TEST_F(GridPainting, ColumnWithImageSpaceKeepsTwentyPixels)
{
    grid.SetCellText(u, 2, L" I");  // clear of the grid line, which hides the cell's first pixels
    const int before = TextSpan(u, 2, window_).first;
    grid.Column(2).imageSpace = 1;
    grid.Invalidate();
    EXPECT_EQ(TextSpan(u, 2, window_).first, before + 20);
}

TEST_F(GridPainting, TextOfACentredColumnStandsInTheMiddle)
{
    const std::pair<int, int> span = TextSpan(u, 1, window_);
    ASSERT_GE(span.first, 0);
    EXPECT_NEAR((span.first + span.second) / 2, 40, 2);
}

TEST_F(GridPainting, TextOfALeftColumnStandsAtTheLeftEdge)
{
    EXPECT_LE(TextSpan(u, 2, window_).first, 3);
}

TEST_F(GridPainting, AmpersandIsDrawnAsItIs)
{
    grid.SetCellText(u, 2, L"II");
    const std::pair<int, int> plain = TextSpan(u, 2, window_);
    grid.SetCellText(u, 2, L"I&I");
    EXPECT_GT(TextSpan(u, 2, window_).second, plain.second + 3);
}

TEST_F(GridPainting, CheckBoxIsAFrameUnlessItHasImages)
{
    grid.SetCellText(u, 1, L"");
    grid.SetCellKind(u, 1, kCellCheckBox);
    const int unchecked = InkOf(u, 1, window_);
    EXPECT_EQ(TextSpan(u, 1, window_), (std::pair{2, 17}));
    grid.SetCellChecked(u, 1, true);
    EXPECT_GT(InkOf(u, 1, window_), unchecked);
}

// It stands 2 pixels in, clear of the grid line, and at the top: 17 less 16 leave nothing to halve.
TEST_F(GridPainting, CheckBoxWithoutImagesIsTheFlatOneOfWindows)
{
    constexpr int kSide = 16;
    grid.SetCellText(u, 1, L"");
    grid.SetCellKind(u, 1, kCellCheckBox);
    for (const UINT state : {0U, UINT{DFCS_CHECKED}})
    {
        SCOPED_TRACE(state != 0 ? "checked" : "unchecked");
        grid.SetCellChecked(u, 1, state != 0);
        Paint();
        const CRect cell = grid.GetCellRect(u, 1);
        const CRect place(cell.left + 2, cell.top, cell.left + 2 + kSide, cell.top + kSide);
        const Pixels box = PaintedPixels(kSide, kSide, [&](CDC& dc) {
            CRect area(0, 0, kSide, kSide);
            dc.DrawFrameControl(&area, DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_FLAT | state);
        });
        EXPECT_EQ(DifferentPixels(PartOf(ShownPixels(grid.GetSafeHwnd()), place), box), 0);
    }
}

TEST_F(GridPainting, CheckBoxShowsTheImageOfItsState)
{
    grid.SetCellKind(u, 1, kCellCheckBox);
    grid.SetCheckImages(u, 1, 3, 4);
    EXPECT_EQ(Middle(u, 1, 5), Colour{kUncheckedColour});
    grid.SetCellChecked(u, 1, true);
    EXPECT_EQ(Middle(u, 1, 5), Colour{kCheckedColour});
    EXPECT_EQ(Middle(u, 1, 15), Colour{kCheckedColour});
    EXPECT_EQ(Middle(u, 1, 16), window_);
}

TEST_F(GridPainting, CheckBoxHasAFrameInTheStateWithoutAnImage)
{
    grid.SetCellText(u, 1, L"");
    grid.SetCellKind(u, 1, kCellCheckBox);
    grid.SetCheckImages(u, 1, 3, -1);
    EXPECT_EQ(TextSpan(u, 1, window_), (std::pair{2, 17}));
    EXPECT_EQ(Middle(u, 1, 10), window_);
    grid.SetCellChecked(u, 1, true);
    EXPECT_EQ(Middle(u, 1, 10), Colour{kCheckedColour});
}

TEST_F(GridPainting, CellImageMovesItsText)
{
    const int before = TextSpan(u, 2, window_).first;
    grid.SetCellText(u, 2, L"");
    grid.SetCellImage(u, 2, 2);
    EXPECT_EQ(Middle(u, 2, 2), rowImage);
    grid.SetCellImage(u, 2, -1);
    grid.SetCellText(u, 2, L"U2");
    EXPECT_EQ(TextSpan(u, 2, window_).first, before);
}

// The third column is 80 wide, the button 17: the text must end before 80 - 17 - 2.
TEST_F(GridPainting, TextStopsShortOfTheButton)
{
    grid.SetCellText(u, 2, L"MMMMMMMMMMMMMMM");
    EXPECT_GT(TextSpan(u, 2, window_).second, 70);
    grid.SetCellKind(u, 2, kCellButton);
    grid.SetFocusCell(u, 2, false);
    const auto expectRoom = [this] {
        ASSERT_TRUE(grid.HasEditor());
        Paint();
        const CRect cell = grid.GetCellRect(u, 2);
        for (int y = 2; y < cell.Height() - 2; ++y)
            EXPECT_EQ(PixelAt(cell.right - cell.Height() - 2, cell.top + y), kFocusColour) << y;
    };
    expectRoom();
    PressKey(VK_ESCAPE);  // opens it anew
    expectRoom();
    PressKey(VK_SPACE);  // ends it
    ASSERT_FALSE(grid.HasEditor());
    EXPECT_GT(TextSpan(u, 2, kFocusColour).second, 70);
    ASSERT_TRUE(grid.OpenEditor());
    expectRoom();
}

TEST_F(GridPainting, BoldRowHasMoreInk)
{
    const int plain = InkOf(u, 2, window_);
    grid.SetRowBold(u, true);
    EXPECT_GT(InkOf(u, 2, window_), plain);
}

TEST_F(GridPainting, CellsFollowTheShownOrderOfTheColumns)
{
    int order[] = {2, 0, 1};
    grid.SetColumnOrderArray(3, order);
    grid.SetFocusCell(u, 2, false);
    Paint();
    const int y = grid.GetCellRect(u, 0).CenterPoint().y;
    EXPECT_EQ(PixelAt(70, y), kFocusColour);
    EXPECT_EQ(PixelAt(180, y), highlight);
}

TEST_F(GridPainting, CellsFollowScrollingBothWays)
{
    grid.InsertFColumn(3, L"wide", LVCFMT_LEFT, 900, false);
    for (int row = 0; row < 40; ++row)
        window.AddTop(L"V");
    grid.SetFocusCell(u, 1, false);
    grid.Scroll(CSize(100, grid.GetCellRect(u, 0).Height()));
    Paint();
    const CRect cell = grid.GetCellRect(u, 1);
    EXPECT_EQ(cell.left, 30);
    EXPECT_EQ(PixelAt(33, cell.CenterPoint().y), kFocusColour);
    EXPECT_EQ(PixelAt(20, cell.CenterPoint().y), highlight);
}

// The list, one row shorter, scrolls back by one.
TEST_F(GridPainting, RowsAreWhereTheyBelongAfterTheLastOfAScrolledListIsDeleted)
{
    RowKey last = nullptr;
    for (int row = 0; row < 40; ++row)
        last = window.AddTop(row % 3 == 0 ? L"VVVVV" : L"W");
    grid.EnsureVisible(grid.FindRow(last)->ListIndex(), FALSE);
    Paint();
    const int firstSeen = grid.GetTopIndex();
    ASSERT_GT(firstSeen, 0);
    grid.DeleteRow(last);
    ASSERT_LT(grid.GetTopIndex(), firstSeen);
    Paint();
    const Pixels shown = ShownPixels(grid.GetSafeHwnd());
    grid.Invalidate();
    Paint();
    EXPECT_EQ(DifferentPixels(shown, ShownPixels(grid.GetSafeHwnd())), 0);
}

TEST_F(GridPainting, TextStandsInOneLineHalfwayBetweenTheEdges)
{
    grid.SetCellText(u, 2, L"I");
    const std::vector<int> lines = TextLines(u, 2, window_);
    ASSERT_FALSE(lines.empty());
    EXPECT_NEAR(lines.front(), grid.GetCellRect(u, 2).Height() - 1 - lines.back(), 1);
    const int right = TextSpan(u, 2, window_).second;
    grid.SetCellText(u, 2, L"I\nI");
    EXPECT_GT(TextSpan(u, 2, window_).second, right);  // the second stands beside the first
}
