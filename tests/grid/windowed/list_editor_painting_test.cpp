#include "grid_window.h"
#include "tests/support/message_pump.h"
#include "tests/support/pixels.h"

#include <algorithm>
#include <ranges>

// The closed field of the in-place list: background from the second line to the last but one, text in the focus text
// colour, an arrow at the right.

namespace
{
constexpr COLORREF kBack = RGB(240, 220, 40);
constexpr COLORREF kText = RGB(255, 0, 0);
constexpr int kColumnWidth = 80;
constexpr int kHeight = 17;
constexpr int kTextWidth = kColumnWidth - kHeight - 2;

bool IsInk(COLORREF colour)
{
    return colour != kBack;
}

bool IsText(COLORREF colour)
{
    return colour == kText;
}

// One row; column 1, which is centred, and column 2 are lists.
class ListEditorPainting : public GridTest
{
protected:
    ListEditorPainting()
    {
        window.entries = {{L"IMI", 1}, {L"MMMMMMMMMMMMMMMM", 2}};
        window.selectedEntry = 0;
        grid.SetFocusColours(kBack, kText);
        for (const int column : {1, 2})
            grid.SetCellKind(row, column, kCellList);
    }

    void Open(int column)
    {
        grid.SetFocusCell(row, 0, false);
        grid.SetFocusCell(row, column, false);
        grid.UpdateWindow();
        PumpUntilIdle();
        ASSERT_NE(Editor(302), nullptr);
        CRect client;
        ::GetClientRect(Editor(302), &client);
        ASSERT_EQ(client, CRect(0, 0, kColumnWidth, kHeight));
    }
    COLORREF PixelAt(int x, int y) const
    {
        const HDC dc = ::GetDC(Editor(302));
        const COLORREF colour = ::GetPixel(dc, x, y);
        ::ReleaseDC(Editor(302), dc);
        return colour;
    }
    /// The first and the last column, of so many, with a pixel that meets the condition; -1 for none.
    std::pair<int, int> SpanOf(bool (*isMet)(COLORREF), int columns) const
    {
        std::pair<int, int> span{-1, -1};
        for (int x = 0; x < columns; ++x)
            for (int y = 2; y < kHeight - 2; ++y)
                if (isMet(PixelAt(x, y)))
                {
                    if (span.first < 0)
                        span.first = x;
                    span.second = x;
                }
        return span;
    }

    void ExpectDottedEdge() const
    {
        for (const int line : {0, kHeight - 1})
            for (int x = 1; x < kTextWidth; ++x)
                EXPECT_NE(PixelAt(x, line), PixelAt(x - 1, line)) << x << ", " << line;
    }

    RowKey row = window.AddTop(L"A");
};
}  // namespace

TEST_F(ListEditorPainting, FieldIsFilledUnderADottedEdge)
{
    Open(2);
    EXPECT_EQ(PixelAt(kTextWidth - 1, 1), kBack);
    EXPECT_EQ(PixelAt(kTextWidth - 1, kHeight - 2), kBack);
    ExpectDottedEdge();
}

TEST_F(ListEditorPainting, EdgeStaysDottedWhenAPartIsRepainted)
{
    Open(2);
    const CRect rightHalf(kColumnWidth / 2, 0, kColumnWidth, kHeight);
    ::InvalidateRect(Editor(302), &rightHalf, FALSE);
    ::UpdateWindow(Editor(302));
    ExpectDottedEdge();
}

TEST_F(ListEditorPainting, ArrowFillsASquareAtTheRight)
{
    Open(2);
    EXPECT_EQ(PixelAt(kColumnWidth - kHeight - 1, kHeight / 2), kBack);
    for (int x = kColumnWidth - kHeight; x < kColumnWidth; ++x)
        EXPECT_NE(PixelAt(x, kHeight / 2), kBack) << x;
}

TEST_F(ListEditorPainting, ArrowIsTheOneOfAScrollBar)
{
    Open(2);
    const Pixels arrow = PaintedPixels(kHeight, kHeight, [](CDC& dc) {
        CRect area(0, 0, kHeight, kHeight);
        dc.DrawFrameControl(&area, DFC_SCROLL, DFCS_SCROLLDOWN);
    });
    const CRect place(kColumnWidth - kHeight, 0, kColumnWidth, kHeight);
    EXPECT_EQ(DifferentPixels(PartOf(ShownPixels(Editor(302)), place), arrow), 0);
}

TEST_F(ListEditorPainting, TextHasTheFocusTextColour)
{
    Open(2);
    EXPECT_GE(SpanOf(&IsText, kTextWidth).first, 0);
}

TEST_F(ListEditorPainting, TextIsAlignedAsItsColumn)
{
    Open(1);
    const std::pair<int, int> centred = SpanOf(&IsInk, kTextWidth);
    EXPECT_NEAR((centred.first + centred.second) / 2, kTextWidth / 2, 2);
    Open(2);
    EXPECT_LE(SpanOf(&IsInk, kTextWidth).first, 3);
}

TEST_F(ListEditorPainting, TextStandsInOneLineHalfwayBetweenTheEdges)
{
    window.entries = {{L"I", 1}, {L"I\nI", 2}};
    Open(2);
    std::vector<int> lines;
    for (int y = 1; y < kHeight - 1; ++y)
        if (std::ranges::any_of(std::views::iota(0, kTextWidth), [&](int x) { return IsInk(PixelAt(x, y)); }))
            lines.push_back(y);
    ASSERT_FALSE(lines.empty());
    EXPECT_NEAR(lines.front(), kHeight - 1 - lines.back(), 1);
    const int right = SpanOf(&IsInk, kTextWidth).second;
    window.selectedEntry = 1;
    Open(2);
    EXPECT_GT(SpanOf(&IsInk, kTextWidth).second, right);  // the second stands beside the first
}

TEST_F(ListEditorPainting, LongTextStopsShortOfTheArrow)
{
    window.selectedEntry = 1;
    Open(2);
    EXPECT_GT(SpanOf(&IsText, kColumnWidth).second, kTextWidth - 10);
    EXPECT_LT(SpanOf(&IsText, kColumnWidth).second, kTextWidth);
}

TEST_F(ListEditorPainting, AnotherChoiceIsDrawnAtOnce)
{
    Open(2);
    const int former = SpanOf(&IsText, kTextWidth).second;
    ASSERT_GE(former, 0);
    TypeText(L"M");  // chooses the entry that begins with it
    EXPECT_GT(SpanOf(&IsText, kTextWidth).second, former + 10);
    EXPECT_EQ(PixelAt(kTextWidth, kHeight / 2), kBack);
    EXPECT_EQ(PixelAt(kTextWidth / 2, 1), kBack);
    ExpectDottedEdge();
}

TEST_F(ListEditorPainting, TextOfABoldRowIsBold)
{
    const auto ink = [this] {
        int pixels = 0;
        for (int x = 0; x < kTextWidth; ++x)
            for (int y = 0; y < kHeight; ++y)
                pixels += IsText(PixelAt(x, y)) ? 1 : 0;
        return pixels;
    };
    Open(2);
    const int plain = ink();
    ASSERT_GT(plain, 0);
    grid.SetRowBold(row, true);
    Open(2);
    EXPECT_GT(ink(), plain * 5 / 4);
}
