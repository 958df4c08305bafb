#include "distribution/mean_range.h"

#include "calc/number_text.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

TEST(MeanRange, ReachesFromLimitToLimit)
{
    EXPECT_TRUE(IsMeanInsideField(10.0, 10, 0.1, -0.1));
    EXPECT_TRUE(IsMeanInsideField(10.1, 10, 0.1, -0.1));
    EXPECT_TRUE(IsMeanInsideField(9.9, 10, 0.1, -0.1));
    EXPECT_FALSE(IsMeanInsideField(10.100000002, 10, 0.1, -0.1));
    EXPECT_FALSE(IsMeanInsideField(9.899999998, 10, 0.1, -0.1));
}

// 0.1 + 0.071 is below 0.171 in doubles.
TEST(MeanRange, TakesAnEndTypedExactly)
{
    ASSERT_GT(0.171, 0.1 + 0.071);
    EXPECT_TRUE(IsMeanInsideField(0.171, 0.1, 0.071, -0.1));
}

// Every nominal from 0.1 to 30 with deviations of thousandths, and the next nano on either side.
TEST(MeanRange, TakesEveryDecimalEndAndNothingBeyond)
{
    for (int tenths = 1; tenths <= 300; tenths += 7)
    {
        for (int thousandths = 1; thousandths <= 999; thousandths += 13)
        {
            const std::string deviation = "0." + std::to_string(1000 + thousandths).substr(1);
            const int total = tenths * 100 + thousandths;
            const std::string end = std::to_string(total / 1000) + "." + std::to_string(1000 + total % 1000).substr(1);
            SCOPED_TRACE(end);
            const double nominal = TextToNumber(std::to_string(tenths / 10) + "." + std::to_string(tenths % 10));
            const double upperDev = TextToNumber(deviation);
            ASSERT_TRUE(IsMeanInsideField(TextToNumber(end), nominal, upperDev, 0));
            ASSERT_FALSE(IsMeanInsideField(TextToNumber(end + "000002"), nominal, upperDev, 0));
            ASSERT_TRUE(IsMeanInsideField(TextToNumber(end), nominal, 99, upperDev));
            ASSERT_FALSE(IsMeanInsideField(TextToNumber(end) - 2e-9, nominal, 99, upperDev));
        }
    }
}

TEST(MeanRange, OfReversedLimitsIsEmpty)
{
    EXPECT_FALSE(IsMeanInsideField(10.0, 10, -0.1, 0.1));
}

TEST(MeanRange, ExcludesWhatIsNoNumber)
{
    EXPECT_FALSE(IsMeanInsideField(std::numeric_limits<double>::quiet_NaN(), 10, 0.1, -0.1));
    EXPECT_FALSE(IsMeanInsideField(std::numeric_limits<double>::infinity(), 10, 0.1, -0.1));
}
