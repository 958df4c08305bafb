#include "tests/diagram/native/diagram_cases.h"

#include <gtest/gtest.h>

// An area of 400 by 300 pixels: centre line 200, base line 280, 140 pixels for the largest deviation.

namespace
{

// Columns of the vertical lines that begin in a row: 40 the required limits, 120 the computed ones, the upper first.
std::vector<int> MarkersFrom(int row, const DisplayList& list)
{
    std::vector<int> columns;
    for (const LinePrimitive& line : AllOf<LinePrimitive>(list))
    {
        if (line.start.x == line.end.x && line.start.y == row)
            columns.push_back(line.start.x);
    }
    return columns;
}

}  // namespace

// The chain 10 +0.1/-0.1 less 4 +0.05/0, required 6 +0.15/-0.15. Largest deviation 0.15 at 140 pixels; 0.1 at
// 140 * 2 / 3 = 93.3. The computed -0.15 has one bit more than the required 0.15 and still stands in the same column.
TEST(AnalyticPicture, OfTheWorkedExampleIsThisList)
{
    const std::vector<ComponentLink> links{{.nominal = 10, .upperDev = 0.1, .lowerDev = -0.1, .increasing = 1},
                                           {.nominal = 4, .upperDev = 0.05, .lowerDev = 0}};
    ChainDiagramInput input = AnalyticInput({}, 400, 300);
    input.closing = {6, 0.15, -0.15, 1};
    input.nominalText = "6.0";
    input.result = Calculate(kAnalyticMethod, links, input.closing);
    EXPECT_EQ(ToText(LayoutChainDiagram(input)), R"(text 200 7 center 000000 "caption"
text 200 280 center 000000 "6.0"
line 200 20 200 280
line 0 280 400 280
line 340 40 340 280
text 341 40 left 000000 "6.15"
text 341 80 left 000000 "upper"
line 60 40 60 280
text 60 40 right 000000 "5.85"
text 60 80 right 000000 "lower"
rect 61DC05 60 140 293 180
line 60 140 293 140
line 60 180 293 180
line 293 120 293 280
text 294 120 left 000000 "0.1"
text 294 180 left 000000 "6.1"
line 60 120 60 280
text 60 120 right 000000 "-0.15"
text 60 180 right 000000 "5.85"
)");
}

TEST(AnalyticPicture, IsEmptyWithoutAResult)
{
    ChainDiagramInput input = AnalyticInput({10, -10, 5, -5});
    input.result.reset();
    EXPECT_EQ(ToText(LayoutChainDiagram(input)), "");
}

TEST(AnalyticPicture, IsEmptyWithoutAMethod)
{
    for (const std::int32_t method : {0, 3, -1})
    {
        ChainDiagramInput input = AnalyticInput({10, -10, 5, -5});
        input.method = method;
        EXPECT_EQ(ToText(LayoutChainDiagram(input)), "") << method;
    }
}

// Odd sizes: 301 / 2 = 150, 90 pixels for 9 units, base line 231 - 20.
TEST(AnalyticPicture, CutsHalvesOfOddSizes)
{
    const DisplayList list = LayoutChainDiagram(AnalyticInput({9, -9, 5, -4}, 301, 231));
    EXPECT_EQ(TextOf<LinePrimitive>(list), "line 150 20 150 211\n"
                                           "line 0 211 301 211\n"
                                           "line 240 40 240 211\n"
                                           "line 60 40 60 211\n"
                                           "line 110 140 200 140\n"
                                           "line 110 180 200 180\n"
                                           "line 200 120 200 211\n"
                                           "line 110 120 110 211\n");
}

// 140 * 2 / 3 = 93.3 and 140 / 3 = 46.7 on either side.
TEST(AnalyticPicture, CutsColumnsTowardTheCentreLine)
{
    const DisplayList list = LayoutChainDiagram(AnalyticInput({3, -3, 2, -1}));
    EXPECT_EQ(TextOf<RectPrimitive>(list), "rect 61DC05 154 140 293 180\n");
    EXPECT_EQ(TextOf<RectPrimitive>(LayoutChainDiagram(AnalyticInput({3, -3, 1, -2}))),
              "rect 61DC05 107 140 246 180\n");
}

// 140 * 0.049 / 0.049 and its like must not come out a bit below 140.
TEST(AnalyticPicture, PutsTheLargestDeviationExactlyAtTheInset)
{
    for (int thousandths = 1; thousandths <= 2000; ++thousandths)
    {
        const double deviation = thousandths / 1000.0;
        const DisplayList list = LayoutChainDiagram(AnalyticInput({deviation, -deviation, 0, 0}));
        ASSERT_TRUE(HasLine(list, "line 340 40 340 280")) << deviation;
        ASSERT_TRUE(HasLine(list, "line 60 40 60 280")) << deviation;
    }
}

// 139.9999986 pixels.
TEST(AnalyticPicture, ADistanceALittleBelowAWholeNumberIsCut)
{
    EXPECT_EQ(MarkersFrom(40, LayoutChainDiagram(AnalyticInput({1, -0.99999999, 0.5, -0.5}))),
              (std::vector<int>{340, 61}));
}

