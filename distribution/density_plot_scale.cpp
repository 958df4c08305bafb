#include "distribution/density_plot_scale.h"

#include "drawing/whole_pixels.h"

#include <algorithm>
#include <cmath>

namespace
{

constexpr int kSideInset = 60;                // kept free beside the farther limit, room for its labels
constexpr double kSmallestSeparation = 40.0;  // between the limits when both are on one side

// Distances from the centre line in pixels, not yet whole.
struct Distances
{
    double upper;
    double lower;
    double mean;
};

Distances Separated(Distances distances, double upperDev, double lowerDev)
{
    const auto [upper, lower, mean] = distances;
    if (upperDev < 0.0 && lower - upper < kSmallestSeparation)
    {
        // The mean moves by the whole separation, not by the limit's own shift: kept so on purpose.
        distances.upper = lower - kSmallestSeparation;
        distances.mean = mean - kSmallestSeparation;
    }
    else if (lowerDev >= 0.0 && upper - lower < kSmallestSeparation)
    {
        distances.lower = upper - kSmallestSeparation;
        distances.mean = (mean - lower) / (upper - lower) * (upper - distances.lower) + distances.lower;
    }
    return distances;
}

std::optional<int> SignedPixels(double distance, bool isRight)
{
    const auto pixels = WholePixels(distance);
    if (!pixels)
        return std::nullopt;
    return isRight ? *pixels : -*pixels;
}

}  // namespace

std::optional<DensityPlotScale> PlaceOnDensityPlot(int width, double nominal, double upperDev, double lowerDev,
                                                   double mean)
{
    const double perUnit = 1.0 / std::max(std::abs(upperDev), std::abs(lowerDev));
    if (!std::isfinite(perUnit) || !std::isfinite(upperDev) || !std::isfinite(lowerDev))
        return std::nullopt;

    DensityPlotScale scale;
    scale.centre = width / 2;
    const int reach = scale.centre - kSideInset;
    scale.hasReach = reach > 0;

    const double meanDev = mean - nominal;
    const Distances distances = Separated({perUnit * std::abs(upperDev) * reach, perUnit * std::abs(lowerDev) * reach,
                                           std::abs(meanDev) * perUnit * reach},
                                          upperDev, lowerDev);
    const auto upper = SignedPixels(distances.upper, upperDev >= 0.0);
    const auto lower = SignedPixels(distances.lower, lowerDev >= 0.0);
    if (!upper || !lower)
        return std::nullopt;
    scale.upperX = scale.centre + *upper;
    scale.lowerX = scale.centre + *lower;
    if (const auto meanPixels = SignedPixels(distances.mean, meanDev > 0.0))
        scale.meanX = scale.centre + *meanPixels + 1;
    return scale;
}
