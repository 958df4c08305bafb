#pragma once

#include "platform/gaugebase/fundamental_deviation.h"

#include <optional>
#include <string_view>

namespace iso286
{

/// Fundamental deviation of a shaft by its small letters ("a" to "zc", but "js", which has none) and its grade
/// (numbered as in ToleranceClass). Nothing where the standard gives none for the letter, grade or size.
std::optional<FundamentalDeviation> ShaftFundamentalDeviation(std::string_view letters, int grade, float size);

}  // namespace iso286
