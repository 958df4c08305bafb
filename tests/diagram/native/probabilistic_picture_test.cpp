#include "tests/diagram/native/diagram_cases.h"

#include <gtest/gtest.h>

// An area of 400 by 320 pixels: centre line 200, base line 300, 140 pixels for the largest deviation, curve 200 high.
// The computed field from -14 to 14 stands from column 60 to 340, three sigma on either side of the nominal.

namespace
{

constexpr std::int32_t kNormal = 1;
constexpr std::int32_t kUniform = 2;
constexpr std::int32_t kTriangular = 3;

DisplayList Picture(const DeviationCase& deviations, std::int32_t law)
{
    return LayoutChainDiagram(ProbabilisticInput(deviations, law));
}

// The top of a polygon in one column; the corners on the base line at its two ends are left out.
int TopIn(const FillPrimitive& fill, int column)
{
    for (std::size_t index = 1; index + 1 < fill.corners.size(); ++index)
    {
        if (fill.corners[index].x == column)
            return fill.corners[index].y;
    }
    ADD_FAILURE() << "no corner in column " << column;
    return -1;
}

}  // namespace

TEST(ProbabilisticPicture, OfAUniformLawIsThisList)
{
    EXPECT_EQ(ToText(Picture({14, -7, 7, -14}, kUniform)), R"(text 200 7 center 000000 "caption"
text 200 300 center 000000 "nominal"
line 200 20 200 300
line 0 300 400 300
line 340 40 340 300
text 341 40 left 000000 "required upper"
text 341 60 left 000000 "upper"
line 130 40 130 300
text 130 40 right 000000 "required lower"
text 130 60 right 000000 "lower"
fill FF0000 60 300 60 140 130 140 130 300
outline 60 300 60 140 130 140 130 300 60 300
fill 61DC05 130 300 130 140 270 140 270 300
outline 130 300 130 140 270 140 270 300 130 300
line 270 100 270 300
text 271 100 left 000000 "upper limit"
line 60 100 60 300
text 60 100 right 000000 "lower limit"
)");
}

TEST(ProbabilisticPicture, ATriangularLawRisesToTheMiddleOfItsField)
{
    EXPECT_EQ(TextOf<FillPrimitive>(Picture({14, -14, 14, -14}, kTriangular)), "fill 61DC05 60 300 200 140 340 300\n");
    EXPECT_EQ(TextOf<FillPrimitive>(Picture({14, -14, 14, 7}, kTriangular)), "fill 61DC05 270 300 305 140 340 300\n");
}

// The slope falls 160 pixels in 140 columns: 80 at half of it.
TEST(ProbabilisticPicture, ATriangularLawIsCutThroughItsSlopes)
{
    EXPECT_EQ(TextOf<FillPrimitive>(Picture({7, -7, 14, -14}, kTriangular)),
              "fill FF0000 60 300 130 220 130 300\n"
              "fill 61DC05 130 300 130 220 200 140 270 220 270 300\n"
              "fill FF0000 270 300 270 220 340 300\n");
}

TEST(ProbabilisticPicture, ATriangularLawCutAtItsApexMeetsThere)
{
    EXPECT_EQ(TextOf<FillPrimitive>(Picture({0, -14, 14, -14}, kTriangular)), "fill 61DC05 60 300 200 140 200 300\n"
                                                                              "fill FF0000 200 300 200 140 340 300\n");
}

TEST(ProbabilisticPicture, AUniformLawIsCutIntoRectangles)
{
    EXPECT_EQ(TextOf<FillPrimitive>(Picture({7, -7, 14, -14}, kUniform)),
              "fill FF0000 60 300 60 140 130 140 130 300\n"
              "fill 61DC05 130 300 130 140 270 140 270 300\n"
              "fill FF0000 270 300 270 140 340 140 340 300\n");
}

