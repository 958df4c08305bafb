#include "distribution/density_plot_scale.h"

#include <gtest/gtest.h>

#include <limits>

// Width 400: centre line 200, 140 pixels for the farther limit. Powers of two as the farther deviation keep the scale
// exact: with 16 units a unit has 8.75 pixels.

namespace
{

constexpr double kNominal = 100.0;

DensityPlotScale Place(double upperDev, double lowerDev, double meanDev, int width = 400)
{
    return PlaceOnDensityPlot(width, kNominal, upperDev, lowerDev, kNominal + meanDev).value();
}

}  // namespace

TEST(DensityPlotScale, PutsTheFartherLimitSixtyPixelsInside)
{
    const DensityPlotScale scale = Place(16, -8, 4);
    EXPECT_EQ(scale.centre, 200);
    EXPECT_EQ(scale.upperX, 340);
    EXPECT_EQ(scale.lowerX, 130);
    EXPECT_EQ(scale.meanX, 200 + 35 + 1);
}

TEST(DensityPlotScale, TakesThePublicExample)
{
    const auto scale = PlaceOnDensityPlot(400, 10, 0.1, -0.1, 10);
    ASSERT_TRUE(scale.has_value());
    EXPECT_EQ(scale->lowerX, 60);
    EXPECT_EQ(scale->upperX, 340);
}

// 1 / 0.013 * 0.013 is a bit below 1 in doubles; the quotient comes first, and its product is cut.
TEST(DensityPlotScale, IsEvaluatedFromLeftToRight)
{
    ASSERT_LT(1.0 / 0.013 * 0.013, 1.0);
    EXPECT_EQ(Place(0.013, -0.013, 0).upperX, 339);
}

TEST(DensityPlotScale, TheMeanStandsOnePixelBesideItsPlace)
{
    EXPECT_EQ(Place(16, -16, 8).meanX, 200 + 70 + 1);
    EXPECT_EQ(Place(16, -16, -8).meanX, 200 - 70 + 1);
    EXPECT_EQ(Place(16, -16, 0).meanX, 201);
}

TEST(DensityPlotScale, CutsTowardTheCentre)
{
    const DensityPlotScale scale = Place(16, -1.5, -1.5);  // 13.125 pixels
    EXPECT_EQ(scale.lowerX, 187);
    EXPECT_EQ(scale.meanX, 200 - 13 + 1);
}

TEST(DensityPlotScale, AFieldOnBothSidesIsNotAdjusted)
{
    EXPECT_EQ(Place(16, -1, 0).lowerX, 192);
    const DensityPlotScale touching = Place(0, -16, -8);  // ES = 0 is not below the nominal
    EXPECT_EQ(touching.upperX, 200);
    EXPECT_EQ(touching.lowerX, 60);
}

// The upper limit at 122.5 pixels moves to 100; the mean at 131.25 moves by the full 40 to 91.25.
TEST(DensityPlotScale, BelowTheNominalTheMeanMovesByFortyPixels)
{
    const DensityPlotScale scale = Place(-14, -16, -15);
    EXPECT_EQ(scale.lowerX, 60);
    EXPECT_EQ(scale.upperX, 100);
    EXPECT_EQ(scale.meanX, 200 - 91 + 1);
}

// It crosses the centre line then: 8.75 - 40 = -31.25 pixels, cut toward zero.
TEST(DensityPlotScale, BelowTheNominalTheMeanMayComeToTheOtherSide)
{
    EXPECT_EQ(Place(-14, -16, -1).meanX, 200 + 31 + 1);
    EXPECT_EQ(Place(-14, -16, 0).meanX, 200 + 40 + 1);
    EXPECT_EQ(Place(-14, -16, 1).meanX, 200 - 31 + 1);
}

// The lower limit at 122.5 pixels moves to 100; the mean in the middle of the field moves to the middle, 120.
TEST(DensityPlotScale, AboveTheNominalTheMeanKeepsItsProportion)
{
    const DensityPlotScale scale = Place(16, 14, 15);
    EXPECT_EQ(scale.upperX, 340);
    EXPECT_EQ(scale.lowerX, 300);
    EXPECT_EQ(scale.meanX, 200 + 120 + 1);
    EXPECT_EQ(Place(16, 14, 14).meanX, 200 + 100 + 1);
    EXPECT_EQ(Place(16, 14, 16).meanX, 200 + 140 + 1);
}

