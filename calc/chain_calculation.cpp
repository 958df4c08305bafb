#include "calc/chain_calculation.h"

#include "calc/distribution_laws.h"
#include "calc/number_text.h"

#include <cmath>
#include <cstddef>

namespace
{

constexpr std::size_t kFewestLinks = 2;
constexpr double kNominalTolerance = 1e-9;

// One running sum over the increasing links and one over the decreasing ones.
struct DirectedSum
{
    double increasing = 0.0;
    double decreasing = 0.0;

    void Add(bool isIncreasing, double value) { (isIncreasing ? increasing : decreasing) += value; }
    double Difference() const { return RoundToNano(increasing - decreasing); }
};

// Limits and deviations change places when a link decreases: the largest closing link has the smallest of them.
double Widest(const DirectedSum& sum, const DirectedSum& opposite)
{
    return RoundToNano(sum.increasing - opposite.decreasing);
}

void CalculateAnalytic(std::span<const ComponentLink> links, ChainResult& result)
{
    DirectedSum upperLimits;
    DirectedSum lowerLimits;
    DirectedSum nominals;
    DirectedSum upperDevs;
    DirectedSum lowerDevs;
    for (const ComponentLink& link : links)
    {
        const bool isIncreasing = link.increasing != 0;
        upperLimits.Add(isIncreasing, link.nominal + link.upperDev);
        lowerLimits.Add(isIncreasing, link.nominal + link.lowerDev);
        nominals.Add(isIncreasing, link.nominal);
        upperDevs.Add(isIncreasing, link.upperDev);
        lowerDevs.Add(isIncreasing, link.lowerDev);
    }
    result.nominal = nominals.Difference();
    result.upperLimit = Widest(upperLimits, lowerLimits);
    result.lowerLimit = Widest(lowerLimits, upperLimits);
    result.upperDev = Widest(upperDevs, lowerDevs);
    result.lowerDev = Widest(lowerDevs, upperDevs);
    result.upperLimitText = NumberText9(result.upperLimit);
    result.lowerLimitText = NumberText9(result.lowerLimit);
}

void CalculateProbabilistic(std::span<const ComponentLink> links, std::int32_t closingLaw, ChainResult& result)
{
    DirectedSum means;
    DirectedSum middles;
    DirectedSum nominals;
    DirectedSum variances;
    double sigma = 0.0;  // a link without a known law takes over the value of the link before it
    for (const ComponentLink& link : links)
    {
        const bool isIncreasing = link.increasing != 0;
        const double upperLimit = link.nominal + link.upperDev;
        const double lowerLimit = link.nominal + link.lowerDev;
        sigma = StandardDeviation(link.law, upperLimit - lowerLimit).value_or(sigma);
        means.Add(isIncreasing, link.mean);
        middles.Add(isIncreasing, (lowerLimit + upperLimit) * 0.5);
        nominals.Add(isIncreasing, link.nominal);
        variances.Add(isIncreasing, sigma * sigma);
    }
    result.grouping = means.Difference();
    result.middle = middles.Difference();
    result.nominal = nominals.Difference();
    result.variance = variances.Difference();
    result.field = RoundToNano(FieldWidth(closingLaw, std::sqrt(result.variance)).value_or(result.nominal));
    result.upperLimit = result.middle + result.field * 0.5;
    result.lowerLimit = result.middle - result.field * 0.5;
    result.upperDev = result.upperLimit - result.nominal;
    result.lowerDev = result.lowerLimit - result.nominal;
    result.upperLimitText = NumberText4(result.upperLimit);
    result.lowerLimitText = NumberText4(result.lowerLimit);
    result.middleText = NumberText9(result.middle);
    result.groupingText = NumberText9(result.grouping);
    result.varianceText = NumberText9(result.variance);
    result.fieldText = NumberText9(result.field);
}

}  // namespace

std::optional<ChainResult> Calculate(std::int32_t method, std::span<const ComponentLink> links,
                                     const ClosingLink& closing)
{
    if ((method != kAnalyticMethod && method != kProbabilisticMethod) || links.size() < kFewestLinks)
        return std::nullopt;

    ChainResult result;
    result.requiredUpper = RoundToNano(closing.nominal + closing.upperDev);
    result.requiredLower = RoundToNano(closing.nominal + closing.lowerDev);
    if (method == kAnalyticMethod)
        CalculateAnalytic(links, result);
    else
        CalculateProbabilistic(links, closing.law, result);

    result.nominalMatches = std::abs(result.nominal - closing.nominal) <= kNominalTolerance;
    result.requiredUpperText = NumberText9(result.requiredUpper);
    result.requiredLowerText = NumberText9(result.requiredLower);
    result.nominalText = NumberText9(result.nominal);
    result.upperDevText = NumberText9(result.upperDev);
    result.lowerDevText = NumberText9(result.lowerDev);
    return result;
}
