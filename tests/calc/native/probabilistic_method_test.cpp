#include "calc/chain_calculation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace
{

// A link with a field from -width/2 to +width/2 around the nominal.
ComponentLink Link(double nominal, double width, std::int32_t law, std::int32_t increasing = 1)
{
    return {.nominal = nominal,
            .upperDev = width / 2,
            .lowerDev = -width / 2,
            .increasing = increasing,
            .law = law,
            .mean = nominal};
}

ChainResult Probabilistic(const std::vector<ComponentLink>& links, const ClosingLink& closing = {.law = 1})
{
    return Calculate(kProbabilisticMethod, links, closing).value();
}

// 10 +0.1/-0.1 increasing and 4 +0.05/0 decreasing, required 6 +0.15/-0.15, everything normal.
std::vector<ComponentLink> WorkedLinks()
{
    return {{.nominal = 10, .upperDev = 0.1, .lowerDev = -0.1, .increasing = 1, .law = 1, .mean = 10},
            {.nominal = 4, .upperDev = 0.05, .lowerDev = 0, .increasing = 0, .law = 1, .mean = 4.025}};
}

constexpr ClosingLink kWorkedClosing{.nominal = 6, .upperDev = 0.15, .lowerDev = -0.15, .law = 1};

constexpr ComponentLink kExactZero{.nominal = 0, .increasing = 1, .law = 1};  // adds nothing to any sum

}  // namespace

// D0 = (0.2/6)^2 - (0.05/6)^2 = 0.0010416666..., T = 6 sqrt(0.001041667) = 0.193649198, M0 = 10 - 4.025.
TEST(ProbabilisticMethod, ComputesTheFieldFromTheVariances)
{
    const ChainResult result = Probabilistic(WorkedLinks(), kWorkedClosing);
    EXPECT_EQ(result.varianceText, "0.001041667");
    EXPECT_EQ(result.fieldText, "0.193649198");
    EXPECT_EQ(result.middleText, "5.975");
    EXPECT_EQ(result.groupingText, "5.975");
    EXPECT_EQ(result.nominalText, "6");
    EXPECT_DOUBLE_EQ(result.variance, 0.001041667);
    EXPECT_DOUBLE_EQ(result.field, 0.193649198);
}

// 5.975 +- 0.096824599
TEST(ProbabilisticMethod, WritesItsLimitsWithUpToFourDecimalPlaces)
{
    const ChainResult result = Probabilistic(WorkedLinks(), kWorkedClosing);
    EXPECT_DOUBLE_EQ(result.upperLimit, 6.071824599);
    EXPECT_DOUBLE_EQ(result.lowerLimit, 5.878175401);
    EXPECT_EQ(result.upperLimitText, "6.0718");
    EXPECT_EQ(result.lowerLimitText, "5.8782");
}

// The middle is 1e-9 above the nominal.
TEST(ProbabilisticMethod, CutsNoneOfTheNineDecimalPlacesOfItsMiddles)
{
    const ChainResult result = Probabilistic({{.nominal = 6.123456789,
                                               .upperDev = 0.000000003,
                                               .lowerDev = -0.000000001,
                                               .increasing = 1,
                                               .law = 1,
                                               .mean = 6.123456782},
                                              kExactZero});
    EXPECT_EQ(result.nominalText, "6.123456789");
    EXPECT_EQ(result.middleText, "6.12345679");
    EXPECT_EQ(result.groupingText, "6.123456782");
}

TEST(ProbabilisticMethod, TakesTheDeviationsFromItsLimitsWithoutRounding)
{
    const ChainResult result = Probabilistic(WorkedLinks(), kWorkedClosing);
    EXPECT_EQ(result.upperDev, result.upperLimit - result.nominal);
    EXPECT_EQ(result.lowerDev, result.lowerLimit - result.nominal);
    EXPECT_EQ(result.upperDevText, "0.071824599");
    EXPECT_EQ(result.lowerDevText, "-0.121824599");
}

// 5 +- 0.489897949 / 2: ten decimal places, nine would be off by 5e-10. The last bits of a sum near 5 are below 1e-15.
TEST(ProbabilisticMethod, DoesNotRoundItsLimits)
{
    const ChainResult result = Probabilistic({Link(5, 0.6, 1), kExactZero}, {.law = 3});
    EXPECT_NEAR(result.upperLimit, 5.2449489745, 1e-12);
    EXPECT_NEAR(result.lowerLimit, 4.7550510255, 1e-12);
}

