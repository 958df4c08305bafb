#include "distribution/density_plot_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <variant>
#include <vector>

// An area of 400 by 300 pixels: centre line 200, base line 280, 140 pixels for the farther limit.

namespace
{

DensityPlotInput Input(const std::string& upperDev, const std::string& lowerDev, std::int32_t law, double mean,
                       int width = 400, int height = 300)
{
    DensityPlotInput input;
    input.width = width;
    input.height = height;
    input.nominalText = "10.0";
    input.name = "A1";
    input.upperDevText = upperDev;
    input.lowerDevText = lowerDev;
    input.law = law;
    input.mean = mean;
    input.upperWord = "upper";
    input.lowerWord = "lower";
    return input;
}

bool HasLine(const DisplayList& list, const std::string& line)
{
    return ('\n' + ToText(list)).find('\n' + line + '\n') != std::string::npos;
}

bool HasDensity(const DisplayList& list)
{
    const std::string text = ToText(list);
    return text.find("00C4C4") != std::string::npos || text.find("outline") != std::string::npos;
}

bool IsNear(PixelPoint point)
{
    constexpr int kFarthest = 1 << 28;
    return std::abs(point.x) < kFarthest && std::abs(point.y) < kFarthest;
}

// Every coordinate of a list is near enough to be painted, every fill has an area.
struct IsPaintable
{
    bool operator()(const LinePrimitive& line) const { return IsNear(line.start) && IsNear(line.end); }
    bool operator()(const TextPrimitive& text) const { return IsNear(text.anchor); }
    bool operator()(const OutlinePrimitive& outline) const { return AreNear(outline.points); }
    bool operator()(const HaloPrimitive& /*halo*/) const { return false; }  // no part of a layout
    bool operator()(const FillPrimitive& fill) const { return fill.corners.size() >= 3 && AreNear(fill.corners); }
    bool operator()(const RectPrimitive& rect) const
    {
        return rect.left < rect.right && rect.top < rect.bottom && IsNear({rect.left, rect.top}) &&
               IsNear({rect.right, rect.bottom});
    }

    static bool AreNear(const std::vector<PixelPoint>& points) { return std::ranges::all_of(points, IsNear); }
};

// What remains when only labels and axes can be drawn, labels at the given columns.
std::string LabelsAlone(int upperX, int lowerX, const std::string& upper, const std::string& lower)
{
    const std::string left = "text " + std::to_string(upperX + 1);
    const std::string right = "text " + std::to_string(lowerX);
    return "text 200 280 center 000000 \"10.0\"\n"
           "text 200 7 center 000000 \"A1\"\n" +
           left + " 40 left 000000 \"" + upper + "\"\n" + left + " 80 left 000000 \"upper\"\n" + right +
           " 40 right 000000 \"" + lower + "\"\n" + right + " 80 right 000000 \"lower\"\n" +
           "line 200 20 200 280\n"
           "line 0 280 400 280\n";
}

}  // namespace

// 10 +0.1/-0.1: limits at 60 and 340; the mean 10.05 at half of 140.
TEST(DensityPlotLayout, OfAUniformLawIsThisList)
{
    EXPECT_EQ(ToText(LayoutDensityPlot(Input("0.1", "-0.1", 2, 10.05))), R"(text 200 280 center 000000 "10.0"
text 200 7 center 000000 "A1"
line 340 40 340 280
line 60 40 60 280
text 341 40 left 000000 "10.1"
text 341 80 left 000000 "upper"
text 60 40 right 000000 "9.9"
text 60 80 right 000000 "lower"
rect 00C4C4 61 140 340 280
line 61 140 340 140
text 271 110 center 000000 "10.05"
line 271 130 271 280
line 200 20 200 280
line 0 280 400 280
)");
}

TEST(DensityPlotLayout, OfATriangularLawHasItsApexInTheMiddleOfTheField)
{
    const DisplayList list = LayoutDensityPlot(Input("0.1", "-0.05", 3, 10));  // 0.05 is 70 pixels
    EXPECT_TRUE(HasLine(list, "fill 00C4C4 130 280 235 140 340 280"));
    EXPECT_TRUE(HasLine(list, "outline 130 280 235 140 340 280"));
}

// Field 9.95 to 10.1 in the columns 130 to 340; its middle 10.025 in column 235, whatever the mean.
TEST(DensityPlotLayout, OfANormalLawIsCentredOnTheFieldAndNotOnTheMean)
{
    for (const double mean : {9.95, 10.0, 10.1})
    {
        SCOPED_TRACE(mean);
        const DisplayList list = LayoutDensityPlot(Input("0.1", "-0.05", 1, mean));
        const std::string text = ToText(list);
        EXPECT_NE(text.find(" 235 60 "), std::string::npos);
        EXPECT_EQ(text.find(" 200 60 "), std::string::npos);
    }
}

