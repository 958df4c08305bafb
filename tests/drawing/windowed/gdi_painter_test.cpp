#include "drawing/gdi_painter.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

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
constexpr Rgb kWhite{255, 255, 255};

void Paint(WhiteCanvas& canvas, const DisplayList& list)
{
    PaintDisplayList(canvas.Dc(), list, CSize(canvas.Width(), canvas.Height()));
}

TEST(GdiPainter, PaintsALineBlackAndOnePixelWideUpToButWithoutItsEnd)
{
    WhiteCanvas canvas(30, 20);
    DisplayList list;
    list.Line(5, 4, 5, 14);
    Paint(canvas, list);
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
        Paint(canvas, list);
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
    Paint(canvas, list);
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
    Paint(canvas, list);
    EXPECT_EQ(canvas.Count(kGreenPixel), 10 * 6);
}

TEST(GdiPainter, FillsARectangleWithoutItsRightAndBottomEdge)
{
    WhiteCanvas canvas(30, 20);
    DisplayList list;
    list.Rect(kRed, 2, 3, 8, 5);
    Paint(canvas, list);
    EXPECT_EQ(canvas.Drawn(), CRect(2, 3, 8, 5));
    EXPECT_EQ(canvas.Count(kRedPixel), 6 * 2);
}

TEST(GdiPainter, LeavesAnOutlineOpen)
{
    WhiteCanvas canvas(30, 20);
    DisplayList list;
    list.Outline({{4, 12}, {4, 3}, {14, 3}, {14, 12}});
    Paint(canvas, list);
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
    Paint(canvas, list);
    EXPECT_EQ(canvas.At(4, 4), kRedPixel);
    EXPECT_EQ(canvas.At(7, 7), kGreenPixel);
}

CRect DrawnText(TextAlign align, const std::string& text)
{
    WhiteCanvas canvas(200, 60);
    DisplayList list;
    list.Text(100, 20, align, text);
    Paint(canvas, list);
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
    Paint(canvas, list);
    EXPECT_GT(canvas.Count(kRedPixel), 10);
    EXPECT_EQ(canvas.Count(kWhitePixel), 0);
}

// A filled rectangle leaves its colour behind as the ground of the texts after it.
TEST(GdiPainter, WritesPlainTextsOnWhite)
{
    WhiteCanvas canvas(100, 40);
    DisplayList list;
    list.textLook = TextLook::PlainOnWhite;
    list.Rect(kGreen, 0, 0, 100, 40);
    list.Text(10, 10, TextAlign::Left, "HHH", kRed);
    Paint(canvas, list);
    SIZE size{};
    ::GetTextExtentPoint32A(canvas.Dc().GetSafeHdc(), "HHH", 3, &size);
    EXPECT_GT(canvas.Count(kRedPixel), 10);
    EXPECT_EQ(canvas.Count(kRedPixel) + canvas.Count(kWhitePixel), size.cx * size.cy);
}

void ExpectTheSame(const WhiteCanvas& canvas, const WhiteCanvas& expected)
{
    for (int y = 0; y < expected.Height(); ++y)
        for (int x = 0; x < expected.Width(); ++x)
            ASSERT_EQ(canvas.At(x, y), expected.At(x, y)) << x << ' ' << y;
}

// Cyrillic letters: two bytes each in UTF-8, one unit each in UTF-16.
TEST(GdiPainter, WritesLettersBeyondAscii)
{
    WhiteCanvas expected(100, 40);
    ::TextOutW(expected.Dc().GetSafeHdc(), 10, 10, L"\x0416\x0428", 2);
    WhiteCanvas canvas(100, 40);
    DisplayList list;
    list.Text(10, 10, TextAlign::Left, "\xD0\x96\xD0\xA8");
    Paint(canvas, list);
    ASSERT_FALSE(expected.Drawn().IsRectEmpty());
    ExpectTheSame(canvas, expected);
}

