#include "tests/diagram/native/diagram_cases.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

namespace
{

std::size_t MarkerLines(const DisplayList& list)
{
    std::size_t lines = 0;
    for (const LinePrimitive& line : AllOf<LinePrimitive>(list))
        lines += line.start.x == line.end.x && line.start.y != 20 ? 1 : 0;
    return lines;
}

// Every coordinate of a list is near enough to be painted.
struct IsPaintable
{
    static constexpr int kFarthest = 1 << 28;

    bool operator()(PixelPoint point) const { return std::abs(point.x) < kFarthest && std::abs(point.y) < kFarthest; }
    bool operator()(const std::vector<PixelPoint>& points) const
    {
        return std::ranges::all_of(points, [this](PixelPoint point) { return (*this)(point); });
    }
    bool operator()(const LinePrimitive& line) const { return (*this)(line.start) && (*this)(line.end); }
    bool operator()(const TextPrimitive& text) const { return (*this)(text.anchor); }
    bool operator()(const HaloPrimitive& /*halo*/) const { return false; }  // no part of a layout
    bool operator()(const FillPrimitive& fill) const { return fill.corners.size() >= 3 && (*this)(fill.corners); }
    bool operator()(const OutlinePrimitive& outline) const { return (*this)(outline.points); }
    bool operator()(const RectPrimitive& rect) const
    {
        return rect.left < rect.right && rect.top < rect.bottom && (*this)(PixelPoint{rect.left, rect.top}) &&
               (*this)(PixelPoint{rect.right, rect.bottom});
    }
};

}  // namespace

TEST(DiagramGuards, DeviationsOfZeroStandOnTheCentreLineWithoutAField)
{
    for (const DisplayList& list :
         {LayoutChainDiagram(AnalyticInput({0, 0, 0, 0})), LayoutChainDiagram(ProbabilisticInput({0, 0, 0, 0}, 1))})
    {
        SCOPED_TRACE(ToText(list));
        EXPECT_FALSE(HasField(list));
        EXPECT_EQ(MarkerLines(list), 4U);
        for (const LinePrimitive& line : AllOf<LinePrimitive>(list))
            EXPECT_TRUE(line.start.x == 200 || line.start.x == 0);
        EXPECT_TRUE(HasLine(list, "text 201 40 left 000000 \"required upper\""));
    }
}

TEST(DiagramGuards, AVarianceOfZeroHasNoShape)
{
    ChainDiagramInput input = ProbabilisticInput({14, -14, 7, 7}, 1);
    EXPECT_FALSE(HasField(LayoutChainDiagram(input)));
    input = ProbabilisticInput({14, -14, 7, -7}, 2);
    input.result->variance = 0.0;
    EXPECT_FALSE(HasField(LayoutChainDiagram(input)));
}

// The decreasing link prevails: D0 < 0, limits that are no numbers.
TEST(DiagramGuards, ANegativeVarianceLeavesTheRequiredMarkersAndTheTexts)
{
    const std::vector<ComponentLink> links{
        {.nominal = 10, .upperDev = 0.05, .lowerDev = 0, .increasing = 1, .law = 1, .mean = 10},
        {.nominal = 4, .upperDev = 0.2, .lowerDev = 0, .increasing = 0, .law = 1, .mean = 4}};
    for (const std::int32_t law : {1, 2, 3})
    {
        ChainDiagramInput input = ProbabilisticInput({}, law);
        input.closing = {6, 0.15, -0.15, law};
        input.result = Calculate(kProbabilisticMethod, links, input.closing);
        EXPECT_EQ(ToText(LayoutChainDiagram(input)), R"(text 200 7 center 000000 "caption"
text 200 300 center 000000 "nominal"
line 200 20 200 300
line 0 300 400 300
line 340 40 340 300
text 341 40 left 000000 "6.15"
text 341 60 left 000000 "upper"
line 60 40 60 300
text 60 40 right 000000 "5.85"
text 60 60 right 000000 "lower"
text 201 100 left 000000 "nan"
text 200 100 right 000000 "nan"
)");
    }
}

