#pragma once

#include <optional>
#include <string_view>

namespace iso286
{

/// Limit deviations ES and EI (es and ei of a shaft) in micrometres, signed; upper > lower.
struct LimitDeviations
{
    float upper;
    float lower;
};

/// Limit deviations of a tolerance class such as "H7" at a nominal size in millimetres. Half micrometres of JS and js
/// are kept. Nothing for a size outside 0 < nominal <= 3150 or NaN, for a text that is not exactly a code, and for a
/// class that the standard does not give at that size. Allocates nothing.
std::optional<LimitDeviations> FindLimitDeviations(float nominal, std::string_view code);

}  // namespace iso286