TEST(DensityPlotLayout, PrintsTheLimitsWithNineDecimalsAtMost)
{
    DensityPlotInput input = Input("0.071", "0.0000000004", 2, 0.15);
    input.nominalText = "0.1";
    const DisplayList list = LayoutDensityPlot(input);
    EXPECT_TRUE(HasLine(list, "text 341 40 left 000000 \"0.171\""));
    EXPECT_TRUE(HasLine(list, "text 200 40 right 000000 \"0.1\""));
}

// 1.5e-9 in doubles lies a bit below the half, and is rounded up all the same.
TEST(DensityPlotLayout, RoundsTheLimitsBeforeItPrintsThem)
{
    DensityPlotInput input = Input("0.0000000015", "-0.0000000015", 2, 0);
    input.nominalText = "0";
    const DisplayList list = LayoutDensityPlot(input);
    EXPECT_TRUE(HasLine(list, "text 340 40 left 000000 \"0.000000002\""));
    EXPECT_TRUE(HasLine(list, "text 61 40 right 000000 \"-0.000000002\""));
}

// The lower limit is rounded to -1e-9, a hundred columns from the middle of the field; unrounded it were 140.
TEST(DensityPlotLayout, DrawsTheNormalDensityFromTheRoundedLowerLimit)
{
    DensityPlotInput input = Input("0.0000000014", "-0.0000000014", 1, 0);
    input.nominalText = "0";
    const DisplayList list = LayoutDensityPlot(input);
    const auto outline = std::ranges::find_if(list.primitives, [](const Primitive& primitive) {
        return std::holds_alternative<OutlinePrimitive>(primitive);
    });
    ASSERT_NE(outline, list.primitives.end());
    const std::vector<PixelPoint>& points = std::get<OutlinePrimitive>(*outline).points;
    EXPECT_EQ(points[100].y, 61) << "the peak lies between two columns";
    EXPECT_GT(points[140].y, 100);
}

TEST(DensityPlotLayout, HasItsTextsOnWhiteInTheDefaultFont)
{
    EXPECT_EQ(LayoutDensityPlot(Input("0.1", "-0.1", 1, 10)).textLook, TextLook::PlainOnWhite);
}

TEST(DensityPlotLayout, AnyOtherLawHasNeitherDensityNorMean)
{
    for (const std::int32_t law : {0, 4, -1})
    {
        SCOPED_TRACE(law);
        const DisplayList list = LayoutDensityPlot(Input("0.1", "-0.1", law, 10.05));
        EXPECT_FALSE(HasDensity(list));
        EXPECT_EQ(list.primitives.size(), 2U + 6U + 2U);  // texts, limits with labels, axes
        EXPECT_TRUE(HasLine(list, "line 340 40 340 280"));
    }
}

// Sixteen units have 140 pixels: the upper line moves from 122.5 to 100.
TEST(DensityPlotLayout, ANarrowFieldBelowTheNominalIsFortyPixelsWide)
{
    DensityPlotInput input = Input("-14", "-16", 2, 85);
    input.nominalText = "100";
    const DisplayList list = LayoutDensityPlot(input);
    EXPECT_TRUE(HasLine(list, "rect 00C4C4 61 140 100 280"));
    EXPECT_TRUE(HasLine(list, "text 101 40 left 000000 \"86\""));
    EXPECT_TRUE(HasLine(list, "text 60 40 right 000000 \"84\""));
    EXPECT_TRUE(HasLine(list, "line 110 130 110 280"));  // 131.25 - 40 pixels from the centre
}

TEST(DensityPlotLayout, ANarrowFieldAboveTheNominalIsFortyPixelsWide)
{
    DensityPlotInput input = Input("16", "14", 3, 115);
    input.nominalText = "100";
    const DisplayList list = LayoutDensityPlot(input);
    EXPECT_TRUE(HasLine(list, "fill 00C4C4 300 280 320 140 340 280"));
    EXPECT_TRUE(HasLine(list, "line 321 130 321 280"));
}

TEST(DensityPlotLayout, CutsHalvesOfOddSizes)
{
    const DisplayList list = LayoutDensityPlot(Input("0.1", "-0.1", 2, 10, 301, 231));
    EXPECT_TRUE(HasLine(list, "line 150 20 150 211"));
    EXPECT_TRUE(HasLine(list, "line 0 211 301 211"));
    EXPECT_TRUE(HasLine(list, "line 240 40 240 211"));
    EXPECT_TRUE(HasLine(list, "rect 00C4C4 61 140 240 211"));
    EXPECT_TRUE(HasLine(list, "line 151 130 151 211"));
}

TEST(DensityPlotLayout, WithoutDeviationsHasLabelsAtTheCentre)
{
    for (const std::int32_t law : {0, 1, 2, 3})
        EXPECT_EQ(ToText(LayoutDensityPlot(Input("0", "0", law, 10))), LabelsAlone(200, 200, "10", "10")) << law;
}

// What a dialog shows whose fields have been emptied.
TEST(DensityPlotLayout, OfEmptyTextsHasLimitsOfZeroAtTheCentre)
{
    DensityPlotInput input = Input("", "", 0, 0);
    input.nominalText.clear();
    input.name.clear();
    const DisplayList list = LayoutDensityPlot(input);
    EXPECT_TRUE(HasLine(list, "text 201 40 left 000000 \"0\""));
    EXPECT_TRUE(HasLine(list, "text 200 40 right 000000 \"0\""));
    EXPECT_TRUE(HasLine(list, "line 200 20 200 280"));
    EXPECT_FALSE(HasDensity(list));
}

