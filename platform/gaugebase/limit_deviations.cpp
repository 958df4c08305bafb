#include "platform/gaugebase/limit_deviations.h"

#include "platform/gaugebase/fundamental_deviation.h"
#include "platform/gaugebase/hole_deviations.h"
#include "platform/gaugebase/shaft_deviations.h"
#include "platform/gaugebase/standard_tolerances.h"
#include "platform/gaugebase/tolerance_classes.h"

namespace iso286
{
namespace
{

// Narrowed only here: sums of tenths are exact to a float's digits that way.
LimitDeviations Limits(double upper, double lower)
{
    return {static_cast<float>(upper), static_cast<float>(lower)};
}

}  // namespace

std::optional<LimitDeviations> FindLimitDeviations(float nominal, std::string_view code)
{
    const auto toleranceClass = ParseToleranceClass(code);
    if (!toleranceClass)
        return std::nullopt;
    const auto& [letters, isHole, grade] = *toleranceClass;
    const auto tolerance = StandardTolerance(grade, nominal);
    if (!tolerance)
        return std::nullopt;
    if (letters == "JS" || letters == "js")
        return Limits(*tolerance / 2, -*tolerance / 2);
    const auto deviation =
        isHole ? HoleFundamentalDeviation(letters, grade, nominal) : ShaftFundamentalDeviation(letters, grade, nominal);
    if (!deviation)
        return std::nullopt;
    if (deviation->limit == FundamentalDeviation::Limit::upper)
        return Limits(deviation->value, deviation->value - *tolerance);
    return Limits(deviation->value + *tolerance, deviation->value);
}

}  // namespace iso286
