#pragma once

#include "drawing/display_list.h"

#include <cstdint>

/// Base line and the nominal's text below it, pixels above the plot's bottom.
inline constexpr int kPlotBaseInset = 20;

/// The tolerance field under a density, with its place in the plot.
struct DensityField
{
    double lowerLimit = 0.0;  // rounded to nine decimal places
    double width = 0.0;       // ES - EI
    double middle = 0.0;      // absolute size
    int left = 0;             // column of the lower limit
    int right = 0;            // column of the upper limit
    int height = 0;           // of the plot, pixels
};

/// Draws the probability density of a law over the field, filled and with its upper edge outlined, on the base line.
///
/// The normal law's peak lies 60 pixels below the top; the uniform and the triangular one always rise to 140 pixels
/// below it, whatever the field's width. Draws nothing for another law, for a field without width, for fewer than two
/// columns or when the plot is too low.
void DrawDensity(DisplayList& list, std::int32_t law, const DensityField& field);
