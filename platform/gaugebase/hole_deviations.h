#pragma once

#include "platform/gaugebase/fundamental_deviation.h"

#include <optional>
#include <string_view>

namespace iso286
{

/// Fundamental deviation of a hole by its capital letters ("A" to "ZC", but "JS", which has none) and its grade
/// (numbered as in ToleranceClass), with the addend of fine grades in it where the standard adds one. Nothing where the
/// standard gives none for the letter, grade or size.
std::optional<FundamentalDeviation> HoleFundamentalDeviation(std::string_view letters, int grade, float size);

}  // namespace iso286
