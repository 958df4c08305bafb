#include "calc/chain_calculation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace
{

ComponentLink Increasing(double nominal, double upperDev, double lowerDev)
{
    return {.nominal = nominal, .upperDev = upperDev, .lowerDev = lowerDev, .increasing = 1};
}

ComponentLink Decreasing(double nominal, double upperDev, double lowerDev)
{
    return {.nominal = nominal, .upperDev = upperDev, .lowerDev = lowerDev, .increasing = 0};
}

ChainResult Analytic(const std::vector<ComponentLink>& links, const ClosingLink& closing = {})
{
    return Calculate(kAnalyticMethod, links, closing).value();
}

// 10 +0.1/-0.1 increasing and 4 +0.05/0 decreasing, required 6 +0.15/-0.15.
ChainResult WorkedExample()
{
    return Analytic({Increasing(10, 0.1, -0.1), Decreasing(4, 0.05, 0)},
                    {.nominal = 6, .upperDev = 0.15, .lowerDev = -0.15});
}

}  // namespace

// A0 = 10 - 4; upper 10.1 - 4, lower 9.9 - 4.05; ES0 = 0.1 - 0, EI0 = -0.1 - 0.05.
TEST(AnalyticMethod, SubtractsTheOppositeLimitsOfDecreasingLinks)
{
    const ChainResult result = WorkedExample();
    EXPECT_DOUBLE_EQ(result.nominal, 6.0);
    EXPECT_DOUBLE_EQ(result.upperLimit, 6.1);
    EXPECT_DOUBLE_EQ(result.lowerLimit, 5.85);
    EXPECT_DOUBLE_EQ(result.upperDev, 0.1);
    EXPECT_DOUBLE_EQ(result.lowerDev, -0.15);
    EXPECT_TRUE(result.nominalMatches);
}

TEST(AnalyticMethod, WritesItsResultsWithoutTrailingZeros)
{
    const ChainResult result = WorkedExample();
    EXPECT_EQ(result.nominalText, "6");
    EXPECT_EQ(result.upperLimitText, "6.1");
    EXPECT_EQ(result.lowerLimitText, "5.85");
    EXPECT_EQ(result.upperDevText, "0.1");
    EXPECT_EQ(result.lowerDevText, "-0.15");
}

TEST(AnalyticMethod, CutsNoneOfTheNineDecimalPlaces)
{
    const ChainResult result = Analytic({Increasing(10.123456789, 0.000000003, -0.000000004), Decreasing(4, 0, 0)},
                                        {.nominal = 6.123456789, .upperDev = 0.000000006, .lowerDev = -0.000000007});
    EXPECT_EQ(result.nominalText, "6.123456789");
    EXPECT_EQ(result.upperLimitText, "6.123456792");
    EXPECT_EQ(result.lowerLimitText, "6.123456785");
    EXPECT_EQ(result.upperDevText, "0.000000003");
    EXPECT_EQ(result.lowerDevText, "-0.000000004");
    EXPECT_EQ(result.requiredUpperText, "6.123456795");
    EXPECT_EQ(result.requiredLowerText, "6.123456782");
}

TEST(AnalyticMethod, LeavesTheProbabilisticValuesEmpty)
{
    const ChainResult result = WorkedExample();
    EXPECT_EQ(result.middle, 0.0);
    EXPECT_EQ(result.grouping, 0.0);
    EXPECT_EQ(result.variance, 0.0);
    EXPECT_EQ(result.field, 0.0);
    EXPECT_EQ(result.middleText + result.groupingText + result.varianceText + result.fieldText, "");
}

TEST(AnalyticMethod, TakesAnyNumberButZeroAsIncreasing)
{
    for (const std::int32_t increasing : {1, 2, -1, 0x10000})
    {
        ComponentLink link = Increasing(10, 0, 0);
        link.increasing = increasing;
        EXPECT_EQ(Analytic({link, Decreasing(4, 0, 0)}).nominalText, "6") << increasing;
    }
}

