#include "diagram/field_pieces.h"

#include "drawing/whole_pixels.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace
{

// Decimal deviations that are equal may differ in their last bits.
constexpr double kEqualDeviations = 1e-9;

constexpr int kNarrowestOutside = 1;  // pixels that the smallest excess has

// The computed field in ascending order, at least one pixel wide.
struct FieldSpan
{
    double lower;
    double upper;
    int left;
    int right;
};

int ColumnByValue(const FieldSpan& field, double value)
{
    const double fraction = (value - field.lower) / (field.upper - field.lower);
    return field.left + WholePixels(WholeWhenNearlySo(fraction * (field.right - field.left))).value_or(0);
}

bool IsWithin(const FieldSpan& field, double value)
{
    return value > field.lower + kEqualDeviations && value < field.upper - kEqualDeviations;
}

int CutColumn(const FieldSpan& field, double value, const LimitMarker& marker, bool areSpread)
{
    if (areSpread || !marker.x)
        return ColumnByValue(field, value);
    return *marker.x;
}

int LowerCut(const FieldSpan& field, const DiagramDeviations& deviations, const LimitMarkers& markers)
{
    const int column = CutColumn(field, deviations.requiredLower, markers.requiredLower, markers.areSpread);
    return std::clamp(column, field.left + kNarrowestOutside, field.right);
}

int UpperCut(const FieldSpan& field, const DiagramDeviations& deviations, const LimitMarkers& markers)
{
    const int column = CutColumn(field, deviations.requiredUpper, markers.requiredUpper, markers.areSpread);
    return std::clamp(column, field.left, field.right - kNarrowestOutside);
}

bool IsWhollyOutside(const FieldSpan& field, const DiagramDeviations& deviations)
{
    if (deviations.requiredLower > deviations.requiredUpper)
        return true;
    const bool lowerHolds = deviations.requiredLower <= field.lower + kEqualDeviations;
    const bool upperHolds = deviations.requiredUpper >= field.upper - kEqualDeviations;
    return (!lowerHolds && deviations.requiredLower >= field.upper - kEqualDeviations) ||
           (!upperHolds && deviations.requiredUpper <= field.lower + kEqualDeviations);
}

std::vector<FieldPiece> Pieces(const FieldSpan& field, const DiagramDeviations& deviations, const LimitMarkers& markers)
{
    const FieldPiece whole{field.left, field.right, PieceEdge::FieldEnd, PieceEdge::FieldEnd, true};
    FieldPiece inside = whole;
    if (IsWithin(field, deviations.requiredLower))
    {
        inside.left = LowerCut(field, deviations, markers);
        inside.leftEdge = PieceEdge::RequiredLower;
    }
    if (IsWithin(field, deviations.requiredUpper))
    {
        inside.right = UpperCut(field, deviations, markers);
        inside.rightEdge = PieceEdge::RequiredUpper;
    }
    if (inside.left > inside.right)  // no room for the inside: the pieces outside meet in one column
    {
        inside.left = std::clamp(inside.right, whole.left + kNarrowestOutside, inside.left);
        inside.right = inside.left;
    }
    return {{whole.left, inside.left, PieceEdge::FieldEnd, inside.leftEdge, false},
            inside,
            {inside.right, whole.right, inside.rightEdge, PieceEdge::FieldEnd, false}};
}

}  // namespace

std::vector<FieldPiece> CutField(const DiagramDeviations& deviations, const LimitMarkers& markers)
{
    if (!markers.computedUpper.x || !markers.computedLower.x || std::isnan(deviations.requiredUpper) ||
        std::isnan(deviations.requiredLower) || deviations.computedUpper == deviations.computedLower)
        return {};

    FieldSpan field{deviations.computedLower, deviations.computedUpper, *markers.computedLower.x,
                    *markers.computedUpper.x};
    if (field.lower > field.upper)
    {
        std::swap(field.lower, field.upper);
        std::swap(field.left, field.right);
    }
    if (field.left >= field.right)
        return {};

    std::vector<FieldPiece> pieces;
    if (IsWhollyOutside(field, deviations))
        pieces = {{field.left, field.right, PieceEdge::FieldEnd, PieceEdge::FieldEnd, false}};
    else
        pieces = Pieces(field, deviations, markers);
    std::erase_if(pieces, [](const FieldPiece& piece) { return piece.left >= piece.right; });
    return pieces;
}

Rgb PieceColor(const FieldPiece& piece)
{
    return piece.isInside ? kInsideColor : kOutsideColor;
}
