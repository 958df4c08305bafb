#pragma once

#include <vector>

#include "host/dimension_shape.h"

/// A drawing as it is drawn in a window.
struct SheetLayout
{
    SheetTransform transform;
    std::vector<std::vector<SheetPoint>> outlines;
    std::vector<DimensionShape> dimensions;  ///< in the drawing's order
};

/// Lays a drawing out as large as it fits into an area, with a margin and in its middle. Texts and arrows keep their
/// size, so a very small area can be too small for them; nothing is left out then.
/// @param width, height  of the area, pixels
/// @param unit           pixels that are 1/96 inch
SheetLayout LayoutSheet(const Drawing& drawing, double width, double height, const TextMeasure& measure, double unit);
