#include "drawing/whole_pixels.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(WholePixels, CutsTowardZero)
{
    EXPECT_EQ(WholePixels(93.99), 93);
    EXPECT_EQ(WholePixels(-93.99), -93);
    EXPECT_EQ(WholePixels(0.5), 0);
    EXPECT_EQ(WholePixels(-0.0), 0);
}

TEST(WholePixels, HasNoneForWhatIsNotFinite)
{
    EXPECT_EQ(WholePixels(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
    EXPECT_EQ(WholePixels(std::numeric_limits<double>::infinity()), std::nullopt);
    EXPECT_EQ(WholePixels(-std::numeric_limits<double>::infinity()), std::nullopt);
}

TEST(WholePixels, HasNoneBeyondTheCoordinatesOfASurface)
{
    EXPECT_EQ(WholePixels(134217728.0), 134217728);  // 2^27
    EXPECT_EQ(WholePixels(-134217728.0), -134217728);
    EXPECT_EQ(WholePixels(134217729.0), std::nullopt);
    EXPECT_EQ(WholePixels(-1e300), std::nullopt);
}

// The share is 1e-9: of 100 it is 1e-7.
TEST(WholeWhenNearlySo, TakesAwayTheLastBits)
{
    EXPECT_EQ(WholeWhenNearlySo(100 - 0.9e-7), 100.0);
    EXPECT_EQ(WholeWhenNearlySo(100 + 0.9e-7), 100.0);
    EXPECT_EQ(WholeWhenNearlySo(-100 + 0.9e-7), -100.0);
}

TEST(WholeWhenNearlySo, KeepsWhatIsFartherFromAWholeNumber)
{
    for (const double distance : {100 - 1.1e-7, 100 + 1.1e-7, -100 + 1.1e-7, 100.5, 1e-10})
        EXPECT_EQ(WholeWhenNearlySo(distance), distance);
}

TEST(WholeWhenNearlySo, KeepsWhatIsNotFinite)
{
    EXPECT_EQ(WholeWhenNearlySo(std::numeric_limits<double>::infinity()), std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(WholeWhenNearlySo(std::numeric_limits<double>::quiet_NaN())));
}
