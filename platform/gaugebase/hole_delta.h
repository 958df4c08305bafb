#pragma once

#include <optional>

namespace iso286
{

/// The addend that the standard calls Delta: added to the tabulated deviation of holes K to ZC in fine grades, so that
/// a hole-basis and a shaft-basis fit of neighbouring grades have the same clearance. Equals IT of the grade less IT of
/// the next finer grade over 3 mm, 0 up to there. Micrometres; nothing outside 0 < size <= 500, for NaN and for grades
/// other than 3 to 8.
std::optional<double> HoleDelta(int grade, float size);

}  // namespace iso286
