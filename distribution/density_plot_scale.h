#pragma once

#include <optional>

/// Places on the density plot's horizontal scale: the nominal stands on the centre line, the farther limit 60 pixels
/// inside the area's edge, and the two limits at least 40 pixels apart when both are on one side.
struct DensityPlotScale
{
    int centre = 0;
    int upperX = 0;  // of the limits
    int lowerX = 0;
    std::optional<int> meanX;  // nothing: the mean is not finite or too far away to have a place
    bool hasReach = false;     // the area is wide enough for a field
};

/// Places the limits and the mean.
///
/// When the whole field is below the nominal and its upper limit has to give way, the mean moves by 40 pixels, whatever
/// the limit moved. When it is at or above the nominal and the lower limit has to give way, the mean keeps its
/// proportion within the field.
/// @param width  of the area, pixels
/// @return       nothing when the deviations give no scale: both are 0, or one is not finite
std::optional<DensityPlotScale> PlaceOnDensityPlot(int width, double nominal, double upperDev, double lowerDev,
                                                   double mean);