// Before rounding: nominal 6.0000000004, middle 6.0200000003 of the limits 9.9800000003 and 10.0600000003 less 4,
// centre of grouping 6.0100000002.
TEST(ProbabilisticMethod, RoundsNominalMiddleAndCentreOfGroupingToNineDecimalPlaces)
{
    const ComponentLink increasing{.nominal = 10.0000000004,
                                   .upperDev = 0.0599999999,
                                   .lowerDev = -0.0200000001,
                                   .increasing = 1,
                                   .law = 1,
                                   .mean = 10.0100000002};
    const ChainResult result = Probabilistic({increasing, Link(4, 0, 1, 0)});
    EXPECT_EQ(result.nominal, 6000000000.0 * 1e-9);
    EXPECT_EQ(result.middle, 6020000000.0 * 1e-9);
    EXPECT_EQ(result.grouping, 6010000000.0 * 1e-9);
}

TEST(ProbabilisticMethod, SubtractsTheVariancesOfDecreasingLinks)
{
    // sigma 0.2 and 0.1: 0.04 - 0.01, not 0.05
    EXPECT_EQ(Probabilistic({Link(10, 1.2, 1), Link(4, 0.6, 1, 0)}).varianceText, "0.03");
}

// Field 0.6 by law: (0.6/6)^2 = 0.01, 0.36/12 = 0.03, 0.36/24 = 0.015.
TEST(ProbabilisticMethod, TakesTheVarianceOfALinkFromItsLaw)
{
    EXPECT_EQ(Probabilistic({Link(5, 0.6, 1), kExactZero}).varianceText, "0.01");
    EXPECT_EQ(Probabilistic({Link(5, 0.6, 2), kExactZero}).varianceText, "0.03");
    EXPECT_EQ(Probabilistic({Link(5, 0.6, 3), kExactZero}).varianceText, "0.015");
    EXPECT_EQ(Probabilistic({Link(5, 0.6, 1), Link(5, 0.6, 2), Link(5, 0.6, 3)}).varianceText, "0.055");
}

// sigma 0.1: 6 * 0.1, 2 sqrt(3) * 0.1, 2 sqrt(6) * 0.1
TEST(ProbabilisticMethod, TakesTheFieldOfTheClosingLinkFromItsOwnLaw)
{
    const std::vector<ComponentLink> links{Link(5, 0.6, 1), kExactZero};
    EXPECT_EQ(Probabilistic(links, {.law = 1}).fieldText, "0.6");
    EXPECT_EQ(Probabilistic(links, {.law = 2}).fieldText, "0.346410162");
    EXPECT_EQ(Probabilistic(links, {.law = 3}).fieldText, "0.489897949");
}

// The first link's sigma of 0.1 serves the second too, whatever its field: 0.01 + 0.01.
TEST(ProbabilisticMethod, ALinkWithoutALawTakesTheDeviationOfTheLinkBefore)
{
    for (const std::int32_t unknown : {0, 4, -1})
        EXPECT_EQ(Probabilistic({Link(5, 0.6, 1), Link(5, 99, unknown)}).varianceText, "0.02") << unknown;
}

TEST(ProbabilisticMethod, TheDeviationCarriesOverSeveralLinksAndBothDirections)
{
    const ComponentLink increasing = Link(5, 1, 0);
    const ComponentLink decreasing = Link(1, 1, 0, 0);
    // 0.01 + 0.01 - 0.01 + 0.01, then 0.04 of its own and 0.04 taken over
    EXPECT_EQ(Probabilistic({Link(5, 0.6, 1), increasing, decreasing, increasing}).varianceText, "0.02");
    EXPECT_EQ(Probabilistic({Link(5, 0.6, 1), increasing, Link(5, 1.2, 1), increasing}).varianceText, "0.1");
}

TEST(ProbabilisticMethod, AFirstLinkWithoutALawHasNoVariance)
{
    EXPECT_EQ(Probabilistic({Link(5, 9, 0), Link(5, 0.6, 1)}).varianceText, "0.01");
    EXPECT_EQ(Probabilistic({Link(5, 9, 0), Link(5, 9, 0)}).varianceText, "0");
}

// T = A0 = 10 - 4 = 6, around the middle 6: 9 and 3.
TEST(ProbabilisticMethod, AClosingLinkWithoutALawHasTheNominalAsItsField)
{
    for (const std::int32_t unknown : {0, 4, -1})
    {
        SCOPED_TRACE(unknown);
        const ChainResult result = Probabilistic({Link(10, 1, 1), Link(4, 0.5, 1, 0)}, {.nominal = 6, .law = unknown});
        EXPECT_EQ(result.fieldText, "6");
        EXPECT_EQ(result.upperLimitText, "9");
        EXPECT_EQ(result.lowerLimitText, "3");
        EXPECT_EQ(result.upperDevText, "3");
        EXPECT_EQ(result.lowerDevText, "-3");
    }
}