// Doubles beside 1e16 are even and ties go to multiples of 4. 1e16 + 1 is 1e16, so the increasing sum is 1e16 and the
// difference 0; a difference kept along the chain would be (1e16 - 1e16) + 1 = 1.
TEST(AnalyticMethod, SumsIncreasingAndDecreasingLinksApart)
{
    EXPECT_EQ(Analytic({Increasing(1e16, 0, 0), Decreasing(1e16, 0, 0), Increasing(1, 0, 0)}).nominal, 0.0);
}

// (1e16 + 1) + 1 stays at 1e16, (1 + 1) + 1e16 is 1e16 + 2.
TEST(AnalyticMethod, AddsInChainOrder)
{
    const ComponentLink decreasing = Decreasing(1e16, 0, 0);
    const ComponentLink one = Increasing(1, 0, 0);
    EXPECT_EQ(Analytic({Increasing(1e16, 0, 0), one, one, decreasing}).nominalText, "0");
    EXPECT_EQ(Analytic({one, one, Increasing(1e16, 0, 0), decreasing}).nominalText, "2");
}

// The limit 1e16 + 1 is 1e16, while the deviations on their own keep the 1.
TEST(AnalyticMethod, SumsLimitsAndDeviationsApart)
{
    const ChainResult result = Analytic({Increasing(1e16, 1, -1), Decreasing(1e16, 0, 0)});
    EXPECT_EQ(result.upperLimitText, "0");
    EXPECT_EQ(result.lowerLimitText, "0");
    EXPECT_EQ(result.upperDevText, "1");
    EXPECT_EQ(result.lowerDevText, "-1");
}

// Deviations that cancel in decimal: 0.3 - (0.1 + 0.2) is -5.6e-17 in doubles.
TEST(AnalyticMethod, KeepsTheSignOfADifferenceThatRoundsToZero)
{
    const ChainResult result = Analytic({Increasing(10, 0.3, 0), Decreasing(1, 0.1, 0.1), Decreasing(1, 0.2, 0.2)});
    EXPECT_EQ(result.upperDev, 0.0);
    EXPECT_TRUE(std::signbit(result.upperDev));
    EXPECT_EQ(result.upperDevText, "-0");
}

// Before rounding: nominal 6.0000000004, limits 6.0300000008 and 5.9800000001, deviations 0.0300000004 and
// -0.0200000003.
TEST(AnalyticMethod, RoundsEachResultToNineDecimalPlaces)
{
    const ChainResult result = Analytic({Increasing(10.0000000004, 0.0300000004, -0.0200000003), Decreasing(4, 0, 0)});
    EXPECT_EQ(result.nominal, 6000000000.0 * 1e-9);
    EXPECT_EQ(result.upperLimit, 6030000001.0 * 1e-9);
    EXPECT_EQ(result.lowerLimit, 5980000000.0 * 1e-9);
    EXPECT_EQ(result.upperDev, 30000000.0 * 1e-9);
    EXPECT_EQ(result.lowerDev, -20000000.0 * 1e-9);
}

// ES below EI: nothing is put in order, the results follow the formulas.
TEST(AnalyticMethod, CarriesReversedLimitsThrough)
{
    const ChainResult result = Analytic({Increasing(10, -0.1, 0.2), Decreasing(4, 0, 0)});
    EXPECT_EQ(result.upperDevText, "-0.1");
    EXPECT_EQ(result.lowerDevText, "0.2");
    EXPECT_EQ(result.upperLimitText, "5.9");
    EXPECT_EQ(result.lowerLimitText, "6.2");
}

TEST(AnalyticMethod, IgnoresLawsAndCentresOfGrouping)
{
    ComponentLink increasing = Increasing(10, 0.1, -0.1);
    ComponentLink decreasing = Decreasing(4, 0.05, 0);
    increasing.law = 3;
    increasing.mean = 99;
    decreasing.law = -7;
    decreasing.mean = std::nan("");
    const ChainResult result = Analytic({increasing, decreasing}, {.nominal = 6, .law = 2});
    EXPECT_EQ(result.upperLimitText, "6.1");
    EXPECT_EQ(result.lowerLimitText, "5.85");
}