/// A text in a picture 200 pixels wide.
class GdiPainterAtTheSides : public testing::Test
{
protected:
    static constexpr int kWidth = 200;
    static constexpr int kTop = 10;

    /// The text alone, with its left end in a column.
    static void ExpectAt(int left, const WhiteCanvas& canvas, const std::string& text)
    {
        WhiteCanvas expected(canvas.Width(), canvas.Height());
        ::TextOutA(expected.Dc().GetSafeHdc(), left, kTop, text.c_str(), static_cast<int>(text.size()));
        ASSERT_FALSE(expected.Drawn().IsRectEmpty());
        ExpectTheSame(canvas, expected);
    }

    static void ExpectAt(int left, int x, TextAlign align, const std::string& text, int width = kWidth)
    {
        SCOPED_TRACE(text);
        WhiteCanvas canvas(width, 40);
        DisplayList list;
        list.Text(x, kTop, align, text);
        Paint(canvas, list);
        ExpectAt(left, canvas, text);
    }

    static SIZE SizeOf(const std::string& text)
    {
        WhiteCanvas canvas(1, 1);
        SIZE size{};
        ::GetTextExtentPoint32A(canvas.Dc().GetSafeHdc(), text.c_str(), static_cast<int>(text.size()), &size);
        return size;
    }

    static int WhitePixelsOnGreen(int x, TextAlign align, const std::string& text)
    {
        WhiteCanvas canvas(kWidth, 40);
        DisplayList list;
        list.Rect(kGreen, 0, 0, kWidth, 40);
        list.Text(x, kTop, align, text);
        Paint(canvas, list);
        return canvas.Count(kWhitePixel);
    }

    const std::string m_text = "1249.8755";
    const int m_extent = SizeOf(m_text).cx;
};

TEST_F(GdiPainterAtTheSides, ATextBeyondTheLeftSideMovesToIt)
{
    ExpectAt(0, m_extent - 1, TextAlign::Right, m_text);
    ExpectAt(0, 5, TextAlign::Right, m_text);
    ExpectAt(0, -1, TextAlign::Left, m_text);
    ExpectAt(0, 5, TextAlign::Center, m_text);
    ExpectAt(0, -500, TextAlign::Center, m_text);
}

TEST_F(GdiPainterAtTheSides, ATextBeyondTheRightSideMovesToIt)
{
    const int last = kWidth - m_extent;
    ExpectAt(last, last + 1, TextAlign::Left, m_text);
    ExpectAt(last, kWidth - 5, TextAlign::Left, m_text);
    ExpectAt(last, kWidth + 1, TextAlign::Right, m_text);
    ExpectAt(last, kWidth - 5, TextAlign::Center, m_text);
    ExpectAt(last, 100000, TextAlign::Left, m_text);
}

TEST_F(GdiPainterAtTheSides, ATextWiderThanThePictureKeepsItsBeginning)
{
    const int width = m_extent - 10;
    for (const TextAlign align : {TextAlign::Left, TextAlign::Center, TextAlign::Right})
        ExpectAt(0, width / 2, align, m_text, width);
}

TEST_F(GdiPainterAtTheSides, ATextThatReachesTheSideStays)
{
    ExpectAt(0, 0, TextAlign::Left, m_text);
    ExpectAt(kWidth - m_extent, kWidth - m_extent, TextAlign::Left, m_text);
}

