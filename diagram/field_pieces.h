#pragma once

#include "diagram/limit_markers.h"
#include "drawing/display_list.h"

#include <vector>

inline constexpr Rgb kInsideColor{97, 220, 5};  // of a computed field within the required limits
inline constexpr Rgb kOutsideColor{255, 0, 0};  // of a computed field beyond them

inline constexpr int kFieldTop = 140;  // row at which a bar, a rectangle or a triangle begins, pixels below the top

/// What a piece of the computed field ends at.
enum class PieceEdge
{
    FieldEnd,
    RequiredLower,
    RequiredUpper,
};

/// A part of the computed field that lies wholly inside or wholly outside the required limits.
struct FieldPiece
{
    int left = 0;  // pixel columns, left < right
    int right = 0;
    PieceEdge leftEdge = PieceEdge::FieldEnd;
    PieceEdge rightEdge = PieceEdge::FieldEnd;
    bool isInside = true;
};

/// Cuts the computed field at the required limits into one to three pieces, from left to right.
///
/// What lies inside is decided by the deviations, not by the pixels: equal limits (to 1e-9) are inside, and required
/// limits in reversed order leave nothing inside. A cut stands at the required limit's marker, or, when the markers
/// have been spread, where its deviation lies between the two ends of the field; a piece outside is at least one pixel
/// wide, at the cost of the inside. Computed limits in reversed order make the same field. Pieces without a pixel are
/// left out; a field without width, or one whose deviations are not numbers, has none.
std::vector<FieldPiece> CutField(const DiagramDeviations& deviations, const LimitMarkers& markers);

/// Colour of a piece.
Rgb PieceColor(const FieldPiece& piece);
