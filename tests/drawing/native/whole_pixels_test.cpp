#include "drawing/whole_pixels.h"

#include <gtest/gtest.h>

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
