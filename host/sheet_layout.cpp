#include "host/sheet_layout.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace
{

constexpr double kMargin = 16;           // units of 1/96 inch kept free at each side
constexpr double kSmallestScale = 1e-9;  // pixels per millimetre
constexpr double kRounding = 1e-6;       // pixels
constexpr int kRounds = 6;               // texts change their place with the scale: a few rounds settle it

/// A rectangle that grows around what is added.
struct Bounds
{
    double left = std::numeric_limits<double>::infinity();
    double top = std::numeric_limits<double>::infinity();
    double right = -std::numeric_limits<double>::infinity();
    double bottom = -std::numeric_limits<double>::infinity();

    void Add(SheetPoint point)
    {
        left = std::min(left, point.x);
        top = std::min(top, point.y);
        right = std::max(right, point.x);
        bottom = std::max(bottom, point.y);
    }

    bool IsEmpty() const { return left > right; }
    double Width() const { return right - left; }
    double Height() const { return bottom - top; }
};

Bounds BoundsOf(const SheetLayout& layout)
{
    Bounds bounds;
    for (const std::vector<SheetPoint>& outline : layout.outlines)
        std::for_each(outline.begin(), outline.end(), [&](SheetPoint point) { bounds.Add(point); });
    for (const DimensionShape& shape : layout.dimensions)
    {
        for (const std::vector<SheetLine>* const lines : {&shape.dimensionLines, &shape.extensionLines})
        {
            for (const SheetLine& line : *lines)
            {
                bounds.Add(line.from);
                bounds.Add(line.to);
            }
        }
        for (const SheetPoint corner : shape.textBox.Corners())
            bounds.Add(corner);
    }
    return bounds;
}

SheetLayout LayoutWith(const Drawing& drawing, const SheetTransform& transform, const TextMeasure& measure, double unit)
{
    SheetLayout layout;
    layout.transform = transform;
    for (const std::vector<DrawingPoint>& outline : drawing.outlines)
    {
        std::vector<SheetPoint>& points = layout.outlines.emplace_back();
        for (const DrawingPoint& point : outline)
            points.push_back(transform.ToPixel(point));
    }
    for (const DrawingDimension& dimension : drawing.dimensions)
        layout.dimensions.push_back(LayoutDimension(dimension, transform, measure, unit));
    return layout;
}

// The extent of what grows and shrinks with the scale, at one pixel a millimetre: everything but texts and arrows.
Bounds ScalableBounds(const Drawing& drawing)
{
    const SheetTransform millimetres;
    Bounds bounds;
    for (const std::vector<DrawingPoint>& outline : drawing.outlines)
        std::for_each(outline.begin(), outline.end(),
                      [&](const DrawingPoint& point) { bounds.Add(millimetres.ToPixel(point)); });
    for (const DrawingDimension& dimension : drawing.dimensions)
    {
        const SheetVector span = millimetres.ToPixel(dimension.to) - millimetres.ToPixel(dimension.from);
        const double length = std::hypot(span.x, span.y);
        const SheetVector aside = length > 0.0 ? LeftOf(span) * (dimension.offset / length) : SheetVector{};
        for (const DrawingPoint& point : {dimension.from, dimension.to})
        {
            bounds.Add(millimetres.ToPixel(point));
            bounds.Add(millimetres.ToPixel(point) + aside);
        }
    }
    return bounds;
}

double ScaleFor(double free, double extent)
{
    return extent > 0.0 ? std::max(free / extent, kSmallestScale) : std::numeric_limits<double>::infinity();
}

}  // namespace

SheetLayout LayoutSheet(const Drawing& drawing, double width, double height, const TextMeasure& measure, double unit)
{
    const Bounds scalable = ScalableBounds(drawing);
    if (scalable.IsEmpty())
        return {};

    const double freeWidth = width - 2 * kMargin * unit;
    const double freeHeight = height - 2 * kMargin * unit;
    SheetTransform transform;
    std::optional<SheetTransform> largestFitting;
    double fixedWidth = 0.0;  // what does not scale needs beyond the rest
    double fixedHeight = 0.0;
    for (int round = 0; round < kRounds; ++round)
    {
        const double scale = std::min(ScaleFor(freeWidth - fixedWidth, scalable.Width()),
                                      ScaleFor(freeHeight - fixedHeight, scalable.Height()));
        transform.scale = std::isfinite(scale) ? scale : 1.0;
        const Bounds bounds = BoundsOf(LayoutWith(drawing, transform, measure, unit));
        transform.origin.x += (width - bounds.left - bounds.right) / 2;
        transform.origin.y += (height - bounds.top - bounds.bottom) / 2;
        fixedWidth = bounds.Width() - transform.scale * scalable.Width();
        fixedHeight = bounds.Height() - transform.scale * scalable.Height();
        const bool fits = bounds.Width() <= freeWidth + kRounding && bounds.Height() <= freeHeight + kRounding;
        if (fits && (!largestFitting || largestFitting->scale < transform.scale))
            largestFitting = transform;
    }
    return LayoutWith(drawing, largestFitting.value_or(transform), measure, unit);
}
