#include "drawing/gdi_painter.h"

#include <gtest/gtest.h>

#include "drawing/display_list.h"
#include "gdi_exhaustion.h"
#include "tests/support/resource_count.h"
#include "white_canvas.h"

namespace
{

constexpr COLORREF kWhitePixel = RGB(255, 255, 255);
constexpr COLORREF kBlackPixel = RGB(0, 0, 0);
constexpr COLORREF kGreenPixel = RGB(97, 220, 5);
constexpr COLORREF kRedPixel = RGB(255, 0, 0);
constexpr Rgb kGreen{97, 220, 5};
constexpr Rgb kRed{255, 0, 0};

TEST(GdiPainter, PaintsALineBlackAndOnePixelWideUpToButWithoutItsEnd)
{
    WhiteCanvas canvas(30, 20);
    DisplayList list;
    list.Line(5, 4, 5, 14);
    PaintDisplayList(canvas.Dc(), list);
    EXPECT_EQ(canvas.At(5, 4), kBlackPixel);
    EXPECT_EQ(canvas.At(5, 13), kBlackPixel);
    EXPECT_EQ(canvas.At(5, 14), kWhitePixel);
    EXPECT_EQ(canvas.Count(kBlackPixel), 10);
}

TEST(GdiPainter, PaintsLinesBlackWhateverPenTheContextHas)
{
    WhiteCanvas canvas(30, 20);
    const HPEN pen = ::CreatePen(PS_SOLID, 3, RGB(0, 0, 255));
    {
        const ScopedSelect selected(canvas.Dc(), pen);
        DisplayList list;
        list.Line(0, 10, 20, 10);
        PaintDisplayList(canvas.Dc(), list);
        EXPECT_EQ(::GetCurrentObject(canvas.Dc().GetSafeHdc(), OBJ_PEN), pen) << "the context's pen comes back";
    }
    ::DeleteObject(pen);
    EXPECT_EQ(canvas.Count(kBlackPixel), 20);
    EXPECT_EQ(canvas.Count(RGB(0, 0, 255)), 0);
}

TEST(GdiPainter, FillsAPolygonRegionWithoutItsRightAndBottomEdge)
{
    WhiteCanvas canvas(30, 20);
    DisplayList list;
    list.Fill(kGreen, {{4, 3}, {14, 3}, {14, 9}, {4, 9}});
    PaintDisplayList(canvas.Dc(), list);
    EXPECT_EQ(canvas.Drawn(), CRect(4, 3, 14, 9));
    EXPECT_EQ(canvas.Count(kGreenPixel), 10 * 6);
    EXPECT_EQ(canvas.Count(kBlackPixel), 0) << "a region has no border";
}

// Two turns around the same square: the even-odd rule would leave it white.
TEST(GdiPainter, FillsAPolygonByTheWindingRule)
{
    WhiteCanvas canvas(30, 20);
    DisplayList list;
    list.Fill(kGreen, {{4, 3}, {14, 3}, {14, 9}, {4, 9}, {4, 3}, {14, 3}, {14, 9}, {4, 9}});
    PaintDisplayList(canvas.Dc(), list);
    EXPECT_EQ(canvas.Count(kGreenPixel), 10 * 6);
}

TEST(GdiPainter, FillsARectangleWithoutItsRightAndBottomEdge)
{
    WhiteCanvas canvas(30, 20);
    DisplayList list;
    list.Rect(kRed, 2, 3, 8, 5);
    PaintDisplayList(canvas.Dc(), list);
    EXPECT_EQ(canvas.Drawn(), CRect(2, 3, 8, 5));
    EXPECT_EQ(canvas.Count(kRedPixel), 6 * 2);
}

TEST(GdiPainter, LeavesAnOutlineOpen)
{
    WhiteCanvas canvas(30, 20);
    DisplayList list;
    list.Outline({{4, 12}, {4, 3}, {14, 3}, {14, 12}});
    PaintDisplayList(canvas.Dc(), list);
    EXPECT_EQ(canvas.At(4, 12), kBlackPixel);
    EXPECT_EQ(canvas.At(9, 3), kBlackPixel);
    EXPECT_EQ(canvas.At(14, 11), kBlackPixel);
    EXPECT_EQ(canvas.At(9, 12), kWhitePixel) << "no way back to the first point";
    EXPECT_EQ(canvas.At(9, 8), kWhitePixel) << "no filling";
}

TEST(GdiPainter, CoversWhatWasDrawnBefore)
{
    WhiteCanvas canvas(30, 20);
    DisplayList list;
    list.Rect(kRed, 0, 0, 10, 10);
    list.Rect(kGreen, 5, 5, 15, 15);
    PaintDisplayList(canvas.Dc(), list);
    EXPECT_EQ(canvas.At(4, 4), kRedPixel);
    EXPECT_EQ(canvas.At(7, 7), kGreenPixel);
}

CRect DrawnText(TextAlign align, const std::string& text)
{
    WhiteCanvas canvas(200, 60);
    DisplayList list;
    list.Text(100, 20, align, text);
    PaintDisplayList(canvas.Dc(), list);
    return canvas.Drawn();
}

TEST(GdiPainter, StartsALeftAlignedTextAtItsX)
{
    const CRect drawn = DrawnText(TextAlign::Left, "HHH");
    ASSERT_FALSE(drawn.IsRectEmpty());
    EXPECT_GE(drawn.left, 100);
    EXPECT_LE(drawn.left, 102) << "within the letter's own margin";
}

TEST(GdiPainter, EndsARightAlignedTextAtItsX)
{
    const CRect drawn = DrawnText(TextAlign::Right, "HHH");
    ASSERT_FALSE(drawn.IsRectEmpty());
    EXPECT_LE(drawn.right, 100);
    EXPECT_GE(drawn.right, 97) << "within the letter's own margin";
}

TEST(GdiPainter, CentresACentredTextOnItsX)
{
    const CRect drawn = DrawnText(TextAlign::Center, "HHH");
    ASSERT_FALSE(drawn.IsRectEmpty());
    EXPECT_NEAR((drawn.left + drawn.right) / 2, 100, 2) << "margins of the letters differ by a pixel";
}

TEST(GdiPainter, HangsATextFromItsY)
{
    const CRect drawn = DrawnText(TextAlign::Left, "HHH");
    ASSERT_FALSE(drawn.IsRectEmpty());
    EXPECT_GE(drawn.top, 20);
    EXPECT_LE(drawn.bottom, 20 + 20) << "one line of the default font";
}

TEST(GdiPainter, WritesATextInItsColourWithoutPaintingItsGround)
{
    WhiteCanvas canvas(100, 40);
    DisplayList list;
    list.Rect(kGreen, 0, 0, 100, 40);
    list.Text(10, 10, TextAlign::Left, "HHH", kRed);
    PaintDisplayList(canvas.Dc(), list);
    EXPECT_GT(canvas.Count(kRedPixel), 10);
    EXPECT_EQ(canvas.Count(kWhitePixel), 0);
}

// Cyrillic letters: two bytes each in UTF-8, one unit each in UTF-16.
TEST(GdiPainter, WritesLettersBeyondAscii)
{
    WhiteCanvas expected(100, 40);
    ::TextOutW(expected.Dc().GetSafeHdc(), 10, 10, L"\x0416\x0428", 2);
    WhiteCanvas canvas(100, 40);
    DisplayList list;
    list.Text(10, 10, TextAlign::Left, "\xD0\x96\xD0\xA8");
    PaintDisplayList(canvas.Dc(), list);
    ASSERT_FALSE(expected.Drawn().IsRectEmpty());
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 100; ++x)
            ASSERT_EQ(canvas.At(x, y), expected.At(x, y)) << x << ' ' << y;
}

