#pragma once

#include "calc/chain_calculation.h"
#include "diagram/field_pieces.h"
#include "drawing/display_list.h"

#include <cstdint>
#include <vector>

/// Draws the computed field of the probabilistic method as the shape of the closing link's law, standing on the base
/// line, cut into the given pieces: a filled polygon for each, its closed outline over it.
///
/// The normal law's curve has a point in every pixel column and its peak 100 pixels below the top; the uniform law is a
/// rectangle and the triangular law a triangle up to kFieldTop. A cut through the curve is made at the height that the
/// density has at the required limit, so that neighbouring pieces meet.
/// Draws nothing without pieces, for another law, when the variance is not above 0, or when the area is too low for the
/// shape.
/// @param base  row of the base line
void DrawLawShape(DisplayList& list, std::int32_t law, const ChainResult& result, const std::vector<FieldPiece>& pieces,
                  int base);
