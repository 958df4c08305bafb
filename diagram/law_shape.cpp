#include "diagram/law_shape.h"

#include "calc/distribution_laws.h"
#include "drawing/whole_pixels.h"

#include <cmath>
#include <functional>
#include <utility>

namespace
{

constexpr int kCurvePeak = 100;  // row of the normal law's peak
constexpr double kTwoPi = 6.283185307179586;

using Points = std::vector<PixelPoint>;

// The density of the closing link over the columns of its field.
struct DensityCurve
{
    const ChainResult& result;
    int left;
    int right;
    int base;

    // Row of the curve at a size of the closing link.
    int RowAt(double size) const
    {
        const double distance = size - result.middle;
        const double peak = 1.0 / (std::sqrt(result.variance) * std::sqrt(kTwoPi));
        const double density = std::exp(-(distance * distance) / (2.0 * result.variance)) /
                               (std::sqrt(result.variance) * std::sqrt(kTwoPi));
        return base - WholePixels(density / peak * (base - kCurvePeak)).value_or(0);
    }

    PixelPoint PointInColumn(int x) const
    {
        return {x, RowAt(result.lowerLimit + (x - left) * result.field / (right - left))};
    }

    PixelPoint EdgePoint(int x, PieceEdge edge) const
    {
        switch (edge)
        {
        case PieceEdge::RequiredLower:
            return {x, RowAt(result.requiredLower)};
        case PieceEdge::RequiredUpper:
            return {x, RowAt(result.requiredUpper)};
        case PieceEdge::FieldEnd:
            break;
        }
        return PointInColumn(x);
    }

    Points Top(const FieldPiece& piece) const
    {
        Points points{EdgePoint(piece.left, piece.leftEdge)};
        for (int x = piece.left + 1; x < piece.right; ++x)
            points.push_back(PointInColumn(x));
        points.push_back(EdgePoint(piece.right, piece.rightEdge));
        return points;
    }
};

// The two sloped edges of the triangular law.
struct Triangle
{
    int left;
    int right;
    int base;

    int Apex() const { return (left + right) / 2; }

    int RowAt(int x) const
    {
        if (x == Apex())
            return kFieldTop;
        const int run = x < Apex() ? Apex() - left : right - Apex();
        const int fromFoot = x < Apex() ? x - left : right - x;
        return base - WholePixels(static_cast<double>(base - kFieldTop) * fromFoot / run).value_or(0);
    }

    Points Top(const FieldPiece& piece) const
    {
        Points points;
        if (piece.left > left || Apex() == left)
            points.push_back({piece.left, RowAt(piece.left)});
        if (piece.left < Apex() && Apex() < piece.right)
            points.push_back({Apex(), kFieldTop});
        if (piece.right < right)
            points.push_back({piece.right, RowAt(piece.right)});
        return points;
    }
};

// How the top of a piece runs, from left to right; nothing when the shape can't be drawn.
std::function<Points(const FieldPiece&)> TopOfLaw(std::int32_t law, const ChainResult& result, int left, int right,
                                                  int base)
{
    const int top = law == kNormalLaw ? kCurvePeak : kFieldTop;
    if (!(result.variance > 0.0) || base <= top)
        return {};
    switch (law)
    {
    case kNormalLaw:
        return [curve = DensityCurve{result, left, right, base}](const FieldPiece& piece) { return curve.Top(piece); };
    case kUniformLaw:
        return [](const FieldPiece& piece) { return Points{{piece.left, kFieldTop}, {piece.right, kFieldTop}}; };
    case kTriangularLaw:
        return [triangle = Triangle{left, right, base}](const FieldPiece& piece) { return triangle.Top(piece); };
    default:
        return {};
    }
}

}  // namespace

void DrawLawShape(DisplayList& list, std::int32_t law, const ChainResult& result, const std::vector<FieldPiece>& pieces,
                  int base)
{
    if (pieces.empty())
        return;
    const auto top = TopOfLaw(law, result, pieces.front().left, pieces.back().right, base);
    if (!top)
        return;
    for (const FieldPiece& piece : pieces)
    {
        Points corners{{piece.left, base}};
        const Points topPoints = top(piece);
        corners.insert(corners.end(), topPoints.begin(), topPoints.end());
        corners.push_back({piece.right, base});
        list.Fill(PieceColor(piece), corners);
        corners.push_back(corners.front());
        list.Outline(std::move(corners));
    }
}
