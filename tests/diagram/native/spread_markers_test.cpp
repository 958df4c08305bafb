#include "diagram/limit_markers.h"
#include "tests/diagram/native/diagram_cases.h"

#include <gtest/gtest.h>

// Width 400: centre line 200, 140 pixels for the largest deviation, here always 14 units: 10 pixels a unit.

namespace
{

// The four marker lines without axes and the bar's borders: required upper and lower, computed upper and lower.
std::vector<int> MarkerColumns(const DeviationCase& deviations, int width = 400)
{
    std::vector<int> columns;
    for (const LinePrimitive& line : AllOf<LinePrimitive>(LayoutChainDiagram(AnalyticInput(deviations, width))))
    {
        if (line.start.x == line.end.x && (line.start.y == 40 || line.start.y == 120))
            columns.push_back(line.start.x);
    }
    return columns;
}

std::string Bar(const DeviationCase& deviations)
{
    return TextOf<RectPrimitive>(LayoutChainDiagram(AnalyticInput(deviations)));
}

using Columns = std::vector<int>;

}  // namespace

// EI0 at 120 pixels moves to 140 - 40; the required markers, at 100 and 50 pixels, move outward by 120 / 100.
TEST(SpreadMarkers, TheLowerComputedMarkerGivesWayOnTheRight)
{
    EXPECT_EQ(MarkerColumns({10, -5, 14, 12}), (Columns{320, 140, 340, 300}));
}

TEST(SpreadMarkers, TheUpperComputedMarkerGivesWayOnTheLeft)
{
    EXPECT_EQ(MarkerColumns({5, -10, -12, -14}), (Columns{260, 80, 100, 60}));
}

TEST(SpreadMarkers, LabelsFollowTheirMarkersAndKeepTheirTexts)
{
    const DisplayList list = LayoutChainDiagram(AnalyticInput({10, -5, 14, 12}));
    EXPECT_TRUE(HasLine(list, "text 321 40 left 000000 \"required upper\""));
    EXPECT_TRUE(HasLine(list, "text 140 80 right 000000 \"lower\""));
    EXPECT_TRUE(HasLine(list, "text 301 120 left 000000 \"EI0\""));
    EXPECT_TRUE(HasLine(list, "text 301 180 left 000000 \"lower limit\""));
}

TEST(SpreadMarkers, FortyPixelsAreEnough)
{
    EXPECT_EQ(MarkerColumns({9, -5, 14, 10}), (Columns{290, 150, 340, 300}));
}

TEST(SpreadMarkers, AComputedFieldOnBothSidesStays)
{
    EXPECT_EQ(MarkerColumns({10, -5, 14, -1}), (Columns{300, 150, 340, 190}));
}

TEST(SpreadMarkers, NothingMovesWhenARequiredDeviationIsTheLargest)
{
    EXPECT_EQ(MarkerColumns({14, -5, 13, 12}), (Columns{340, 150, 330, 320}));
}

// The required upper limit equals ES0, so the largest is abs(ES0) all the same: its marker moves beyond the inset.
TEST(SpreadMarkers, ARequiredDeviationAsLargeAsTheComputedOneMovesOutward)
{
    EXPECT_EQ(MarkerColumns({14, -14, 14, 12}), (Columns{368, 32, 340, 300}));
}

// The computed deviation is one bit below the required one, as decimal numbers they are the same. The inner marker at
// 112 pixels moves to 100, the required markers by 1.12: 140 to 156.8, 70 to 78.4.
TEST(SpreadMarkers, TheLargestDeviationIsFoundAmongDecimalNumbersOnBothSides)
{
    EXPECT_EQ(MarkerColumns({0.1 + 0.2, -0.15, 0.3, 0.24}), (Columns{356, 122, 340, 300}));
    EXPECT_EQ(MarkerColumns({0.15, -(0.1 + 0.2), -0.24, -0.3}), (Columns{278, 44, 100, 60}));
}

// 1e-8 is ten times what the last bits may be taken for: ES0 is not the largest.
TEST(SpreadMarkers, NothingMovesWhenTheRequiredDeviationIsALittleLarger)
{
    EXPECT_FALSE(PlaceSpreadMarkers({1, -0.5, 0.99999999, 0.9}, 400).areSpread);
    EXPECT_FALSE(PlaceSpreadMarkers({0.5, -1, -0.9, -0.99999999}, 400).areSpread);
}