TEST(ProbabilisticPicture, EveryLawWhollyOutsideIsRedAndInOnePiece)
{
    for (const std::int32_t law : {kNormal, kUniform, kTriangular})
    {
        SCOPED_TRACE(law);
        for (const DeviationCase& outside : {DeviationCase{-7, -14, 14, 7}, DeviationCase{14, 7, -7, -14}})
        {
            const auto fills = AllOf<FillPrimitive>(Picture(outside, law));
            ASSERT_EQ(fills.size(), 1U);
            EXPECT_EQ(fills[0].color, (Rgb{255, 0, 0}));
        }
    }
}

TEST(ProbabilisticPicture, EveryLawWhollyInsideIsGreenAndInOnePiece)
{
    for (const std::int32_t law : {kNormal, kUniform, kTriangular})
    {
        SCOPED_TRACE(law);
        for (const DeviationCase& inside : {DeviationCase{14, -14, 7, -7}, DeviationCase{14, -14, 14, -14}})
        {
            const auto fills = AllOf<FillPrimitive>(Picture(inside, law));
            ASSERT_EQ(fills.size(), 1U);
            EXPECT_EQ(fills[0].color, (Rgb{97, 220, 5}));
        }
    }
}

// Nothing lies between the required limits; they still cut the shape in two.
TEST(ProbabilisticPicture, EveryLawIsRedOnBothSidesOfRequiredLimitsThatAreOne)
{
    for (const std::int32_t law : {kNormal, kUniform, kTriangular})
    {
        SCOPED_TRACE(law);
        const auto fills = AllOf<FillPrimitive>(Picture({7, 7, 14, -14}, law));
        ASSERT_EQ(fills.size(), 2U);
        EXPECT_EQ(fills[0].color, (Rgb{255, 0, 0}));
        EXPECT_EQ(fills[0].corners.back(), (PixelPoint{270, 300}));
        EXPECT_EQ(fills[1].color, (Rgb{255, 0, 0}));
        EXPECT_EQ(fills[1].corners.front(), (PixelPoint{270, 300}));
    }
}

// 70.01 and 70.04 pixels: required and computed limit stand in one column.
TEST(ProbabilisticPicture, EveryLawIsRedWhereItExceedsALimitByLessThanAPixel)
{
    for (const std::int32_t law : {kNormal, kUniform, kTriangular})
    {
        SCOPED_TRACE(law);
        const auto above = AllOf<FillPrimitive>(Picture({0.5001, -1, 0.5003, -1}, law));
        ASSERT_EQ(above.size(), 2U);
        EXPECT_EQ(above[0].color, (Rgb{97, 220, 5}));
        EXPECT_EQ(above[0].corners.back(), (PixelPoint{269, 300}));
        EXPECT_EQ(above[1].color, (Rgb{255, 0, 0}));
        EXPECT_EQ(above[1].corners.front(), (PixelPoint{269, 300}));
        EXPECT_EQ(above[1].corners.back(), (PixelPoint{270, 300}));
        const auto below = AllOf<FillPrimitive>(Picture({1, -0.5001, 1, -0.5003}, law));
        ASSERT_EQ(below.size(), 2U);
        EXPECT_EQ(below[0].color, (Rgb{255, 0, 0}));
        EXPECT_EQ(below[0].corners.front(), (PixelPoint{130, 300}));
        EXPECT_EQ(below[0].corners.back(), (PixelPoint{131, 300}));
        EXPECT_EQ(below[1].color, (Rgb{97, 220, 5}));
        EXPECT_EQ(below[1].corners.front(), (PixelPoint{131, 300}));
    }
}

TEST(ProbabilisticPicture, EveryPieceIsOutlinedAndClosedOverItsFill)
{
    for (const std::int32_t law : {kNormal, kUniform, kTriangular})
    {
        SCOPED_TRACE(law);
        const DisplayList list = Picture({7, -7, 14, -14}, law);
        std::size_t fills = 0;
        for (std::size_t index = 0; index + 1 < list.primitives.size(); ++index)
        {
            const auto* fill = std::get_if<FillPrimitive>(&list.primitives[index]);
            if (fill == nullptr)
                continue;
            std::vector<PixelPoint> closed = fill->corners;
            closed.push_back(closed.front());
            EXPECT_EQ(list.primitives[index + 1], Primitive(OutlinePrimitive{closed}));
            ++fills;
        }
        EXPECT_EQ(fills, 3U);
    }
}

