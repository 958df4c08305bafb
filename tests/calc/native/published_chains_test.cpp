#include "calc/chain_calculation.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cmath>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

// Worked chains from textbooks and lecture notes, in the units of their sources; the data file names each source.

namespace
{

using nlohmann::json;

std::vector<json> PublishedChains()
{
    std::ifstream file(PUBLISHED_CHAINS);
    return json::parse(file).at("chains").get<std::vector<json>>();
}

ChainResult Computed(const json& chain, std::int32_t method)
{
    std::vector<ComponentLink> links;
    for (const json& link : chain.at("links"))
    {
        const double nominal = link.at("nominal");
        const double upperDev = link.at("upperDev");
        const double lowerDev = link.at("lowerDev");
        links.push_back({.nominal = nominal,
                         .upperDev = upperDev,
                         .lowerDev = lowerDev,
                         .increasing = link.at("increasing").get<bool>() ? 1 : 0,
                         .law = 1,
                         .mean = nominal + (upperDev + lowerDev) / 2});
    }
    return Calculate(method, links, {.nominal = chain.at("closingNominal"), .law = 1}).value();
}

// Compares only what the source prints.
void ExpectPublished(const json& published, const char* figure, double computed)
{
    if (!published.contains(figure))
        return;
    EXPECT_NEAR(computed, published.at(figure).get<double>(), 1e-12) << figure;  // only binary rounding may differ
}

}  // namespace

TEST(PublishedChains, AreSixWithAWorstCase)
{
    EXPECT_EQ(PublishedChains().size(), 6U);
}

TEST(PublishedChains, HaveTheWorstCaseThatTheirSourcesPrint)
{
    for (const json& chain : PublishedChains())
    {
        const std::string name = chain.at("name");
        SCOPED_TRACE(name + " (" + chain.at("source").get<std::string>() + ")");
        std::cout << "worst case: " << name << " [" << chain.at("unit").get<std::string>() << "]\n";
        const json& published = chain.at("published");
        const ChainResult result = Computed(chain, kAnalyticMethod);
        EXPECT_TRUE(result.nominalMatches);
        ExpectPublished(published, "nominal", result.nominal);
        ExpectPublished(published, "upperDev", result.upperDev);
        ExpectPublished(published, "lowerDev", result.lowerDev);
        ExpectPublished(published, "upperLimit", result.upperLimit);
        ExpectPublished(published, "lowerLimit", result.lowerLimit);
    }
}

TEST(PublishedChains, HaveTheStatisticalFieldThatTheirSourcesPrint)
{
    int compared = 0;
    for (const json& chain : PublishedChains())
    {
        if (!chain.contains("statistical"))
            continue;
        const std::string name = chain.at("name");
        SCOPED_TRACE(name);
        std::cout << "statistical: " << name << " [" << chain.at("unit").get<std::string>() << "]\n";
        const json& statistical = chain.at("statistical");
        const double halfOfLastPlace = 0.5 * std::pow(10.0, -statistical.at("printedDecimals").get<int>());
        const ChainResult result = Computed(chain, kProbabilisticMethod);
        EXPECT_NEAR(result.field / 2, statistical.at("halfField").get<double>(), halfOfLastPlace);
        EXPECT_NEAR(result.upperLimit, statistical.at("upperLimit").get<double>(), halfOfLastPlace);
        EXPECT_NEAR(result.lowerLimit, statistical.at("lowerLimit").get<double>(), halfOfLastPlace);
        ++compared;
    }
    EXPECT_EQ(compared, 1);
}