// A field with EI = 0 begins on the centre line, 140 pixels from its upper limit; in 190 pixels of width 35 remain.
TEST(DensityPlotScale, AFieldThatBeginsAtTheNominalCountsAsAbove)
{
    EXPECT_EQ(Place(16, 0, 8).lowerX, 200);
    EXPECT_EQ(Place(16, 0, 8, 190).lowerX, 95 - 5);
}

// 8.75 pixels a unit: fields of 4.57142... units are 40 pixels wide; 5 units keep their place, 4 don't.
TEST(DensityPlotScale, FortyPixelsAreEnough)
{
    EXPECT_EQ(Place(16, 11, 12).lowerX, 296);  // 96.25
    EXPECT_EQ(Place(16, 12, 13).lowerX, 300);  // 105 gives way
    EXPECT_EQ(Place(-11, -16, -12).upperX, 104);
    EXPECT_EQ(Place(-12, -16, -13).upperX, 100);
}

// 16 units have 160 pixels in a plot 440 wide: 4 units have exactly 40.
TEST(DensityPlotScale, ExactlyFortyPixelsAreNotAdjusted)
{
    const DensityPlotScale below = Place(-12, -16, -14, 440);
    EXPECT_EQ(below.upperX, 100);
    EXPECT_EQ(below.meanX, 220 - 140 + 1);
    const DensityPlotScale above = Place(16, 12, 14, 440);
    EXPECT_EQ(above.lowerX, 340);
    EXPECT_EQ(above.meanX, 220 + 140 + 1);
}

// In 190 pixels 35 remain between the limits.
TEST(DensityPlotScale, AFieldThatEndsAtTheNominalIsNotBelowIt)
{
    const DensityPlotScale scale = Place(0, -16, -8, 190);
    EXPECT_EQ(scale.upperX, 95);
    EXPECT_EQ(scale.lowerX, 60);
}

TEST(DensityPlotScale, AFieldWithoutWidthBelowTheNominalIsFortyPixelsWide)
{
    const DensityPlotScale scale = Place(-16, -16, -16);
    EXPECT_EQ(scale.lowerX, 60);
    EXPECT_EQ(scale.upperX, 100);
    EXPECT_EQ(scale.meanX, 101);
}

TEST(DensityPlotScale, AFieldWithoutWidthAboveTheNominalHasNoPlaceForTheMean)
{
    const DensityPlotScale scale = Place(16, 16, 16);
    EXPECT_EQ(scale.upperX, 340);
    EXPECT_EQ(scale.lowerX, 300);
    EXPECT_FALSE(scale.meanX.has_value());
}

TEST(DensityPlotScale, IsMissingWithoutAFiniteLargestDeviation)
{
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(PlaceOnDensityPlot(400, 10, 0, 0, 10).has_value());
    EXPECT_FALSE(PlaceOnDensityPlot(400, 10, -0.0, 0, 10).has_value());
    EXPECT_FALSE(PlaceOnDensityPlot(400, 10, kInfinity, 0, 10).has_value());
    EXPECT_FALSE(PlaceOnDensityPlot(400, 10, 1, -kInfinity, 10).has_value());
    EXPECT_FALSE(PlaceOnDensityPlot(400, 10, 1e-320, 0, 10).has_value());  // its reciprocal is infinite
}

TEST(DensityPlotScale, AMeanThatIsFarAwayOrNoNumberHasNoPlace)
{
    EXPECT_FALSE(Place(16, -16, 1e300).meanX.has_value());
    EXPECT_FALSE(Place(16, -16, std::numeric_limits<double>::quiet_NaN()).meanX.has_value());
}

TEST(DensityPlotScale, HasReachFromOneHundredAndTwentyTwoPixelsOn)
{
    EXPECT_FALSE(Place(16, -16, 0, 0).hasReach);
    EXPECT_FALSE(Place(16, -16, 0, 121).hasReach);
    EXPECT_TRUE(Place(16, -16, 0, 122).hasReach);
}