// The required markers at 110 and 50 pixels move to 132 and 60, in doubles to a bit below 132.
TEST(SpreadMarkers, DecimalDeviationsMoveToWholePixels)
{
    EXPECT_EQ(MarkerColumns({0.011, -0.005, 0.014, 0.012}), (Columns{332, 140, 340, 300}));
}

// 140 * 0.01 / 0.014 is a bit above 100 in doubles, which leaves a bit less than 40 pixels.
TEST(SpreadMarkers, FortyPixelsBetweenDecimalDeviationsAreEnough)
{
    EXPECT_FALSE(PlaceSpreadMarkers({0.009, -0.005, 0.014, 0.01}, 400).areSpread);
}

// Width 200 leaves 40 pixels, the moved marker would stand on the centre line.
TEST(SpreadMarkers, NothingMovesWithoutFortyPixelsBesideTheCentre)
{
    EXPECT_EQ(MarkerColumns({7, -7, 14, 13}, 200), (Columns{120, 80, 140, 137}));
    EXPECT_EQ(MarkerColumns({7, -7, 14, 13}, 130), (Columns{67, 63, 70, 69}));
}

// Width 202 leaves 41 pixels: the marker moves to 1, the required ones by 41 * 13 / 14 = 38.07: 41 * 7 / 14 * 38.07 =
// 780.5.
TEST(SpreadMarkers, OnePixelBesideTheCentreIsEnoughToMove)
{
    EXPECT_EQ(MarkerColumns({7, -7, 14, 13}, 202), (Columns{101 + 780, 101 - 780, 142, 102}));
}

// The whole computed field lies above the required upper limit of 10, whose moved marker at 320 stands inside the bar.
TEST(SpreadMarkers, AFieldWhollyOutsideIsRedUnderAMovedMarker)
{
    EXPECT_EQ(Bar({10, -5, 14, 12}), "rect FF0000 300 140 340 180\n");
}

// The required upper limit of 13 halves the field; its moved marker stands right of the whole bar.
TEST(SpreadMarkers, TheCutStandsWhereTheValueDividesTheBar)
{
    EXPECT_EQ(Bar({13, -5, 14, 12}), "rect 61DC05 300 140 320 180\nrect FF0000 320 140 340 180\n");
    EXPECT_EQ(Bar({5, -13, -12, -14}), "rect FF0000 60 140 80 180\nrect 61DC05 80 140 100 180\n");
}

// As doubles, the value between 0.012 and 0.014 lies a bit before the middle of the 40 pixels.
TEST(SpreadMarkers, ADecimalValueCutsTheBarAtAWholePixel)
{
    EXPECT_EQ(Bar({0.013, -0.005, 0.014, 0.012}), "rect 61DC05 300 140 320 180\nrect FF0000 320 140 340 180\n");
}

// Cuts at a quarter and three quarters of 40 pixels.
TEST(SpreadMarkers, BothCutsStandByTheirValues)
{
    EXPECT_EQ(Bar({13.5, 12.5, 14, 12}),
              "rect FF0000 300 140 310 180\nrect 61DC05 310 140 330 180\nrect FF0000 330 140 340 180\n");
}

TEST(SpreadMarkers, AFieldWithinTheLimitsIsGreen)
{
    EXPECT_EQ(Bar({14, -14, 14, 12}), "rect 61DC05 300 140 340 180\n");
}

TEST(SpreadMarkers, AFieldWithoutWidthSpreadsItsMarkersButHasNoBar)
{
    EXPECT_EQ(MarkerColumns({7, -7, 14, 14}), (Columns{298, 102, 340, 300}));
    EXPECT_EQ(Bar({7, -7, 14, 14}), "");
}

// The same deviations by the probabilistic method: every marker at its value.
TEST(SpreadMarkers, AreForTheAnalyticPictureOnly)
{
    const DisplayList list = LayoutChainDiagram(ProbabilisticInput({10, -5, 14, 12}, 1));
    EXPECT_TRUE(HasLine(list, "line 340 100 340 300"));
    EXPECT_TRUE(HasLine(list, "line 320 100 320 300"));
    EXPECT_TRUE(HasLine(list, "line 300 40 300 300"));
    EXPECT_TRUE(HasLine(list, "line 150 40 150 300"));
}
