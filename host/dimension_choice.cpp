#include "host/dimension_choice.h"

#include <algorithm>
#include <cmath>

namespace
{

double Distance(SheetPoint point, const SheetLine& line)
{
    const SheetVector span = line.to - line.from;
    const double squaredLength = Dot(span, span);
    const double along = squaredLength > 0.0 ? std::clamp(Dot(point - line.from, span) / squaredLength, 0.0, 1.0) : 0.0;
    const SheetVector miss = point - (line.from + span * along);
    return std::hypot(miss.x, miss.y);
}

}  // namespace

std::optional<std::size_t> DimensionAt(const SheetLayout& layout, SheetPoint point, double tolerance)
{
    for (std::size_t i = 0; i < layout.dimensions.size(); ++i)
    {
        if (layout.dimensions[i].textBox.Contains(point))
            return i;
    }
    std::optional<std::size_t> nearest;
    double smallest = tolerance;
    for (std::size_t i = 0; i < layout.dimensions.size(); ++i)
    {
        for (const SheetLine& line : layout.dimensions[i].dimensionLines)
        {
            const double distance = Distance(point, line);
            if (distance > smallest || (nearest && distance == smallest))
                continue;
            nearest = i;
            smallest = distance;
        }
    }
    return nearest;
}

std::optional<std::size_t> NextDimension(std::size_t count, std::optional<std::size_t> chosen)
{
    if (count == 0)
        return std::nullopt;
    return chosen ? (*chosen + 1) % count : 0;
}

std::optional<std::size_t> PreviousDimension(std::size_t count, std::optional<std::size_t> chosen)
{
    if (count == 0)
        return std::nullopt;
    return (chosen && *chosen > 0 ? *chosen : count) - 1;
}
