#include "tolerance/typed_deviation.h"

#include "calc/number_text.h"

#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstddef>
#include <string>

namespace
{

constexpr std::string_view kPoints = ".,";
constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kDigitsAndPoints = ".,0123456789";
constexpr std::string_view kFirstCharacters = ".,+-0123456789";

bool IsPoint(char character)
{
    return kPoints.find(character) != std::string_view::npos;
}

bool HasOnly(std::string_view allowed, std::string_view text, std::size_t from)
{
    return text.find_first_not_of(allowed, from) == std::string_view::npos;
}

std::string_view WithoutSpacesAndLeadingZeros(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    text.remove_suffix(text.size() - (text.find_last_not_of(' ') + 1));
    text.remove_prefix(std::min(text.find_first_not_of('0'), text.size()));
    return text;
}

// A sign directly before the point. The plus goes. For the minus the text begins with a number format instead, so that
// the check that follows refuses it: a kept oddity.
std::string WithSignBeforePointRebuilt(std::string_view text)
{
    const std::string_view prefix = text.front() == '+' ? "" : "+.3g";
    return std::string(prefix).append(text.substr(1));
}

// "." is a point under every locale; "," is one where the process says so. Any other point of a locale can't be typed.
double NumberByLocale(std::string text)
{
    if (std::string_view(std::localeconv()->decimal_point) == ",")
        std::ranges::replace(text, ',', '.');
    return TextToNumber(text);
}

}  // namespace

std::optional<TypedDeviation> ReadTypedDeviation(std::string_view typed)
{
    std::string text(WithoutSpacesAndLeadingZeros(typed));
    if (text.empty())
        return TypedDeviation{true, 0};
    if (kFirstCharacters.find(text.front()) == std::string_view::npos)
        return std::nullopt;

    if (IsPoint(text.front()))
    {
        text.insert(text.begin(), '0');
        if (!HasOnly(kDigits, text, 2))
            return std::nullopt;
    }
    else if ((text.front() == '+' || text.front() == '-') && text.size() >= 2 && IsPoint(text[1]))
    {
        text = WithSignBeforePointRebuilt(text);
        if (!HasOnly(kDigits, text, 3))
            return std::nullopt;
    }

    if (std::count_if(text.begin() + 1, text.end(), IsPoint) > 1 || !HasOnly(kDigitsAndPoints, text, 1))
        return std::nullopt;

    const double value = NumberByLocale(std::move(text));
    return std::isfinite(value) ? std::optional(TypedDeviation{false, value}) : std::nullopt;
}