TEST(DiagramGuards, TheLargestFiniteDeviationMakesTheScale)
{
    const DisplayList list = LayoutChainDiagram(AnalyticInput({7, -kInfinity, kNaN, -14}));
    EXPECT_TRUE(HasLine(list, "line 270 40 270 280"));
    EXPECT_TRUE(HasLine(list, "line 60 120 60 280"));
    EXPECT_EQ(MarkerLines(list), 2U);
    EXPECT_FALSE(HasField(list));
}

TEST(DiagramGuards, LabelsWithoutAMarkerStandAtTheCentreLine)
{
    const DisplayList list = LayoutChainDiagram(AnalyticInput({kInfinity, -kInfinity, kNaN, kNaN}));
    EXPECT_TRUE(HasLine(list, "text 201 40 left 000000 \"required upper\""));
    EXPECT_TRUE(HasLine(list, "text 200 40 right 000000 \"required lower\""));
    EXPECT_TRUE(HasLine(list, "text 201 120 left 000000 \"ES0\""));
    EXPECT_TRUE(HasLine(list, "text 200 120 right 000000 \"EI0\""));
}

// The finite deviations keep their columns: 14 at 140 pixels, 7 at 70.
TEST(DiagramGuards, AnInfiniteComputedDeviationMovesNoOtherMarker)
{
    for (const DeviationCase& deviations : {DeviationCase{7, -7, 14, kInfinity}, DeviationCase{7, -7, -kInfinity, -14}})
    {
        const DisplayList list = LayoutChainDiagram(AnalyticInput(deviations));
        SCOPED_TRACE(ToText(list));
        EXPECT_TRUE(HasLine(list, "line 270 40 270 280"));
        EXPECT_TRUE(HasLine(list, "line 130 40 130 280"));
        EXPECT_EQ(MarkerLines(list), 3U);
    }
}

TEST(DiagramGuards, HugeDeviationsKeepTheirProportion)
{
    const DisplayList list = LayoutChainDiagram(AnalyticInput({1.6e308, -0.8e308, 0.8e308, -1.6e308}));
    EXPECT_TRUE(HasLine(list, "line 340 40 340 280"));
    EXPECT_TRUE(HasLine(list, "line 130 40 130 280"));
    EXPECT_TRUE(HasLine(list, "line 270 120 270 280"));
}

TEST(DiagramGuards, ReversedComputedLimitsHaveTheBarBetweenThem)
{
    const DisplayList list = LayoutChainDiagram(AnalyticInput({14, -14, -7, 7}));
    EXPECT_EQ(TextOf<RectPrimitive>(list), "rect 61DC05 130 140 270 180\n");
    EXPECT_TRUE(HasLine(list, "line 130 120 130 280"));
}

TEST(DiagramGuards, ReversedComputedLimitsLeaveOutAShape)
{
    for (const std::int32_t law : {1, 2, 3})
    {
        const DisplayList list = LayoutChainDiagram(ProbabilisticInput({14, -14, -7, 7}, law));
        EXPECT_FALSE(HasField(list)) << law;
        EXPECT_EQ(MarkerLines(list), 4U) << law;
    }
}

TEST(DiagramGuards, ReversedRequiredLimitsMakeTheBarRedAndLeaveOutAShape)
{
    EXPECT_EQ(TextOf<RectPrimitive>(LayoutChainDiagram(AnalyticInput({-14, 14, 7, -7}))),
              "rect FF0000 130 140 270 180\n");
    for (const std::int32_t law : {1, 2, 3})
        EXPECT_FALSE(HasField(LayoutChainDiagram(ProbabilisticInput({-14, 14, 7, -7}, law)))) << law;
}