// Wherever a line runs, it touches no letter and shows in no gap between two, where it would look like a digit 1.
TEST_F(GdiPainterAtTheSides, AMovedTextKeepsLinesOffItsLetters)
{
    WhiteCanvas alone(kWidth, 40);
    ::TextOutA(alone.Dc().GetSafeHdc(), 0, kTop, m_text.c_str(), static_cast<int>(m_text.size()));
    const CRect ink = alone.Drawn();
    for (int line = 0; line < m_extent; ++line)
    {
        WhiteCanvas canvas(kWidth, 40);
        DisplayList list;
        list.Rect(kGreen, 0, 0, kWidth, 40);
        list.Text(5, kTop, TextAlign::Right, m_text);
        list.Line(line, 0, line, 40);
        Paint(canvas, list);
        for (int y = ink.top; y < ink.bottom; ++y)
            for (int x = ink.left; x < ink.right; ++x)
                ASSERT_EQ(canvas.At(x, y) == kBlackPixel, alone.At(x, y) == kBlackPixel)
                    << x << ' ' << y << ", line " << line;
        EXPECT_EQ(canvas.At(line, 0), kBlackPixel);
        EXPECT_EQ(canvas.At(line, 39), kBlackPixel);
    }
}

TEST_F(GdiPainterAtTheSides, AMovedTextLeavesColoursAndLinesBesideItsLetters)
{
    const CSize size = SizeOf(m_text);
    WhiteCanvas canvas(kWidth, 40);
    ::SetBkColor(canvas.Dc().GetSafeHdc(), RGB(1, 2, 3));
    DisplayList list;
    list.Rect(kGreen, 0, 0, kWidth, 40);
    list.Text(5, kTop, TextAlign::Right, m_text);
    list.Line(0, kTop, kWidth, kTop);
    list.Line(0, kTop + size.cy - 1, kWidth, kTop + size.cy - 1);
    Paint(canvas, list);
    for (const int row : {kTop, kTop + static_cast<int>(size.cy) - 1})
        for (int x = 0; x < kWidth; ++x)
            ASSERT_EQ(canvas.At(x, row), kBlackPixel) << x << ' ' << row;
    EXPECT_GT(canvas.Count(kWhitePixel), 0);
    EXPECT_LT(canvas.Count(kWhitePixel), size.cx * size.cy);
    EXPECT_EQ(canvas.At(kWidth - 1, 20), kGreenPixel);
}

TEST_F(GdiPainterAtTheSides, AMovedTextIsNotCoveredByWhatComesLater)
{
    WhiteCanvas canvas(kWidth, 40);
    DisplayList list;
    list.Text(5, kTop, TextAlign::Right, m_text);
    list.Rect(kWhite, 0, 0, kWidth, 40);
    Paint(canvas, list);
    ExpectAt(0, canvas, m_text);
}

TEST_F(GdiPainterAtTheSides, ATextAtItsPlaceIsCoveredByWhatComesLater)
{
    WhiteCanvas canvas(kWidth, 40);
    DisplayList list;
    list.Text(0, kTop, TextAlign::Left, m_text);
    list.Rect(kWhite, 0, 0, kWidth, 40);
    Paint(canvas, list);
    EXPECT_TRUE(canvas.Drawn().IsRectEmpty());
}

TEST_F(GdiPainterAtTheSides, ATextWithinThePictureHasNoHalo)
{
    EXPECT_EQ(WhitePixelsOnGreen(kWidth - m_extent, TextAlign::Left, m_text), 0);
    EXPECT_EQ(WhitePixelsOnGreen(m_extent, TextAlign::Right, m_text), 0);
    EXPECT_EQ(WhitePixelsOnGreen(kWidth / 2, TextAlign::Center, m_text), 0);
}

TEST_F(GdiPainterAtTheSides, ATextAfterAMovedOneHasNoHalo)
{
    DisplayList list;
    list.Text(5, 0, TextAlign::Right, m_text);
    list.Rect(kGreen, 0, 0, kWidth, 40);
    WhiteCanvas one(kWidth, 40);
    Paint(one, list);
    list.Text(kWidth / 2, 20, TextAlign::Center, m_text);
    WhiteCanvas two(kWidth, 40);
    Paint(two, list);
    EXPECT_GT(two.Count(kBlackPixel), one.Count(kBlackPixel));
    EXPECT_EQ(two.Count(kWhitePixel), one.Count(kWhitePixel));
}

