#include "host/dimension_choice.h"

#include <gtest/gtest.h>

namespace
{
/// A dimension with its line from (left, y) to (right, y) and its text box above the left end.
DimensionShape Shape(double left, double right, double y)
{
    DimensionShape shape;
    shape.dimensionLines = {{{left, y}, {right, y}}};
    shape.extensionLines = {{{left, y}, {left, y + 500}}};
    shape.textBox = {{left, y - 12}, {1, 0}, 30, 10};
    return shape;
}

SheetLayout Layout(std::vector<DimensionShape> shapes)
{
    SheetLayout layout;
    layout.dimensions = std::move(shapes);
    return layout;
}
}  // namespace

TEST(DimensionAt, FindsALineWithinTheTolerance)
{
    const SheetLayout layout = Layout({Shape(0, 100, 50)});

    EXPECT_EQ(DimensionAt(layout, {60, 54}, 4), 0U);
    EXPECT_EQ(DimensionAt(layout, {60, 46}, 4), 0U);
    EXPECT_EQ(DimensionAt(layout, {60, 54.5}, 4), std::nullopt);
    EXPECT_EQ(DimensionAt(layout, {103, 50}, 4), 0U);
    EXPECT_EQ(DimensionAt(layout, {105, 50}, 4), std::nullopt);
}

TEST(DimensionAt, FindsTheText)
{
    const SheetLayout layout = Layout({Shape(0, 100, 50)});

    EXPECT_EQ(DimensionAt(layout, {29, 39}, 0), 0U);
    EXPECT_EQ(DimensionAt(layout, {31, 39}, 0), std::nullopt);
}

TEST(DimensionAt, DoesNotFindAnExtensionLine)
{
    EXPECT_EQ(DimensionAt(Layout({Shape(0, 100, 50)}), {0, 200}, 4), std::nullopt);
}

TEST(DimensionAt, TheNearestOfTwoLinesWinsAndTheFirstOfTwoAtTheSamePlace)
{
    const SheetLayout layout = Layout({Shape(0, 100, 50), Shape(0, 100, 56), Shape(0, 100, 56)});

    EXPECT_EQ(DimensionAt(layout, {60, 52}, 8), 0U);
    EXPECT_EQ(DimensionAt(layout, {60, 54}, 8), 1U);
}

TEST(DimensionAt, ATextWinsOverALineOfAnotherDimension)
{
    const SheetLayout layout = Layout({Shape(0, 100, 50), Shape(10, 100, 60)});  // the second text is at 48 to 58

    EXPECT_EQ(DimensionAt(layout, {20, 50}, 4), 1U);
}

TEST(DimensionAt, FindsNothingInAnEmptyDrawing)
{
    EXPECT_EQ(DimensionAt(SheetLayout{}, {0, 0}, 100), std::nullopt);
}

TEST(ChoosingByKeyboard, GoesRound)
{
    EXPECT_EQ(NextDimension(3, std::nullopt), 0U);
    EXPECT_EQ(NextDimension(3, 0), 1U);
    EXPECT_EQ(NextDimension(3, 2), 0U);
    EXPECT_EQ(PreviousDimension(3, std::nullopt), 2U);
    EXPECT_EQ(PreviousDimension(3, 0), 2U);
    EXPECT_EQ(PreviousDimension(3, 2), 1U);
}

TEST(ChoosingByKeyboard, FindsNothingInAnEmptyDrawing)
{
    EXPECT_EQ(NextDimension(0, std::nullopt), std::nullopt);
    EXPECT_EQ(PreviousDimension(0, std::nullopt), std::nullopt);
}
