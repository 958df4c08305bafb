#include "calc/distribution_laws.h"

#include <cmath>

namespace
{

constexpr double kOneSixth = 0.16666666666666666;

}  // namespace

std::optional<double> StandardDeviation(std::int32_t law, double fieldWidth)
{
    switch (law)
    {
    case kNormalLaw:
        return fieldWidth * kOneSixth;
    case kUniformLaw:
        return fieldWidth / (std::sqrt(3.0) * 2.0);
    case kTriangularLaw:
        return fieldWidth / (std::sqrt(6.0) * 2.0);
    default:
        return std::nullopt;
    }
}

std::optional<double> FieldWidth(std::int32_t law, double standardDeviation)
{
    switch (law)
    {
    case kNormalLaw:
        return standardDeviation * 6.0;
    case kUniformLaw:
        return std::sqrt(3.0) * 2.0 * standardDeviation;
    case kTriangularLaw:
        return std::sqrt(6.0) * 2.0 * standardDeviation;
    default:
        return std::nullopt;
    }
}
