#include "calc/distribution_laws.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(DistributionLaws, HaveTheCodesThatHostsUse)
{
    EXPECT_EQ(kNormalLaw, 1);
    EXPECT_EQ(kUniformLaw, 2);
    EXPECT_EQ(kTriangularLaw, 3);
}

// The product with the double next below one sixth differs from the quotient by 6 for some widths, 0.7 among them.
TEST(StandardDeviation, OfTheNormalLawIsTheProductWithOneSixth)
{
    EXPECT_EQ(StandardDeviation(kNormalLaw, 0.2), 0.2 * 0.16666666666666666);
    EXPECT_EQ(StandardDeviation(kNormalLaw, 0.7), 0.7 * 0.16666666666666666);
    EXPECT_NEAR(*StandardDeviation(kNormalLaw, 0.6), 0.1, 1e-15);
}

// 1 / (2 * 1.7320508075688772) and 1 / (2 * 2.4494897427831781) to fifteen places by hand.
TEST(StandardDeviation, OfTheUniformAndTheTriangularLawDividesByTheRoot)
{
    EXPECT_NEAR(*StandardDeviation(kUniformLaw, 1.0), 0.288675134594813, 1e-15);
    EXPECT_NEAR(*StandardDeviation(kTriangularLaw, 1.0), 0.204124145231932, 1e-15);
}

TEST(StandardDeviation, IsMissingForAnyOtherCode)
{
    for (const std::int32_t code : {0, 4, -1, std::numeric_limits<std::int32_t>::min()})
        EXPECT_FALSE(StandardDeviation(code, 1.0).has_value()) << code;
}

TEST(FieldWidth, IsTheInverseByLaw)
{
    EXPECT_EQ(FieldWidth(kNormalLaw, 0.1), 0.1 * 6.0);
    EXPECT_NEAR(*FieldWidth(kUniformLaw, 0.1), 0.346410161513775, 1e-15);
    EXPECT_NEAR(*FieldWidth(kTriangularLaw, 0.1), 0.489897948556636, 1e-15);
}

TEST(FieldWidth, IsMissingForAnyOtherCode)
{
    for (const std::int32_t code : {0, 4, -1})
        EXPECT_FALSE(FieldWidth(code, 1.0).has_value()) << code;
}

TEST(FieldWidth, OfNoNumberIsNoNumber)
{
    EXPECT_TRUE(std::isnan(*FieldWidth(kUniformLaw, std::numeric_limits<double>::quiet_NaN())));
}
