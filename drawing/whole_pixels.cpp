#include "drawing/whole_pixels.h"

#include <cmath>

namespace
{

constexpr double kFarthestCoordinate = 134217728.0;

}  // namespace

double WholeWhenNearlySo(double distance)
{
    const double whole = std::round(distance);
    return std::abs(distance - whole) <= std::abs(whole) * kEqualShare ? whole : distance;
}

std::optional<int> WholePixels(double distance)
{
    if (!(std::abs(distance) <= kFarthestCoordinate))  // also not when it is NaN
        return std::nullopt;
    return static_cast<int>(distance);
}
