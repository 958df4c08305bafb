#pragma once

#include <optional>

/// A distance in whole pixels, cut toward zero.
///
/// @return nothing when the distance is no number or is beyond the coordinates of any drawing surface (2^27 pixels), so
///         that a position is never made of it
std::optional<int> WholePixels(double distance);
