#include "diagram/limit_markers.h"

#include "drawing/whole_pixels.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>

namespace
{

constexpr int kSideInset = 60;                // kept free beside the outermost marker, room for its labels
constexpr double kSmallestSeparation = 40.0;  // between the two computed markers on one side

enum class Limit
{
    Upper,
    Lower,
};

// Distances of the markers from the centre line, in pixels and not yet whole; NaN for a deviation that is not finite.
struct MarkerDistances
{
    double requiredUpper;
    double requiredLower;
    double computedUpper;
    double computedLower;
};

double LargestFinite(const DiagramDeviations& deviations)
{
    double largest = 0.0;
    for (const double deviation :
         {deviations.requiredUpper, deviations.requiredLower, deviations.computedUpper, deviations.computedLower})
    {
        if (std::isfinite(deviation))
            largest = std::max(largest, std::abs(deviation));
    }
    return largest;
}

// Whether a deviation is the largest one, or equals it but for the last bits.
bool IsLargest(double deviation, double largest)
{
    return std::abs(deviation) >= largest * (1.0 - kEqualShare);
}

double Distance(double deviation, double largest, int reach)
{
    if (!std::isfinite(deviation))
        return std::numeric_limits<double>::quiet_NaN();
    if (largest == 0.0)
        return 0.0;
    const double size = std::abs(deviation);
    const double product = reach * size;
    return WholeWhenNearlySo(std::isfinite(product) ? product / largest : reach * (size / largest));
}

MarkerDistances Distances(const DiagramDeviations& deviations, int reach)
{
    const double largest = LargestFinite(deviations);
    return {Distance(deviations.requiredUpper, largest, reach), Distance(deviations.requiredLower, largest, reach),
            Distance(deviations.computedUpper, largest, reach), Distance(deviations.computedLower, largest, reach)};
}

// True when the inner computed marker had to move.
bool Spread(MarkerDistances& distances, double MarkerDistances::*outer, double MarkerDistances::*inner)
{
    const double spreadInner = distances.*outer - kSmallestSeparation;
    if (!(distances.*outer - distances.*inner < kSmallestSeparation) || spreadInner <= 0.0)
        return false;
    const double factor = distances.*inner / spreadInner;
    distances.*inner = spreadInner;
    distances.requiredUpper = WholeWhenNearlySo(distances.requiredUpper * factor);
    distances.requiredLower = WholeWhenNearlySo(distances.requiredLower * factor);
    return true;
}

LimitMarker Marker(double deviation, double distance, Limit limit, int centre)
{
    const bool isRight = std::isnan(deviation) ? limit == Limit::Upper : deviation >= 0.0;
    LimitMarker marker;
    if (const auto pixels = WholePixels(distance))
        marker.x = isRight ? centre + *pixels : centre - *pixels;
    const int line = marker.x.value_or(centre);
    marker.labelX = isRight ? line + 1 : line;
    marker.labelAlign = isRight ? TextAlign::Left : TextAlign::Right;
    return marker;
}

LimitMarkers Place(const DiagramDeviations& deviations, const MarkerDistances& distances, int width)
{
    const int centre = width / 2;
    LimitMarkers markers;
    markers.requiredUpper = Marker(deviations.requiredUpper, distances.requiredUpper, Limit::Upper, centre);
    markers.requiredLower = Marker(deviations.requiredLower, distances.requiredLower, Limit::Lower, centre);
    markers.computedUpper = Marker(deviations.computedUpper, distances.computedUpper, Limit::Upper, centre);
    markers.computedLower = Marker(deviations.computedLower, distances.computedLower, Limit::Lower, centre);
    return markers;
}

}  // namespace

int ScaleReach(int width)
{
    return width / 2 - kSideInset;
}

LimitMarkers PlaceMarkers(const DiagramDeviations& deviations, int width)
{
    return Place(deviations, Distances(deviations, ScaleReach(width)), width);
}

LimitMarkers PlaceSpreadMarkers(const DiagramDeviations& deviations, int width)
{
    const double largest = LargestFinite(deviations);
    MarkerDistances distances = Distances(deviations, ScaleReach(width));
    bool areSpread = false;
    if (IsLargest(deviations.computedUpper, largest) && deviations.computedLower >= 0.0)
        areSpread = Spread(distances, &MarkerDistances::computedUpper, &MarkerDistances::computedLower);
    else if (IsLargest(deviations.computedLower, largest) && deviations.computedUpper <= 0.0)
        areSpread = Spread(distances, &MarkerDistances::computedLower, &MarkerDistances::computedUpper);

    LimitMarkers markers = Place(deviations, distances, width);
    markers.areSpread = areSpread;
    return markers;
}
