#pragma once

#include <cstdint>
#include <optional>

namespace iso286
{

/// The limit that fixes where a tolerance field lies against the nominal size; the other limit follows from IT.
struct FundamentalDeviation
{
    enum class Limit
    {
        upper,
        lower
    };

    double value;  // micrometres, signed
    Limit limit;
};

/// A cell of the printed tables of fundamental deviations, micrometres.
using DeviationCell = std::int16_t;
inline constexpr DeviationCell none = INT16_MIN;  // the dash: the standard gives no deviation

inline std::optional<FundamentalDeviation> DeviationInCell(DeviationCell cell, FundamentalDeviation::Limit limit)
{
    return cell == none ? std::nullopt : std::optional(FundamentalDeviation{static_cast<double>(cell), limit});
}

}  // namespace iso286
