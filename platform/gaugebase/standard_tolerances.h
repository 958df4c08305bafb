#pragma once

#include <optional>

namespace iso286
{

/// Standard tolerance IT of a grade (numbered as in ToleranceClass) for a nominal size in millimetres; micrometres.
/// Nothing where the standard gives none: outside 0 < size <= 3150, for NaN, IT01 and IT0 over 500 mm, IT14 and coarser
/// up to 1 mm.
std::optional<double> StandardTolerance(int grade, float size);

}  // namespace iso286