TEST(GdiPainter, PutsColoursAndAlignmentOfTheContextBack)
{
    WhiteCanvas canvas(60, 40);
    const HDC dc = canvas.Dc().GetSafeHdc();
    ::SetTextColor(dc, RGB(1, 2, 3));
    ::SetBkColor(dc, RGB(4, 5, 6));
    ::SetTextAlign(dc, TA_BASELINE | TA_RIGHT);
    DisplayList list;
    list.Text(10, 10, TextAlign::Center, "H", kRed);
    list.Rect(kGreen, 0, 0, 5, 5);
    PaintDisplayList(canvas.Dc(), list);
    EXPECT_EQ(::GetTextColor(dc), RGB(1, 2, 3));
    EXPECT_EQ(::GetBkColor(dc), RGB(4, 5, 6));
    EXPECT_EQ(::GetTextAlign(dc), static_cast<UINT>(TA_BASELINE | TA_RIGHT));
    EXPECT_EQ(::GetBkMode(dc), OPAQUE);
}

DisplayList OneOfEachPrimitive()
{
    DisplayList list;
    list.Fill(kGreen, {{4, 3}, {14, 3}, {14, 9}, {4, 9}});
    list.Rect(kRed, 2, 3, 8, 5);
    list.Text(10, 10, TextAlign::Left, "HHH");
    list.Outline({{4, 12}, {4, 3}, {14, 3}, {14, 12}});
    list.Line(0, 15, 30, 15);
    return list;
}

TEST(GdiPainter, LeavesNoGraphicsObjectsBehind)
{
    WhiteCanvas canvas(30, 20);
    PaintDisplayList(canvas.Dc(), OneOfEachPrimitive());
    const int before = GdiObjectCount();
    for (int i = 0; i < 20; ++i)
        PaintDisplayList(canvas.Dc(), OneOfEachPrimitive());
    EXPECT_EQ(GdiObjectCount(), before);
}

TEST(GdiPainter, GoesOnWithoutFillingsWhenNoBrushCanBeMade)
{
    WhiteCanvas canvas(30, 20);
    {
        const GdiExhaustion exhaustion;
        EXPECT_NO_THROW(PaintDisplayList(canvas.Dc(), OneOfEachPrimitive()));
    }
    EXPECT_EQ(canvas.At(20, 15), kBlackPixel) << "the last primitive";
}

TEST(GdiPainter, PaintsNothingForAnEmptyList)
{
    WhiteCanvas canvas(30, 20);
    PaintDisplayList(canvas.Dc(), DisplayList{});
    EXPECT_TRUE(canvas.Drawn().IsRectEmpty());
}

}  // namespace
