#include "tolerance/deviation_text.h"

#include "calc/number_text.h"
#include "platform/moduleskin/resource.h"
#include "tolerance/typed_deviation.h"

#include <array>
#include <charconv>
#include <cmath>

namespace
{

constexpr double kZeroBelow = 1e-9;  // millimetres: a smaller deviation is no deviation
constexpr float kMillimetresPerMicrometre = 0.001F;

// From here on doubles lie as close as nine decimal places or wider, so there is nothing left to round, and rounding by
// way of a product would change digits (4 km and more: no real deviation).
constexpr double kCoarserThanNano = 4194304;  // 2^22 mm

bool IsTolerance(const TypedDeviation& upper, const TypedDeviation& lower)
{
    if (upper.isEmpty && lower.isEmpty)
        return false;
    const bool bothZero = std::abs(upper.value) < kZeroBelow && std::abs(lower.value) < kZeroBelow;
    if (!upper.isEmpty && !lower.isEmpty && bothZero)
        return false;
    return lower.value < upper.value;
}

std::string NormalForm(double value)
{
    return NumberText9(std::abs(value) < kCoarserThanNano ? RoundToNano(value) : value);
}

}  // namespace

std::int32_t CheckDeviations(DeviationPair& texts)
{
    const auto upper = ReadTypedDeviation(texts.upper);
    if (!upper)
        return IDS_UPPER_DEV_MALFORMED;
    const auto lower = ReadTypedDeviation(texts.lower);
    if (!lower)
        return IDS_LOWER_DEV_MALFORMED;
    if (!IsTolerance(*upper, *lower))
        return IDS_DEVIATIONS_INCONSISTENT;
    texts = {NormalForm(upper->value), NormalForm(lower->value)};
    return 0;
}

std::string LibraryDeviationText(float micrometres)
{
    if (micrometres == 0)
        return {};
    if (std::isnan(micrometres))
        return "+nan";
    const float millimetres = micrometres * kMillimetresPerMicrometre;  // single precision: 104.5 gives +0.105
    std::array<char, 16> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), static_cast<double>(millimetres),
                                       std::chars_format::general, 3);
    const std::string text(buffer.data(), written.ptr);
    return std::signbit(millimetres) ? text : "+" + text;
}