TEST(DensityPlotLayout, AFieldWithoutWidthAboveTheNominalHasLabelsAndAxesAlone)
{
    for (const std::int32_t law : {1, 2, 3})
        EXPECT_EQ(ToText(LayoutDensityPlot(Input("16", "16", law, 26))), LabelsAlone(340, 300, "26", "26")) << law;
}

TEST(DensityPlotLayout, AFieldWithoutWidthBelowTheNominalHasNoDensity)
{
    for (const std::int32_t law : {1, 2, 3})
    {
        SCOPED_TRACE(law);
        const DisplayList list = LayoutDensityPlot(Input("-16", "-16", law, -6));
        EXPECT_FALSE(HasDensity(list));
        EXPECT_TRUE(HasLine(list, "line 100 40 100 280"));
        EXPECT_TRUE(HasLine(list, "line 60 40 60 280"));
    }
}

TEST(DensityPlotLayout, ReversedLimitsHaveNoDensity)
{
    for (const std::int32_t law : {1, 2, 3})
    {
        SCOPED_TRACE(law);
        const DisplayList list = LayoutDensityPlot(Input("-0.1", "0.1", law, 10));
        EXPECT_FALSE(HasDensity(list));
        EXPECT_TRUE(HasLine(list, "line 340 40 340 280"));  // the lower limit; the upper one gives way to it by 40
        EXPECT_TRUE(HasLine(list, "line 100 40 100 280"));
        EXPECT_FALSE(HasDensity(LayoutDensityPlot(Input("0.1", "0.11", law, 10))));
        EXPECT_FALSE(HasDensity(LayoutDensityPlot(Input("-0.11", "-0.1", law, 10))));
    }
}

TEST(DensityPlotLayout, AnAreaTooSmallHasNoDensity)
{
    struct Size
    {
        int width;
        int height;
    };
    for (const Size size : {Size{0, 0}, Size{1, 1}, Size{60, 300}, Size{119, 119}, Size{121, 300}, Size{400, 0},
                            Size{400, 80}, Size{401, 19}})
    {
        for (const std::int32_t law : {1, 2, 3})
        {
            SCOPED_TRACE(std::to_string(size.width) + " by " + std::to_string(size.height));
            EXPECT_FALSE(HasDensity(LayoutDensityPlot(Input("0.1", "-0.1", law, 10, size.width, size.height))));
            EXPECT_FALSE(HasDensity(LayoutDensityPlot(Input("-0.1", "-0.11", law, 10, size.width, size.height))));
        }
    }
}

TEST(DensityPlotLayout, ANumberTooLargeForADoubleHasLabelsAtTheCentre)
{
    const DisplayList list = LayoutDensityPlot(Input("1e999", "-0.1", 1, 10));
    EXPECT_TRUE(HasLine(list, "text 201 40 left 000000 \"inf\""));
    EXPECT_TRUE(HasLine(list, "text 200 40 right 000000 \"9.9\""));
    EXPECT_FALSE(HasDensity(list));
}

TEST(DensityPlotLayout, AMeanWithoutAPlaceHasItsTextOnTheCentreLine)
{
    const DisplayList list = LayoutDensityPlot(Input("0.1", "-0.1", 2, std::nan("")));
    EXPECT_TRUE(HasLine(list, "text 200 110 center 000000 \"nan\""));
    EXPECT_EQ(ToText(list).find(" 130 "), std::string::npos);
    EXPECT_TRUE(HasDensity(list));
}

TEST(DensityPlotLayout, AnyTextsAndSizesGiveAPaintableList)
{
    const std::uint32_t seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> ordinary(-20.0, 20.0);
    const std::array<std::string, 14> special{"0",    "-0",    "1e-320", "1e-9", "-1e-9",  "1e308", "-1e308",
                                              "1e15", "1e999", "-1e999", "abc",  "0.0001", "16",    "14"};
    const auto pick = [&] {
        return random() % 2 == 0 ? std::to_string(ordinary(random)) : special[random() % special.size()];
    };
    const std::array means{
        0.0, 1e308, -1e308, 1e12, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()};
    const std::array sizes{0, 1, 2, 79, 80, 81, 119, 121, 122, 161, 200, 333, 400, 1920};
    for (int round = 0; round < 20000; ++round)
    {
        const double mean = random() % 2 == 0 ? ordinary(random) : means[random() % means.size()];
        DensityPlotInput input = Input(pick(), pick(), static_cast<std::int32_t>(random() % 5), mean,
                                       sizes[random() % sizes.size()], sizes[random() % sizes.size()]);
        input.nominalText = pick();
        const DisplayList list = LayoutDensityPlot(input);
        for (const Primitive& primitive : list.primitives)
            ASSERT_TRUE(std::visit(IsPaintable{}, primitive)) << ToText(list);
    }
}
