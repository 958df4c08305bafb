#include "host/dimension_text.h"

#include "calc/number_text.h"

namespace
{

constexpr std::int32_t kWithoutTolerance = 2;  // kind of a dimension
constexpr std::int32_t kDiameter = 3;
constexpr const char* kPlusMinus = "\xC2\xB1";
constexpr const char* kDiameterSign = "\xC3\x98";

std::string WithSign(const std::string& deviation)
{
    if (deviation.empty())
        return "0";
    const bool needsSign = TextToNumber(deviation) > 0.0 && deviation.find('+') == std::string::npos;
    return needsSign ? "+" + deviation : deviation;
}

std::string WithoutSign(const std::string& deviation)
{
    const std::size_t sign = deviation.find('+');
    return sign == std::string::npos ? deviation : deviation.substr(sign + 1);
}

bool AreSymmetric(const std::string& upper, const std::string& lower)
{
    const double value = TextToNumber(upper);
    return value > 0.0 && TextToNumber(lower) == -value;
}

std::string Label(const DrawingDimension& dimension)
{
    std::string label = dimension.name;
    if (!label.empty() && !dimension.nominal.empty())
        label += " = ";
    if (!dimension.nominal.empty() && dimension.kind == kDiameter)
        label += kDiameterSign;
    label += dimension.nominal;
    if (!dimension.field.empty() && dimension.kind != kWithoutTolerance)
        label += " " + dimension.field;
    return label;
}

}  // namespace

DimensionText TextsOf(const DrawingDimension& dimension)
{
    DimensionText texts{Label(dimension), {}, {}};
    const bool hasDeviations = !dimension.upper.empty() || !dimension.lower.empty();
    if (dimension.kind == kWithoutTolerance || !hasDeviations)
        return texts;
    if (AreSymmetric(dimension.upper, dimension.lower))
    {
        texts.upper = kPlusMinus + WithoutSign(dimension.upper);
        return texts;
    }
    texts.upper = WithSign(dimension.upper);
    texts.lower = WithSign(dimension.lower);
    return texts;
}

std::string OneLineText(const DrawingDimension& dimension)
{
    const DimensionText texts = TextsOf(dimension);
    std::string line = texts.label;
    if (!texts.upper.empty())
        line += " " + texts.upper;
    if (!texts.lower.empty())
        line += "/" + texts.lower;
    return line;
}
