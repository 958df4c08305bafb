#include "host/dimension_shape.h"

#include <ostream>

#include <gtest/gtest.h>

#include "fixed_text_measure.h"

void PrintTo(const SheetPoint& point, std::ostream* out)
{
    *out << '(' << point.x << ", " << point.y << ')';
}

namespace
{
constexpr double kNear = 1e-9;  // sums of a few doubles of some hundred pixels

void ExpectNear(SheetPoint actual, SheetPoint expected)
{
    EXPECT_NEAR(actual.x, expected.x, kNear);
    EXPECT_NEAR(actual.y, expected.y, kNear);
}

void ExpectNear(const SheetLine& actual, SheetPoint from, SheetPoint to)
{
    ExpectNear(actual.from, from);
    ExpectNear(actual.to, to);
}

/// 100 millimetres from left to right, 10 above the measured edge; at one pixel a millimetre.
DrawingDimension Level()
{
    DrawingDimension dimension;
    dimension.nominal = "100";
    dimension.from = {0, 0};
    dimension.to = {100, 0};
    dimension.offset = 10;
    return dimension;
}

DimensionShape Layout(const DrawingDimension& dimension, double unit = 1.0)
{
    return LayoutDimension(dimension, SheetTransform{1.0, {0, 200}}, FixedTextMeasure(), unit);
}
}  // namespace

TEST(DimensionShape, LineRunsBesideTheMeasuredPoints)
{
    const DimensionShape shape = Layout(Level());

    ASSERT_EQ(shape.dimensionLines.size(), 1U);
    ExpectNear(shape.dimensionLines[0], {0, 190}, {100, 190});
}

TEST(DimensionShape, ExtensionLinesBeginBesideTheBodyAndEndBeyondTheLine)
{
    const DimensionShape shape = Layout(Level());

    ASSERT_EQ(shape.extensionLines.size(), 2U);
    ExpectNear(shape.extensionLines[0], {0, 198}, {0, 185});
    ExpectNear(shape.extensionLines[1], {100, 198}, {100, 185});
}

TEST(DimensionShape, ANegativeOffsetLiesOnTheOtherSide)
{
    DrawingDimension dimension = Level();
    dimension.offset = -10;
    const DimensionShape shape = Layout(dimension);

    ExpectNear(shape.dimensionLines[0], {0, 210}, {100, 210});
    ExpectNear(shape.extensionLines[0], {0, 202}, {0, 215});
}

TEST(DimensionShape, NoOffsetNeedsNoExtensionLines)
{
    DrawingDimension dimension = Level();
    dimension.offset = 0;

    EXPECT_TRUE(Layout(dimension).extensionLines.empty());
}

TEST(DimensionShape, ArrowsPointOutwardsAtTheEnds)
{
    const DimensionShape shape = Layout(Level());

    ASSERT_EQ(shape.arrows.size(), 2U);
    ExpectNear(shape.arrows[0][0], {0, 190});
    ExpectNear(shape.arrows[0][1], {11, 192});
    ExpectNear(shape.arrows[0][2], {11, 188});
    ExpectNear(shape.arrows[1][0], {100, 190});
    ExpectNear(shape.arrows[1][1], {89, 188});
    ExpectNear(shape.arrows[1][2], {89, 192});
}

// Two arrows of 11 and the 12 between them need 34 pixels.
TEST(DimensionShape, ArrowsOfAShortLineComeFromOutside)
{
    DrawingDimension dimension = Level();
    dimension.to = {34, 0};
    EXPECT_NEAR(Layout(dimension).arrows[0][1].x, 11, kNear);

    dimension.to = {33.9, 0};
    const DimensionShape shape = Layout(dimension);
    ExpectNear(shape.arrows[0][0], {0, 190});
    EXPECT_NEAR(shape.arrows[0][1].x, -11, kNear);
    EXPECT_NEAR(shape.arrows[1][1].x, 33.9 + 11, kNear);
    ExpectNear(shape.dimensionLines[0], {-20, 190}, {33.9 + 20, 190});
}

// Three letters of 6 in the middle of 100, one pixel above the line.
TEST(DimensionShape, TextStandsAboveTheMiddleOfItsLine)
{
    const DimensionShape shape = Layout(Level());

    ASSERT_EQ(shape.texts.size(), 1U);
    EXPECT_EQ(shape.texts[0].text, "100");
    ExpectNear(shape.texts[0].box.corner, {41, 179});
    EXPECT_EQ(shape.texts[0].box.direction, (SheetVector{1, 0}));
    EXPECT_EQ(shape.texts[0].box.width, 18);
    EXPECT_EQ(shape.texts[0].box.height, 10);
}

