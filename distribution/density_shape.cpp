#include "distribution/density_shape.h"

#include "calc/distribution_laws.h"
#include "drawing/whole_pixels.h"

#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

namespace
{

constexpr Rgb kDensityColor{0, 196, 196};
constexpr int kCurveHeadroom = 80;  // what the curve's peak leaves of the plot's height
constexpr int kFlatTop = 140;       // top of the uniform and the triangular density
constexpr int kFewestColumns = 2;
constexpr std::size_t kFewestCorners = 3;

// One vertex at either foot, and one in each column between them but the last.
std::vector<PixelPoint> CurvePoints(const DensityField& field, double sigma)
{
    const int base = field.height - kPlotBaseInset;
    const int columns = field.right - field.left;
    const double step = field.width / columns;
    std::vector<PixelPoint> points{{field.left, base}};
    for (int column = 1; column <= columns - 2; ++column)
    {
        const double distance = field.lowerLimit + column * step - field.middle;
        const double share = std::exp(-(distance * distance) / (2.0 * sigma * sigma));
        points.push_back(
            {field.left + column, base - WholePixels(share * (field.height - kCurveHeadroom)).value_or(0)});
    }
    points.push_back({field.right, base});
    return points;
}

void DrawNormal(DisplayList& list, const DensityField& field)
{
    const auto sigma = StandardDeviation(kNormalLaw, field.width);
    std::vector<PixelPoint> points = CurvePoints(field, *sigma);
    if (points.size() < kFewestCorners)
        return;
    list.Fill(kDensityColor, points);
    list.Outline(std::move(points));  // open: the base is covered by the axis
}

void DrawUniform(DisplayList& list, const DensityField& field)
{
    list.Rect(kDensityColor, field.left + 1, kFlatTop, field.right, field.height - kPlotBaseInset);
    list.Line(field.left + 1, kFlatTop, field.right, kFlatTop);
}

void DrawTriangular(DisplayList& list, const DensityField& field)
{
    const int base = field.height - kPlotBaseInset;
    std::vector<PixelPoint> points{{field.left, base}, {(field.left + field.right) / 2, kFlatTop}, {field.right, base}};
    list.Fill(kDensityColor, points);
    list.Outline(std::move(points));
}

}  // namespace

void DrawDensity(DisplayList& list, std::int32_t law, const DensityField& field)
{
    if (field.right - field.left < kFewestColumns || !(field.width > 0.0))
        return;
    if (law == kNormalLaw && field.height > kCurveHeadroom)
        DrawNormal(list, field);
    else if (law == kUniformLaw && field.height - kPlotBaseInset > kFlatTop)
        DrawUniform(list, field);
    else if (law == kTriangularLaw && field.height - kPlotBaseInset > kFlatTop)
        DrawTriangular(list, field);
}
