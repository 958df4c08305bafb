#pragma once

#include <optional>

/// Share of a value by which two doubles may differ that stand for the same decimal number. The last bits that sums and
/// quotients leave are less, anything that a drawing could show is more.
inline constexpr double kEqualShare = 1e-9;

/// The whole number next to a distance when it is off by no more than kEqualShare, otherwise the distance: what falls
/// short of a whole pixel by its last bits alone does not lose it when it is cut. NaN and infinity stay as they are.
double WholeWhenNearlySo(double distance);

/// A distance in whole pixels, cut toward zero.
///
/// @return nothing when the distance is no number or is beyond the coordinates of any drawing surface (2^27 pixels), so
///         that a position is never made of it
std::optional<int> WholePixels(double distance);
