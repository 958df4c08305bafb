#pragma once

#include "drawing/display_list.h"

#include <cstdint>
#include <string>

/// What the density plot shows. Texts are UTF-8; sizes and deviations are decimal numbers in one unit, a text without a
/// number counts as 0.
struct DensityPlotInput
{
    int width = 0;  // of the area, pixels; its top left corner is the origin
    int height = 0;
    std::string nominalText;
    std::string name;
    std::string upperDevText;
    std::string lowerDevText;
    std::int32_t law = 0;
    double mean = 0.0;      // centre of grouping, an absolute size
    std::string upperWord;  // label of the upper limit
    std::string lowerWord;  // label of the lower limit
};

/// The probability density of a size over its tolerance field, with the limits, the nominal and the mean marked.
///
/// The normal law's curve is centred on the middle of the field, not on the mean. A law that is none of the three has
/// no density and no mean marker.
///
/// Without a scale (both deviations 0, or not finite), and for a field without width at or above the nominal, only the
/// texts, the limits' labels and the axes are drawn. Reversed limits, a field of less than two pixels and an area too
/// small leave out the density; a mean that is not finite or far outside of the area has its text on the centre line
/// and no marker line.
DisplayList LayoutDensityPlot(const DensityPlotInput& input);
