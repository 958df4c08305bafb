#pragma once

#include "diagram/chain_diagram_layout.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

/// Required and computed deviations of a closing link, in any unit. Whole numbers keep the arithmetic of the scale
/// exact.
struct DeviationCase
{
    double requiredUpper;
    double requiredLower;
    double computedUpper;
    double computedLower;
};

inline constexpr double kNominal = 100.0;
inline constexpr double kInfinity = std::numeric_limits<double>::infinity();
inline constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/// Input for the analytic picture; every text names what it stands for.
inline ChainDiagramInput AnalyticInput(const DeviationCase& deviations, int width = 400, int height = 300)
{
    ChainResult result;
    result.nominal = kNominal;
    result.nominalMatches = true;
    result.requiredUpper = kNominal + deviations.requiredUpper;
    result.requiredLower = kNominal + deviations.requiredLower;
    result.upperDev = deviations.computedUpper;
    result.lowerDev = deviations.computedLower;
    result.upperLimit = kNominal + deviations.computedUpper;
    result.lowerLimit = kNominal + deviations.computedLower;
    result.requiredUpperText = "required upper";
    result.requiredLowerText = "required lower";
    result.nominalText = "A0";
    result.upperLimitText = "upper limit";
    result.lowerLimitText = "lower limit";
    result.upperDevText = "ES0";
    result.lowerDevText = "EI0";

    ChainDiagramInput input;
    input.width = width;
    input.height = height;
    input.method = kAnalyticMethod;
    input.closing = {kNominal, deviations.requiredUpper, deviations.requiredLower, 1};
    input.nominalText = "nominal";
    input.result = result;
    input.caption = "caption";
    input.upperWord = "upper";
    input.lowerWord = "lower";
    input.mismatchLines = {"first", "second", "third"};
    return input;
}

/// Input for the probabilistic picture. The variance is that of a normal law over the computed field, so that a field's
/// end is three sigma from its middle.
inline ChainDiagramInput ProbabilisticInput(const DeviationCase& deviations, std::int32_t law, int width = 400,
                                            int height = 320)
{
    ChainDiagramInput input = AnalyticInput(deviations, width, height);
    input.method = kProbabilisticMethod;
    input.closing.law = law;
    ChainResult& result = *input.result;
    result.field = deviations.computedUpper - deviations.computedLower;
    result.middle = kNominal + (deviations.computedUpper + deviations.computedLower) / 2;
    result.variance = std::pow(result.field / 6, 2);
    return input;
}

/// All primitives of one kind, in drawing order.
template <typename PrimitiveKind>
std::vector<PrimitiveKind> AllOf(const DisplayList& list)
{
    std::vector<PrimitiveKind> found;
    for (const Primitive& primitive : list.primitives)
    {
        if (const auto* match = std::get_if<PrimitiveKind>(&primitive))
            found.push_back(*match);
    }
    return found;
}

/// The text form of the primitives of one kind alone.
template <typename PrimitiveKind>
std::string TextOf(const DisplayList& list)
{
    DisplayList selected;
    for (const PrimitiveKind& primitive : AllOf<PrimitiveKind>(list))
        selected.primitives.emplace_back(primitive);
    return ToText(selected);
}

/// Whether the text form has this line.
inline bool HasLine(const DisplayList& list, const std::string& line)
{
    return ('\n' + ToText(list)).find('\n' + line + '\n') != std::string::npos;
}

/// Whether anything is filled.
inline bool HasField(const DisplayList& list)
{
    return !AllOf<RectPrimitive>(list).empty() || !AllOf<FillPrimitive>(list).empty() ||
           !AllOf<OutlinePrimitive>(list).empty();
}
