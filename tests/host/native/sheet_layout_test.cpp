#include "host/sheet_layout.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

#include <gtest/gtest.h>

#include "fixed_text_measure.h"
#include "host/drawing_reader.h"

namespace
{
constexpr double kNearPixels = 1e-6;

Drawing Plate(double width, double height)
{
    Drawing drawing;
    drawing.outlines = {{{0, 0}, {width, 0}, {width, height}, {0, height}, {0, 0}}};
    return drawing;
}

void ExpectInside(const SheetLayout& layout, double width, double height)
{
    const auto expectInside = [&](SheetPoint point) {
        EXPECT_GE(point.x, -kNearPixels);
        EXPECT_GE(point.y, -kNearPixels);
        EXPECT_LE(point.x, width + kNearPixels);
        EXPECT_LE(point.y, height + kNearPixels);
    };
    for (const auto& outline : layout.outlines)
        std::for_each(outline.begin(), outline.end(), expectInside);
    for (const DimensionShape& shape : layout.dimensions)
    {
        for (const SheetLine& line : shape.dimensionLines)
        {
            expectInside(line.from);
            expectInside(line.to);
        }
        for (const SheetPoint corner : shape.textBox.Corners())
            expectInside(corner);
    }
}
}  // namespace

// 16 pixels of margin leave 200 x 100; the plate of 100 x 25 millimetres is limited by its width.
TEST(SheetLayout, FillsTheAreaUpToTheMarginAndCentresTheRest)
{
    const SheetLayout layout = LayoutSheet(Plate(100, 25), 232, 132, FixedTextMeasure(), 1.0);

    EXPECT_NEAR(layout.transform.scale, 2.0, kNearPixels);
    const std::vector<SheetPoint>& outline = layout.outlines.at(0);
    EXPECT_NEAR(outline[0].x, 16, kNearPixels);
    EXPECT_NEAR(outline[0].y, 66 + 25, kNearPixels);
    EXPECT_NEAR(outline[2].x, 216, kNearPixels);
    EXPECT_NEAR(outline[2].y, 66 - 25, kNearPixels);
}

TEST(SheetLayout, AnUprightDrawingIsLimitedByItsHeight)
{
    EXPECT_NEAR(LayoutSheet(Plate(25, 100), 232, 132, FixedTextMeasure(), 1.0).transform.scale, 1.0, kNearPixels);
}

// Text and arrows keep their size: a dimension above the plate takes its offset and 11 + 1 pixels of text.
TEST(SheetLayout, LeavesRoomForTexts)
{
    Drawing drawing = Plate(100, 100);
    DrawingDimension dimension;
    dimension.nominal = "100";
    dimension.from = {0, 100};
    dimension.to = {100, 100};
    dimension.offset = 20;
    drawing.dimensions = {dimension};
    const SheetLayout layout = LayoutSheet(drawing, 1000, 263, FixedTextMeasure(), 1.0);

    // 263 - 2 * 16 = 231 = 120 * scale + 11
    EXPECT_NEAR(layout.transform.scale, 220.0 / 120.0, kNearPixels);
    EXPECT_NEAR(layout.dimensions[0].textBox.corner.y, 16, kNearPixels);
}

TEST(SheetLayout, ADrawingWithoutPointsIsEmpty)
{
    const SheetLayout layout = LayoutSheet(Drawing{}, 300, 200, FixedTextMeasure(), 1.0);

    EXPECT_TRUE(layout.outlines.empty());
    EXPECT_TRUE(layout.dimensions.empty());
}

TEST(SheetLayout, ASinglePointStandsInTheMiddle)
{
    Drawing drawing;
    drawing.dimensions.resize(1);
    drawing.dimensions[0].name = "A";
    const SheetLayout layout = LayoutSheet(drawing, 300, 200, FixedTextMeasure(), 1.0);

    EXPECT_EQ(layout.transform.scale, 1.0);
    EXPECT_NEAR(layout.dimensions.at(0).textBox.corner.x, 147, kNearPixels);
    EXPECT_NEAR(layout.dimensions.at(0).textBox.corner.y, 95, kNearPixels);
}

TEST(SheetLayout, AnAreaThatIsTooSmallStillGivesAFinitePicture)
{
    for (const double size : {0.0, 1.0, 20.0})
    {
        SCOPED_TRACE(size);
        const SheetLayout layout = LayoutSheet(Plate(100, 25), size, size, FixedTextMeasure(), 1.0);
        EXPECT_GT(layout.transform.scale, 0.0);
        EXPECT_TRUE(std::isfinite(layout.outlines.at(0).at(2).x));
    }
}

TEST(SheetLayout, TheLargestCoordinatesThatADrawingMayHaveFit)
{
    Drawing drawing = Plate(1e6, 1e6);
    drawing.outlines.push_back({{-1e6, -1e6}, {1e6, 1e6}});
    ExpectInside(LayoutSheet(drawing, 640, 480, FixedTextMeasure(), 1.0), 640, 480);
}

TEST(SheetLayout, EveryExampleFitsIntoWindowsOfManySizes)
{
    int drawings = 0;
    for (const auto& entry : std::filesystem::directory_iterator(EXAMPLES_FOLDER))
    {
        if (entry.path().extension() != ".json")
            continue;
        ++drawings;
        const Drawing drawing = ReadDrawingFile(entry.path());
        for (const double width : {480.0, 640.0, 800.0, 1000.0, 1400.0, 1920.0})
        {
            for (const double unit : {1.0, 1.25})
            {
                SCOPED_TRACE(testing::Message()
                             << entry.path().filename() << ", " << width << " pixels, unit " << unit);
                const double height = width * 0.6;
                ExpectInside(LayoutSheet(drawing, width, height, FixedTextMeasure(), unit), width, height);
            }
        }
    }
    EXPECT_GE(drawings, 3);
}