TEST(DiagramGuards, AnAreaTooNarrowOrTooLowHasTextsAndMarkersAlone)
{
    struct Size
    {
        int width;
        int height;
    };
    for (const Size size : {Size{0, 0}, Size{1, 1}, Size{2, 3}, Size{60, 300}, Size{119, 119}, Size{121, 300},
                            Size{400, 0}, Size{400, 120}, Size{401, 20}})
    {
        for (const std::int32_t law : {0, 1, 2, 3})
        {
            const DeviationCase deviations{14, -14, 7, -7};
            SCOPED_TRACE(std::to_string(size.width) + " by " + std::to_string(size.height));
            const DisplayList list =
                law == 0 ? LayoutChainDiagram(AnalyticInput(deviations, size.width, size.height))
                         : LayoutChainDiagram(ProbabilisticInput(deviations, law, size.width, size.height));
            EXPECT_FALSE(HasField(list));
            EXPECT_EQ(AllOf<TextPrimitive>(list).size(), law == 0 ? 10U : 8U);
            EXPECT_EQ(AllOf<LinePrimitive>(list).size(), 2U + 4U);
        }
    }
}

// 122 / 2 - 60 leaves one pixel; 161 - 20 is one row below the bar's top, 121 one row above the room the curve leaves.
TEST(DiagramGuards, TheSmallestAreasWithAField)
{
    EXPECT_EQ(TextOf<RectPrimitive>(LayoutChainDiagram(AnalyticInput({1, -1, 1, -1}, 122, 161))),
              "rect 61DC05 60 140 62 180\n");
    EXPECT_FALSE(HasField(LayoutChainDiagram(AnalyticInput({1, -1, 1, -1}, 122, 160))));
    EXPECT_EQ(TextOf<FillPrimitive>(LayoutChainDiagram(ProbabilisticInput({1, -1, 1, -1}, 3, 122, 161))),
              "fill 61DC05 60 141 61 140 62 141\n");
    EXPECT_EQ(TextOf<FillPrimitive>(LayoutChainDiagram(ProbabilisticInput({1, -1, 1, -1}, 1, 122, 121))),
              "fill 61DC05 60 101 60 101 61 100 62 101 62 101\n");
}

// The field is one column wide: the apex falls together with its left end.
TEST(DiagramGuards, ATriangleOfOneColumnHasAnApex)
{
    EXPECT_EQ(TextOf<FillPrimitive>(LayoutChainDiagram(ProbabilisticInput({14, -14, 0.1, 0}, 3))),
              "fill 61DC05 200 300 200 140 201 300\n");
}

TEST(DiagramGuards, AnyDoublesAndSizesGiveAPaintableList)
{
    const std::uint32_t seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> ordinary(-20.0, 20.0);
    const std::array special{0.0,  -0.0,  1e-320, 1e-9,      -1e-9,      1e308, -1e308, 1.7e308,
                             1e15, -14.0, 14.0,   kInfinity, -kInfinity, kNaN,  0.1};
    const auto pick = [&] { return random() % 2 == 0 ? ordinary(random) : special[random() % special.size()]; };
    const std::array sizes{0, 1, 2, 39, 41, 119, 120, 121, 122, 161, 200, 333, 400, 1920};
    for (int round = 0; round < 20000; ++round)
    {
        const auto law = static_cast<std::int32_t>(random() % 5);
        ChainDiagramInput input = ProbabilisticInput({pick(), pick(), pick(), pick()}, law,
                                                     sizes[random() % sizes.size()], sizes[random() % sizes.size()]);
        input.method = random() % 2 == 0 ? kAnalyticMethod : kProbabilisticMethod;
        input.result->nominalMatches = random() % 10 != 0;
        if (random() % 3 == 0)
            input.result->variance = pick();
        if (random() % 3 == 0)
            input.result->middle = pick();
        const DisplayList list = LayoutChainDiagram(input);
        for (const Primitive& primitive : list.primitives)
            ASSERT_TRUE(std::visit(IsPaintable{}, primitive)) << ToText(list);
    }
}