// A corner on the base line at either end and one point in each of the columns 60 to 340.
TEST(ProbabilisticPicture, ANormalLawHasAPointInEveryColumn)
{
    const auto fills = AllOf<FillPrimitive>(Picture({14, -14, 14, -14}, kNormal));
    ASSERT_EQ(fills.size(), 1U);
    const std::vector<PixelPoint>& corners = fills[0].corners;
    ASSERT_EQ(corners.size(), 281U + 2U);
    EXPECT_EQ(corners.front(), (PixelPoint{60, 300}));
    EXPECT_EQ(corners.back(), (PixelPoint{340, 300}));
    for (int column = 60; column <= 340; ++column)
        EXPECT_EQ(corners[static_cast<std::size_t>(column - 60 + 1)].x, column);
}

// exp(-k^2 / 2) at k sigma: 1, 0.606531 at 1, 0.324652 at 1.5, 0.135335 at 2, 0.011109 at 3; times 200, cut.
TEST(ProbabilisticPicture, ANormalLawFollowsItsDensity)
{
    const auto fills = AllOf<FillPrimitive>(Picture({14, -14, 14, -14}, kNormal));
    ASSERT_EQ(fills.size(), 1U);
    EXPECT_EQ(TopIn(fills[0], 200), 100);       // the peak, 100 pixels below the top
    EXPECT_EQ(TopIn(fills[0], 270), 300 - 64);  // 64.93
    EXPECT_EQ(TopIn(fills[0], 130), 300 - 64);
    EXPECT_EQ(TopIn(fills[0], 60), 300 - 2);  // 2.22
    EXPECT_EQ(TopIn(fills[0], 340), 300 - 2);
}

// Deviations up to 21: the field from -21 to 21, sigma 7, a third of 140 pixels is 46.67.
TEST(ProbabilisticPicture, ANormalLawIsCutAtTheHeightOfTheRequiredLimit)
{
    // required at +-7: one sigma, 0.606531 * 200 = 121.3; columns 200 + 46 and 200 - 46, whose own points would be
    // lower
    const auto fills = AllOf<FillPrimitive>(Picture({7, -7, 21, -21}, kNormal));
    ASSERT_EQ(fills.size(), 3U);
    const PixelPoint lowerCut{154, 300 - 121};
    const PixelPoint upperCut{246, 300 - 121};

    const std::vector<PixelPoint>& left = fills[0].corners;
    EXPECT_EQ(left.size(), 2U + 95U);  // columns 60 to 154
    EXPECT_EQ(left.front(), (PixelPoint{60, 300}));
    EXPECT_EQ(left[left.size() - 2], lowerCut);
    EXPECT_EQ(left.back(), (PixelPoint{154, 300}));

    const std::vector<PixelPoint>& middle = fills[1].corners;
    EXPECT_EQ(middle.size(), 2U + 93U);  // columns 154 to 246
    EXPECT_EQ(middle.front(), (PixelPoint{154, 300}));
    EXPECT_EQ(middle[1], lowerCut);
    EXPECT_EQ(middle[middle.size() - 2], upperCut);
    EXPECT_EQ(middle.back(), (PixelPoint{246, 300}));

    const std::vector<PixelPoint>& right = fills[2].corners;
    EXPECT_EQ(right.size(), 2U + 95U);  // columns 246 to 340
    EXPECT_EQ(right[1], upperCut);
    EXPECT_EQ(right.back(), (PixelPoint{340, 300}));
}