/// Texts in one row of a picture 60 pixels high, and those that are expected to be seen, by their left ends and tops.
void ExpectPlaces(const DisplayList& list, const std::vector<std::pair<POINT, std::string>>& expected, int height = 60)
{
    WhiteCanvas canvas(200, height);
    Paint(canvas, list);
    WhiteCanvas apart(200, height);
    ::SetBkMode(apart.Dc().GetSafeHdc(), TRANSPARENT);
    for (const auto& [corner, text] : expected)
        ::TextOutA(apart.Dc().GetSafeHdc(), corner.x, corner.y, text.c_str(), static_cast<int>(text.size()));
    ASSERT_FALSE(apart.Drawn().IsRectEmpty());
    ExpectTheSame(canvas, apart);
}

TEST_F(GdiPainterAtTheSides, ATextGoesBelowAnEarlierOneThatItWouldCover)
{
    const SIZE size = SizeOf(m_text);
    DisplayList list;
    list.Text(100, 5, TextAlign::Right, m_text);
    list.Text(60, 5, TextAlign::Right, m_text);
    list.Text(110, 5, TextAlign::Right, m_text);
    ExpectPlaces(list, {{{100 - size.cx, 5}, m_text},
                        {{std::max(0L, 60 - size.cx), 5 + size.cy}, m_text},
                        {{110 - size.cx, 5 + 2 * size.cy}, m_text}});
}

TEST_F(GdiPainterAtTheSides, TextsSideBySideStay)
{
    const SIZE size = SizeOf(m_text);
    DisplayList list;
    list.Text(100, 5, TextAlign::Right, m_text);
    list.Text(100, 5, TextAlign::Left, m_text);
    list.Text(100, 5 + size.cy, TextAlign::Left, m_text);
    ExpectPlaces(list, {{{100 - size.cx, 5}, m_text}, {{100, 5}, m_text}, {{100, 5 + size.cy}, m_text}});
}

TEST_F(GdiPainterAtTheSides, ATextStaysOverAnotherWhereThereIsNoRoomBelow)
{
    const SIZE size = SizeOf(m_text);
    DisplayList list;
    list.Text(100, 5, TextAlign::Left, m_text);
    list.Text(110, 5, TextAlign::Left, m_text);
    ExpectPlaces(list, {{{100, 5}, m_text}, {{110, 5}, m_text}}, 5 + 2 * size.cy - 1);
}

// A halo would take the earlier text's letters away.
TEST_F(GdiPainterAtTheSides, ATextMovedOverAnotherHasNoHalo)
{
    const SIZE size = SizeOf(m_text);
    DisplayList list;
    list.Text(5, 5, TextAlign::Right, m_text);
    list.Text(20, 5, TextAlign::Right, "12345");
    ExpectPlaces(list, {{{0, 5}, m_text}, {{0, 5}, "12345"}}, 5 + 2 * size.cy - 1);
}

TEST_F(GdiPainterAtTheSides, ATextBeyondTheTopMovesToIt)
{
    DisplayList list;
    list.Text(100, -5, TextAlign::Left, m_text);
    ExpectPlaces(list, {{{100, 0}, m_text}});
}

TEST_F(GdiPainterAtTheSides, ATextBeyondTheBottomMovesToIt)
{
    const SIZE size = SizeOf(m_text);
    DisplayList list;
    list.Text(100, 59, TextAlign::Left, m_text);
    ExpectPlaces(list, {{{100, 60 - size.cy}, m_text}});
}

