#include "calc/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <system_error>

namespace
{

constexpr double kNanosPerUnit = 1e9;
constexpr double kUnitsPerNano = 1e-9;

// Sign, 309 digits before the point, the point and up to nine digits after it, with room to spare.
constexpr std::size_t kLongestNumberText = 352;

constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

// Tells, for a decimal number that no double can hold, a number too large from one too small: by then its mantissa has
// a digit other than 0, and the number is large when that digit's power of ten is positive.
bool IsTooLarge(std::string_view number)
{
    const std::size_t exponentMark = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, exponentMark);
    const std::size_t firstDigit = mantissa.find_first_of("123456789");
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const double leadingPower = static_cast<double>(point) - static_cast<double>(firstDigit);

    double exponent = 0.0;
    bool isNegative = false;
    for (const char character : number.substr(std::min(exponentMark + 1, number.size())))
    {
        if (IsDigit(character))
            exponent = exponent * 10.0 + (character - '0');
        else
            isNegative = character == '-';
    }
    return leadingPower + (isNegative ? -exponent : exponent) > 0.0;
}

std::string NumberText(double value, int decimals)
{
    if (std::isnan(value))
        return "nan";
    std::array<char, kLongestNumberText> buffer{};
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, decimals);
    std::string text(buffer.data(), written.ptr);
    text.erase(text.find_last_not_of('0') + 1);
    text.erase(text.find_last_not_of('.') + 1);
    return text;
}

}  // namespace

double RoundToNano(double value)
{
    return std::copysign(std::floor(std::abs(value) * kNanosPerUnit + 0.5) * kUnitsPerNano, value);
}

double TextToNumber(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(kWhiteSpace), text.size()));
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+'))
        text.remove_prefix(1);
    if (text.empty() || !(IsDigit(text.front()) || text.front() == '.'))
        return 0.0;

    double magnitude = 0.0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), magnitude);
    if (read.ec == std::errc::invalid_argument)
        return 0.0;
    if (read.ec == std::errc::result_out_of_range)
    {
        const std::string_view number = text.substr(0, static_cast<std::size_t>(read.ptr - text.data()));
        magnitude = IsTooLarge(number) ? std::numeric_limits<double>::infinity() : 0.0;
    }
    return isNegative ? -magnitude : magnitude;
}

std::string NumberText9(double value)
{
    return NumberText(value, 9);
}

std::string NumberText4(double value)
{
    return NumberText(value, 4);
}