// The field of the decreasing link prevails: D0 = 0.000069444... - 0.001111... < 0.
TEST(ProbabilisticMethod, ANegativeVarianceGivesNoNumbers)
{
    const ChainResult result = Probabilistic({Link(10, 0.05, 1), Link(4, 0.2, 1, 0)}, {.nominal = 6, .law = 1});
    EXPECT_EQ(result.varianceText, "-0.001041667");
    EXPECT_TRUE(std::isnan(result.field));
    EXPECT_TRUE(std::isnan(result.upperLimit));
    EXPECT_TRUE(std::isnan(result.lowerLimit));
    for (const std::string& text :
         {result.fieldText, result.upperLimitText, result.lowerLimitText, result.upperDevText, result.lowerDevText})
        EXPECT_EQ(text, "nan");
    EXPECT_EQ(result.middleText, "6");
    EXPECT_TRUE(result.nominalMatches);
}

// The same negative variance, but the field is the nominal.
TEST(ProbabilisticMethod, AClosingLinkWithoutALawHasItsLimitsAlsoWithANegativeVariance)
{
    const ChainResult result = Probabilistic({Link(10, 0.05, 1), Link(4, 0.2, 1, 0)}, {.nominal = 6, .law = 0});
    EXPECT_EQ(result.varianceText, "-0.001041667");
    EXPECT_EQ(result.fieldText, "6");
    EXPECT_EQ(result.upperLimitText, "9");
    EXPECT_EQ(result.lowerLimitText, "3");
}

TEST(ProbabilisticMethod, TheCentreOfGroupingMovesNoLimit)
{
    std::vector<ComponentLink> links = WorkedLinks();
    links[0].mean = 10.05;
    links[1].mean = 4.01;
    const ChainResult result = Probabilistic(links, kWorkedClosing);
    EXPECT_EQ(result.groupingText, "6.04");
    EXPECT_EQ(result.middleText, "5.975");
    EXPECT_EQ(result.upperLimitText, "6.0718");
    EXPECT_EQ(result.lowerLimitText, "5.8782");
}

// (9.9 + 10.3) / 2 - (3.8 + 4) / 2
TEST(ProbabilisticMethod, TheMiddleIsThatOfTheFieldsAndNotOfTheNominals)
{
    const ComponentLink increasing{.nominal = 10, .upperDev = 0.3, .lowerDev = -0.1, .increasing = 1, .law = 1};
    const ComponentLink decreasing{.nominal = 4, .upperDev = 0, .lowerDev = -0.2, .increasing = 0, .law = 1};
    EXPECT_EQ(Probabilistic({increasing, decreasing}).middleText, "6.2");
}

// Doubles beside 1e16 are even: the difference kept along the chain would be 1.
TEST(ProbabilisticMethod, SumsIncreasingAndDecreasingLinksApart)
{
    const ChainResult result = Probabilistic({Link(1e16, 0, 1), Link(1e16, 0, 1, 0), Link(1, 0, 1)});
    EXPECT_EQ(result.nominal, 0.0);
    EXPECT_EQ(result.middle, 0.0);
    EXPECT_EQ(result.grouping, 0.0);
}

// Both limits, 1e16 + 1 and 1e16 - 1, are 1e16; the deviations on their own have a width of 2 and a variance of 1/9.
TEST(ProbabilisticMethod, TakesTheFieldOfALinkFromItsLimits)
{
    EXPECT_EQ(Probabilistic({Link(1e16, 2, 1), kExactZero}).varianceText, "0");
}

// The limits 1e16 + 5 and 1e16 + 1 are 1e16 + 4 and 1e16, their middle 1e16 + 2; the nominal and the middle of the
// deviations, 1e16 + 3, are 1e16 + 4.
TEST(ProbabilisticMethod, TakesTheMiddleOfALinkFromItsLimits)
{
    const ComponentLink increasing{.nominal = 1e16, .upperDev = 5, .lowerDev = 1, .increasing = 1, .law = 1};
    EXPECT_EQ(Probabilistic({increasing, Link(1e16, 0, 1, 0)}).middleText, "2");
}

// Reversed limits make sigma negative; its square is the same.
TEST(ProbabilisticMethod, ReversedLimitsGiveTheSameVariance)
{
    EXPECT_EQ(Probabilistic({Link(5, -0.6, 1), kExactZero}).varianceText, "0.01");
}
