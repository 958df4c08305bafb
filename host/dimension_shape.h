#pragma once

#include <array>
#include <string>
#include <vector>

#include "host/drawing_model.h"
#include "host/sheet_geometry.h"
#include "host/text_measure.h"

struct SheetLine
{
    SheetPoint from;
    SheetPoint to;
};

/// A rectangle that may be turned: texts run along their dimension line.
struct TurnedBox
{
    SheetPoint corner;      ///< upper left, as the text's reader sees it
    SheetVector direction;  ///< in which the text runs, length 1
    double width = 0.0;
    double height = 0.0;

    bool Contains(SheetPoint point) const;
    /// Upper left, upper right, lower right, lower left.
    std::array<SheetPoint, 4> Corners() const;
};

struct ShapeText
{
    std::string text;  ///< UTF-8
    TextSize size = TextSize::kLabel;
    TurnedBox box;
};

/// A dimension as it is drawn: lines with arrows, texts above them. Empty lines for a dimension without length.
struct DimensionShape
{
    std::vector<SheetLine> dimensionLines;  ///< what is hit by a click, as is the text
    std::vector<SheetLine> extensionLines;
    std::vector<std::array<SheetPoint, 3>> arrows;  ///< filled; the tip first
    std::vector<ShapeText> texts;
    TurnedBox textBox;  ///< around all texts
};

/// Where the points of a drawing are in the window.
struct SheetTransform
{
    double scale = 1.0;  ///< pixels per millimetre, above 0
    SheetPoint origin;   ///< of the drawing's point (0, 0)

    SheetPoint ToPixel(DrawingPoint point) const { return {origin.x + scale * point.x, origin.y - scale * point.y}; }
};

/// Lays one dimension out. The text stands above its line and reads from below or from the right; where it has no room
/// between the ends it goes beyond them, and the arrows come from outside where they have none.
/// @param unit  pixels that are 1/96 inch: 1 at the usual resolution, 2 at twice that
DimensionShape LayoutDimension(const DrawingDimension& dimension, const SheetTransform& transform,
                               const TextMeasure& measure, double unit);