// A marker's label, with the line of another one through it.
TEST_F(GdiPainterAtTheSides, ATextThatALineRunsThroughLeavesItsOwnLineBesideIt)
{
    for (const bool isRight : {true, false})
    {
        SCOPED_TRACE(isRight);
        WhiteCanvas canvas(kWidth, 40);
        DisplayList list;
        const int own = 100;
        list.Line(own, 0, own, 40);
        list.Text(isRight ? own + 1 : own, kTop, isRight ? TextAlign::Left : TextAlign::Right, m_text);
        list.Line(isRight ? own + 20 : own - 20, 0, isRight ? own + 20 : own - 20, 40);
        Paint(canvas, list);
        for (int y = 0; y < 40; ++y)
            ASSERT_EQ(canvas.At(own, y), kBlackPixel) << y;
    }
}

TEST_F(GdiPainterAtTheSides, AMovedTextLeavesTheLettersOfItsNeighbour)
{
    DisplayList list;
    list.Text(kWidth - m_extent, 5, TextAlign::Right, m_text);
    list.Text(kWidth - m_extent + 5, 5, TextAlign::Left, m_text);
    ExpectPlaces(list, {{{kWidth - 2 * m_extent, 5}, m_text}, {{kWidth - m_extent, 5}, m_text}});
}

// A plain text's white box would take pieces out of what is around its letters.
TEST_F(GdiPainterAtTheSides, LiftedPlainTextsHaveNoWhiteBox)
{
    const SIZE size = SizeOf(m_text);
    for (const bool isMoved : {true, false})
    {
        SCOPED_TRACE(isMoved);
        WhiteCanvas canvas(kWidth, 40);
        DisplayList list;
        list.textLook = TextLook::PlainOnWhite;
        list.Rect(kGreen, 0, 0, kWidth, 40);
        list.Text(isMoved ? 5 : 100, kTop, TextAlign::Right, m_text);
        if (!isMoved)
            list.Line(60, 0, 60, 40);
        Paint(canvas, list);
        EXPECT_GT(canvas.Count(kWhitePixel), 0);
        EXPECT_EQ(canvas.At(isMoved ? 1 : 101 - m_extent, kTop), kGreenPixel) << "a corner of the box";
        EXPECT_LT(canvas.Count(kWhitePixel) + canvas.Count(kBlackPixel), size.cx * size.cy * 9 / 10);
    }
}

TEST_F(GdiPainterAtTheSides, AMovedTextKeepsItsColour)
{
    WhiteCanvas canvas(kWidth, 40);
    DisplayList list;
    list.Text(5, kTop, TextAlign::Right, m_text, kRed);
    Paint(canvas, list);
    EXPECT_GT(canvas.Count(kRedPixel), 10);
    EXPECT_EQ(canvas.Count(kBlackPixel), 0);
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
    list.Text(-10, 10, TextAlign::Left, "H", kRed);
    list.Rect(kGreen, 0, 0, 5, 5);
    Paint(canvas, list);
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
    list.Text(0, 0, TextAlign::Left, "HHH");
    list.Outline({{4, 12}, {4, 3}, {14, 3}, {14, 12}});
    list.Line(0, 15, 30, 15);
    return list;
}

TEST(GdiPainter, LeavesNoGraphicsObjectsBehind)
{
    WhiteCanvas canvas(30, 20);
    Paint(canvas, OneOfEachPrimitive());
    const int before = GdiObjectCount();
    for (int i = 0; i < 20; ++i)
        Paint(canvas, OneOfEachPrimitive());
    EXPECT_EQ(GdiObjectCount(), before);
}

TEST(GdiPainter, GoesOnWithoutFillingsWhenNoBrushCanBeMade)
{
    WhiteCanvas canvas(30, 20);
    {
        const GdiExhaustion exhaustion;
        EXPECT_NO_THROW(Paint(canvas, OneOfEachPrimitive()));
    }
    EXPECT_EQ(canvas.At(20, 15), kBlackPixel) << "the last primitive";
}

TEST(GdiPainter, PaintsNothingForAnEmptyList)
{
    WhiteCanvas canvas(30, 20);
    Paint(canvas, DisplayList{});
    EXPECT_TRUE(canvas.Drawn().IsRectEmpty());
}

}  // namespace