// Label 18 wide, gap 4, deviations 6 letters of 4: 46 in all, so from 27 to 73. Two deviations of 8 are 16 high, the
// label of 10 is in their middle.
TEST(DimensionShape, DeviationsStandAboveEachOtherBehindTheLabel)
{
    DrawingDimension dimension = Level();
    dimension.upper = "0.2";
    dimension.lower = "-0.125";
    const DimensionShape shape = Layout(dimension);

    ASSERT_EQ(shape.texts.size(), 3U);
    ExpectNear(shape.texts[0].box.corner, {27, 176});
    EXPECT_EQ(shape.texts[1].text, "+0.2");
    EXPECT_EQ(shape.texts[1].size, TextSize::kDeviation);
    ExpectNear(shape.texts[1].box.corner, {49, 173});
    EXPECT_EQ(shape.texts[2].text, "-0.125");
    ExpectNear(shape.texts[2].box.corner, {49, 181});
    ExpectNear(shape.textBox.corner, {27, 173});
    EXPECT_EQ(shape.textBox.width, 46);
    EXPECT_EQ(shape.textBox.height, 16);
}

TEST(DimensionShape, EqualDeviationsAreOneTextAsLargeAsTheLabel)
{
    DrawingDimension dimension = Level();
    dimension.upper = "0.2";
    dimension.lower = "-0.2";
    const DimensionShape shape = Layout(dimension);

    ASSERT_EQ(shape.texts.size(), 2U);
    EXPECT_EQ(shape.texts[1].size, TextSize::kLabel);
    EXPECT_EQ(shape.textBox.height, 10);
}

TEST(DimensionShape, ATextWithoutRoomGoesBeyondTheRightEnd)
{
    DrawingDimension dimension = Level();
    dimension.to = {18 + 2 * 4 + 0.5, 0};
    EXPECT_LT(Layout(dimension).texts[0].box.corner.x, 26.5);

    dimension.to = {26 - 0.1, 0};  // the arrows come from outside now: the text begins where their line would end
    const DimensionShape shape = Layout(dimension);
    ExpectNear(shape.texts[0].box.corner, {25.9 + 20, 179});
    ExpectNear(shape.dimensionLines[0].to, {25.9 + 20 + 18, 190});

    dimension.nominal = "1000000";  // 42 wide
    dimension.to = {40, 0};
    const DimensionShape longer = Layout(dimension);
    ExpectNear(longer.texts[0].box.corner, {44, 179});
    ExpectNear(longer.dimensionLines[0], {0, 190}, {44 + 42, 190});
}

TEST(DimensionShape, ADimensionFromRightToLeftReadsTheSameWay)
{
    DrawingDimension dimension = Level();
    std::swap(dimension.from, dimension.to);
    dimension.offset = -10;
    const DimensionShape shape = Layout(dimension);

    EXPECT_EQ(shape.texts[0].box.direction, (SheetVector{1, 0}));
    ExpectNear(shape.texts[0].box.corner, {41, 179});
}

// Upwards on the sheet, 10 to the left: the text runs upwards, on the left of its line.
TEST(DimensionShape, AnUprightTextReadsFromTheRight)
{
    DrawingDimension dimension = Level();
    for (const bool upwards : {true, false})
    {
        SCOPED_TRACE(upwards);
        dimension.from = {0, upwards ? 0.0 : 100.0};
        dimension.to = {0, upwards ? 100.0 : 0.0};
        dimension.offset = upwards ? 10 : -10;
        const DimensionShape shape = Layout(dimension);

        EXPECT_NEAR(shape.texts[0].box.direction.x, 0, kNear);
        EXPECT_NEAR(shape.texts[0].box.direction.y, -1, kNear);
        ExpectNear(shape.texts[0].box.corner, {-21, 159});
    }
}

TEST(DimensionShape, ADimensionWithoutLengthIsOnlyItsText)
{
    DrawingDimension dimension = Level();
    dimension.to = dimension.from;
    const DimensionShape shape = Layout(dimension);

    EXPECT_TRUE(shape.dimensionLines.empty());
    EXPECT_TRUE(shape.extensionLines.empty());
    EXPECT_TRUE(shape.arrows.empty());
    ASSERT_EQ(shape.texts.size(), 1U);
    ExpectNear(shape.texts[0].box.corner, {0, 190});
}

TEST(DimensionShape, ArrowsAndGapsGrowWithTheResolution)
{
    const DimensionShape shape = Layout(Level(), 2.0);

    EXPECT_NEAR(shape.arrows[0][1].x, 22, kNear);
    ExpectNear(shape.extensionLines[0], {0, 196}, {0, 180});
}

TEST(TurnedBox, ContainsWhatIsInsideItsTurnedRectangle)
{
    const TurnedBox upright{{10, 100}, {0, -1}, 40, 8};  // runs upwards from y 100 to 60, its top on the left

    EXPECT_TRUE(upright.Contains({10, 100}));
    EXPECT_TRUE(upright.Contains({17, 61}));
    EXPECT_FALSE(upright.Contains({9, 80}));
    EXPECT_FALSE(upright.Contains({19, 80}));
    EXPECT_FALSE(upright.Contains({14, 59}));
    EXPECT_FALSE(upright.Contains({14, 101}));
    ExpectNear(upright.Corners()[2], {18, 60});
}
