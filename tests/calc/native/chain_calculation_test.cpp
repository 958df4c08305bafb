#include "calc/chain_calculation.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

namespace
{

constexpr std::array kMethods{kAnalyticMethod, kProbabilisticMethod};

std::vector<ComponentLink> TwoLinks()
{
    return {{.nominal = 10, .upperDev = 0.1, .lowerDev = -0.1, .increasing = 1, .law = 1, .mean = 10},
            {.nominal = 4, .upperDev = 0.05, .lowerDev = 0, .increasing = 0, .law = 1, .mean = 4.025}};
}

bool Matches(std::int32_t method, double closingNominal)
{
    return Calculate(method, TwoLinks(), {.nominal = closingNominal, .law = 1})->nominalMatches;
}

}  // namespace

TEST(ChainCalculation, ComputesNothingForAnotherMethod)
{
    for (const std::int32_t method : {0, 3, -1, std::numeric_limits<std::int32_t>::max()})
        EXPECT_FALSE(Calculate(method, TwoLinks(), {}).has_value()) << method;
}

TEST(ChainCalculation, ComputesNothingForFewerThanTwoLinks)
{
    const std::vector<ComponentLink> one{TwoLinks().front()};
    for (const std::int32_t method : kMethods)
    {
        EXPECT_FALSE(Calculate(method, {}, {}).has_value()) << method;
        EXPECT_FALSE(Calculate(method, one, {}).has_value()) << method;
        EXPECT_TRUE(Calculate(method, TwoLinks(), {}).has_value()) << method;
    }
}

// 0.3000000004 and -0.0000000004 before rounding.
TEST(ChainCalculation, RoundsTheRequiredLimits)
{
    const ClosingLink closing{.nominal = 0.1, .upperDev = 0.2000000004, .lowerDev = -0.1000000004, .law = 1};
    for (const std::int32_t method : kMethods)
    {
        SCOPED_TRACE(method);
        const ChainResult result = *Calculate(method, TwoLinks(), closing);
        EXPECT_EQ(result.requiredUpper, 300000000.0 * 1e-9);
        EXPECT_EQ(result.requiredUpperText, "0.3");
        EXPECT_EQ(result.requiredLower, 0.0);
        EXPECT_EQ(result.requiredLowerText, "-0");  // -4e-10 keeps its sign
    }
}

TEST(ChainCalculation, ANominalWithinTheToleranceMatches)
{
    for (const std::int32_t method : kMethods)
    {
        EXPECT_TRUE(Matches(method, 6.0)) << method;
        EXPECT_TRUE(Matches(method, 6.0000000005)) << method;
        EXPECT_TRUE(Matches(method, 5.9999999995)) << method;
        EXPECT_FALSE(Matches(method, 6.0000000015)) << method;
        EXPECT_FALSE(Matches(method, 5.9999999985)) << method;
        EXPECT_FALSE(Matches(method, -6.0)) << method;
    }
}

// |0 - 1e-9| is the tolerance itself. Beside 6 the nearest double to 6.000000001 is 8e-17 farther away.
TEST(ChainCalculation, TheNominalIsComparedInRawDoubles)
{
    std::vector<ComponentLink> links = TwoLinks();
    links[1].nominal = 10;
    EXPECT_TRUE(Calculate(kAnalyticMethod, links, {.nominal = 1e-9})->nominalMatches);
    EXPECT_FALSE(Matches(kAnalyticMethod, 6.000000001));
}

TEST(ChainCalculation, ANominalThatIsNoNumberNeverMatches)
{
    std::vector<ComponentLink> links = TwoLinks();
    for (ComponentLink& link : links)
        link.nominal = std::numeric_limits<double>::infinity();
    for (const std::int32_t method : kMethods)
    {
        const ChainResult result = *Calculate(method, links, {.nominal = 6, .law = 1});
        EXPECT_FALSE(result.nominalMatches) << method;
        EXPECT_EQ(result.nominalText, "nan") << method;
    }
}

TEST(ChainCalculation, HugeValuesKeepTheirDigits)
{
    std::vector<ComponentLink> links = TwoLinks();
    links[0].nominal = 1e22;
    const ChainResult result = *Calculate(kAnalyticMethod, links, {});
    EXPECT_NEAR(result.nominal / 1e22, 1.0, 1e-15);  // the rounding to nine places costs the last bit at this size
    EXPECT_EQ(result.nominalText.size(), 23U);
    links[0].nominal = 1e308;
    links[0].upperDev = 1e308;
    EXPECT_EQ(Calculate(kAnalyticMethod, links, {})->upperLimitText, "inf");
}

TEST(ChainCalculation, AnyDoublesGiveTextsAndNoCrash)
{
    const std::uint32_t seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::array special{0.0,
                             -0.0,
                             1e-300,
                             1e308,
                             -1e308,
                             std::numeric_limits<double>::infinity(),
                             -std::numeric_limits<double>::infinity(),
                             std::numeric_limits<double>::quiet_NaN(),
                             0.1};
    const auto pick = [&] { return special[random() % special.size()]; };
    for (int round = 0; round < 2000; ++round)
    {
        std::vector<ComponentLink> links(2 + random() % 4);
        for (ComponentLink& link : links)
            link = {pick(),
                    pick(),
                    pick(),
                    static_cast<std::int32_t>(random() % 2),
                    static_cast<std::int32_t>(random() % 5),
                    pick()};
        const ClosingLink closing{pick(), pick(), pick(), static_cast<std::int32_t>(random() % 5)};
        for (const std::int32_t method : kMethods)
        {
            const ChainResult result = *Calculate(method, links, closing);
            EXPECT_FALSE(result.upperLimitText.empty());
            EXPECT_EQ(std::isnan(result.lowerDev), result.lowerDevText == "nan");
            EXPECT_EQ(result.nominalMatches, std::abs(result.nominal - closing.nominal) <= 1e-9);
        }
    }
}
