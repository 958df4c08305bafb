#pragma once

#include "diagram/field_pieces.h"
#include "drawing/display_list.h"

#include <vector>

/// Draws the computed field of the analytic method as a bar between 140 and 180 pixels below the top: a rectangle for
/// each piece, then one border line along the top and one along the bottom of the whole bar. Draws nothing without
/// pieces.
void DrawAnalyticBar(DisplayList& list, const std::vector<FieldPiece>& pieces);
