#include "calc/centre_of_grouping.h"

#include <gtest/gtest.h>

// ((4 + 0) + (4 + 0.05)) / 2 = 4.025
TEST(CentreOfGrouping, IsTheMiddleOfTheField)
{
    EXPECT_DOUBLE_EQ(CentreOfGrouping("4", "0.05", "0"), 4.025);
    EXPECT_DOUBLE_EQ(CentreOfGrouping("25", "-0.02", "-0.033"), 24.9735);
}

TEST(CentreOfGrouping, CountsTextsThatAreNoNumbersAsZero)
{
    EXPECT_EQ(CentreOfGrouping("", "abc", ""), 0.0);
    EXPECT_EQ(CentreOfGrouping("12,5", "", "x"), 12.0);
}

// Doubles beside 1e16 are even numbers, ties go to multiples of 4: 1e16 + 1 is 1e16 and 1e16 + 5 is 1e16 + 4, their
// mean 1e16 + 2. The mean of the deviations, 3, added to the nominal would give 1e16 + 4.
TEST(CentreOfGrouping, AddsTheNominalToEachDeviationFirst)
{
    EXPECT_EQ(CentreOfGrouping("10000000000000000", "5", "1"), 1e16 + 2.0);
}