TEST(AnalyticPicture, LabelsStandBesideTheirMarkersAwayFromTheCentre)
{
    const DisplayList list = LayoutChainDiagram(AnalyticInput({14, -7, 7, -14}));
    EXPECT_EQ(TextOf<TextPrimitive>(list), R"(text 200 7 center 000000 "caption"
text 200 280 center 000000 "nominal"
text 341 40 left 000000 "required upper"
text 341 80 left 000000 "upper"
text 130 40 right 000000 "required lower"
text 130 80 right 000000 "lower"
text 271 120 left 000000 "ES0"
text 271 180 left 000000 "upper limit"
text 60 120 right 000000 "EI0"
text 60 180 right 000000 "lower limit"
)");
}

TEST(AnalyticPicture, LabelsOfBothLimitsStandOnTheSideOfTheirSign)
{
    const DisplayList right = LayoutChainDiagram(AnalyticInput({14, 7, 12, 0}));
    EXPECT_TRUE(HasLine(right, "text 271 40 left 000000 \"required lower\""));
    EXPECT_TRUE(HasLine(right, "text 201 120 left 000000 \"EI0\""));  // 0 counts as right of the centre
    const DisplayList left = LayoutChainDiagram(AnalyticInput({-7, -14, -0.0, -12}));
    EXPECT_TRUE(HasLine(left, "text 130 40 right 000000 \"required upper\""));
    EXPECT_TRUE(HasLine(left, "text 201 120 left 000000 \"ES0\""));  // and so does -0
}

TEST(AnalyticPicture, ColorsTheBarByTheRequiredLimits)
{
    struct ColorCase
    {
        const char* name;
        DeviationCase deviations;
        const char* bar;
    };
    const ColorCase cases[] = {
        {"inside", {14, -14, 7, -7}, "rect 61DC05 130 140 270 180\n"},
        {"equal", {14, -14, 14, -14}, "rect 61DC05 60 140 340 180\n"},
        {"beyond the upper limit", {7, -14, 14, -7}, "rect 61DC05 130 140 270 180\nrect FF0000 270 140 340 180\n"},
        {"beyond the lower limit", {14, -7, 7, -14}, "rect FF0000 60 140 130 180\nrect 61DC05 130 140 270 180\n"},
        {"beyond both",
         {7, -7, 14, -14},
         "rect FF0000 60 140 130 180\nrect 61DC05 130 140 270 180\nrect FF0000 270 140 340 180\n"},
        {"wholly above", {-7, -14, 14, 7}, "rect FF0000 270 140 340 180\n"},
        {"wholly below", {14, 7, -7, -14}, "rect FF0000 60 140 130 180\n"},
        {"touching from above", {7, -14, 14, 7}, "rect FF0000 270 140 340 180\n"},
        {"touching from below", {14, -7, -7, -14}, "rect FF0000 60 140 130 180\n"},
        {"required without width", {0, 0, 14, -14}, "rect FF0000 60 140 200 180\nrect FF0000 200 140 340 180\n"},
    };
    for (const ColorCase& color : cases)
    {
        SCOPED_TRACE(color.name);
        EXPECT_EQ(TextOf<RectPrimitive>(LayoutChainDiagram(AnalyticInput(color.deviations))), color.bar);
    }
}

// 0.1 + 0.2 and 0.3 differ in the last bit.
TEST(AnalyticPicture, DecimalFieldsThatAreEqualAreAllGreen)
{
    const DisplayList list = LayoutChainDiagram(AnalyticInput({0.3, -0.3, 0.1 + 0.2, -0.1 - 0.2}));
    EXPECT_EQ(TextOf<RectPrimitive>(list), "rect 61DC05 60 140 340 180\n");
}

// A computed deviation is a multiple of 1e-9 in doubles, a required one the nearest double of its text: the quotients
// on the scale, a half here, differ in their last bits.
TEST(AnalyticPicture, DecimalFieldsThatAreEqualAreAllGreenAndHaveTheSameMarkersAtEverySize)
{
    for (int thousandths = 1; thousandths <= 2000; ++thousandths)
    {
        const double required = thousandths / 1000.0;
        const double computed = thousandths * 1e6 * 1e-9;
        for (const DeviationCase& deviations : {DeviationCase{required, -2 * required, computed, -2 * computed},
                                                DeviationCase{2 * required, -required, 2 * computed, -computed}})
        {
            const DisplayList list = LayoutChainDiagram(AnalyticInput(deviations));
            const auto bar = AllOf<RectPrimitive>(list);
            ASSERT_EQ(bar.size(), 1U) << required;
            ASSERT_EQ(bar[0].color, (Rgb{97, 220, 5})) << required;
            ASSERT_EQ(MarkersFrom(120, list), MarkersFrom(40, list)) << required;
        }
    }
}

// 0.98 of 140 pixels are 137.2.
TEST(AnalyticPicture, ASmallExcessIsRedFromItsMarkerOn)
{
    const DisplayList list = LayoutChainDiagram(AnalyticInput({0.98, -1, 1, -1}));
    EXPECT_EQ(TextOf<RectPrimitive>(list), "rect 61DC05 60 140 337 180\nrect FF0000 337 140 340 180\n");
}

// 70.01 and 70.04 pixels: required and computed limit stand in one column.
TEST(AnalyticPicture, AnExcessBelowOnePixelIsRed)
{
    EXPECT_EQ(TextOf<RectPrimitive>(LayoutChainDiagram(AnalyticInput({0.5001, -1, 0.5003, -1}))),
              "rect 61DC05 60 140 269 180\nrect FF0000 269 140 270 180\n");
    EXPECT_EQ(TextOf<RectPrimitive>(LayoutChainDiagram(AnalyticInput({1, -0.5001, 1, -0.5003}))),
              "rect FF0000 130 140 131 180\nrect 61DC05 131 140 340 180\n");
}
