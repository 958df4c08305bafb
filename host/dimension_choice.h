#pragma once

#include <cstddef>
#include <optional>

#include "host/sheet_layout.h"

/// The dimension whose text or dimension line is at a point; of several the nearest, a text before a line.
/// @param tolerance  pixels by which a line may be missed
std::optional<std::size_t> DimensionAt(const SheetLayout& layout, SheetPoint point, double tolerance);

/// The dimension that follows in the drawing's order, the first after the last; the first when none is chosen. Nothing
/// when there is none.
std::optional<std::size_t> NextDimension(std::size_t count, std::optional<std::size_t> chosen);
/// The one before it, the last before the first; the last when none is chosen.
std::optional<std::size_t> PreviousDimension(std::size_t count, std::optional<std::size_t> chosen);
