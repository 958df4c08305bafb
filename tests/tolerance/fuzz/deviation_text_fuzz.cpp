#include "calc/number_text.h"
#include "tolerance/deviation_text.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

// Properties of deviation texts that hold for any bytes. A broken one ends the program.
namespace
{

void Require(bool holds, const char* property, const DeviationPair& typed)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\nupper [%s]\nlower [%s]\n", property, typed.upper.c_str(), typed.lower.c_str());
    std::abort();
}

bool Same(const DeviationPair& left, const DeviationPair& right)
{
    return left.upper == right.upper && left.lower == right.lower;
}

bool IsNormalForm(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("-.0123456789") == std::string_view::npos &&
           (text.find('.') == std::string_view::npos || (text.back() != '0' && text.back() != '.'));
}

void CheckPair(const DeviationPair& typed)
{
    DeviationPair texts = typed;
    const std::int32_t result = CheckDeviations(texts);
    Require(result == 0 || result == 51691 || result == 51692 || result == 51693, "known result", typed);
    if (result != 0)
    {
        Require(Same(texts, typed), "refused texts stay untouched", typed);
        return;
    }
    Require(IsNormalForm(texts.upper) && IsNormalForm(texts.lower), "normal form", typed);
    if (TextToNumber(texts.upper) == TextToNumber(texts.lower))
        return;  // both may have been rounded to the same value: refused the second time
    const DeviationPair once = texts;
    Require(CheckDeviations(texts) == 0, "accepted again", typed);
    Require(Same(texts, once), "unchanged the second time", typed);
}

void CheckLibraryText(float micrometres)
{
    const std::string text = LibraryDeviationText(micrometres);
    const DeviationPair shown{text, ""};
    Require(text.empty() == (micrometres == 0), "empty for 0 alone", shown);
    Require(text.empty() || text[0] == '+' || text[0] == '-', "sign always shown", shown);
}

}  // namespace

// The upper deviation reaches to the first line feed, the lower one behind it to the end.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    const std::size_t end = bytes.find('\n');
    CheckPair({bytes.substr(0, end), end == std::string::npos ? std::string() : bytes.substr(end + 1)});
    if (float micrometres = 0; size >= sizeof micrometres)
    {
        std::memcpy(&micrometres, data, sizeof micrometres);
        CheckLibraryText(micrometres);
    }
    return 0;
}
