#pragma once

#include <string>

#include "host/drawing_model.h"

/// What a drawing writes at a dimension, UTF-8.
struct DimensionText
{
    std::string label;  ///< such as "A1 = 40 h8"
    std::string upper;  ///< upper deviation with its sign; alone, as "±0.3", when both deviations are equal
    std::string lower;  ///< lower deviation with its sign; empty when upper stands for both, or without tolerance
};

/// The texts of a dimension. Numbers stay as the drawing has them, but that a positive deviation gets its "+" and a
/// missing one beside a given one is "0". A dimension of kind 2 has no tolerance.
DimensionText TextsOf(const DrawingDimension& dimension);

/// The same in one line, such as "A1 = 40 h8 0/-0.039".
std::string OneLineText(const DrawingDimension& dimension);