// Cut two sigma below the middle, 0.135335 * 200 = 27.07 in column 200 - 93, and one sigma above it.
TEST(ProbabilisticPicture, EachCutOfANormalLawHasTheHeightOfItsOwnLimit)
{
    const auto fills = AllOf<FillPrimitive>(Picture({7, -14, 21, -21}, kNormal));
    ASSERT_EQ(fills.size(), 3U);
    const PixelPoint lowerCut{107, 300 - 27};
    const PixelPoint upperCut{246, 300 - 121};
    EXPECT_EQ(fills[0].corners[fills[0].corners.size() - 2], lowerCut);
    EXPECT_EQ(fills[1].corners[1], lowerCut);
    EXPECT_EQ(fills[1].corners[fills[1].corners.size() - 2], upperCut);
    EXPECT_EQ(fills[2].corners[1], upperCut);
}

TEST(ProbabilisticPicture, ANormalLawOutsideOnOneSideHasTwoPieces)
{
    const auto fills = AllOf<FillPrimitive>(Picture({7, -14, 14, -14}, kNormal));
    ASSERT_EQ(fills.size(), 2U);
    EXPECT_EQ(fills[0].color, (Rgb{97, 220, 5}));
    EXPECT_EQ(fills[1].color, (Rgb{255, 0, 0}));
    EXPECT_EQ(fills[1].corners.front(), (PixelPoint{270, 300}));
    EXPECT_EQ(fills[1].corners.size(), 2U + 71U);  // columns 270 to 340
}

// A field from 0 to 14 around 7: the peak stands in column 270, not at the nominal.
TEST(ProbabilisticPicture, ANormalLawPeaksInTheMiddleOfTheField)
{
    const auto fills = AllOf<FillPrimitive>(Picture({14, -14, 14, 0}, kNormal));
    ASSERT_EQ(fills.size(), 1U);
    EXPECT_EQ(TopIn(fills[0], 270), 100);
    EXPECT_EQ(fills[0].corners.size(), 2U + 141U);
}

TEST(ProbabilisticPicture, AClosingLinkWithoutALawHasMarkersAndTextsAlone)
{
    for (const std::int32_t law : {0, 4, -1})
    {
        SCOPED_TRACE(law);
        const DisplayList list = Picture({14, -14, 7, -7}, law);
        EXPECT_FALSE(HasField(list));
        EXPECT_EQ(AllOf<LinePrimitive>(list).size(), 2U + 4U);
        EXPECT_EQ(AllOf<TextPrimitive>(list).size(), 2U + 6U);
    }
}

// The whole way from the links: increasing normal fields 0.6 and 0.8 give sigma 1/6 and a field of 1, limits 15 +- 0.5
// (0.50000002 after the rounding of the variance); the largest deviation, 1, has 140 pixels.
TEST(ProbabilisticPicture, ShowsAComputedChain)
{
    const std::vector<ComponentLink> links{
        {.nominal = 10, .upperDev = 0.3, .lowerDev = -0.3, .increasing = 1, .law = 1, .mean = 10},
        {.nominal = 5, .upperDev = 0.4, .lowerDev = -0.4, .increasing = 1, .law = 1, .mean = 5}};
    ChainDiagramInput input = ProbabilisticInput({}, kUniform);
    input.closing = {15, 1, -0.25, kNormal};
    input.result = Calculate(kProbabilisticMethod, links, input.closing);
    const DisplayList list = LayoutChainDiagram(input);
    EXPECT_TRUE(HasLine(list, "text 341 40 left 000000 \"16\""));
    EXPECT_TRUE(HasLine(list, "text 165 40 right 000000 \"14.75\""));
    EXPECT_TRUE(HasLine(list, "text 130 100 right 000000 \"14.5\""));
    const auto fills = AllOf<FillPrimitive>(list);
    ASSERT_EQ(fills.size(), 2U);
    EXPECT_EQ(fills[0].color, (Rgb{255, 0, 0}));
    EXPECT_EQ(fills[0].corners.back(), (PixelPoint{165, 300}));
    EXPECT_EQ(fills[1].color, (Rgb{97, 220, 5}));
}
