#include "platform/gaugebase/tolerance_classes.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace iso286
{
namespace
{

// Not confirmed as preferred: R6, S6, T6, JS8, K8, M8, N8, P8, R8, E10, D11; r5, s5, t5, n7, p7, r7, t7.
// Laid out as the standard groups them:
// clang-format off
constexpr std::size_t kHoleLetters = 28;

constexpr std::array<std::string_view, 2 * kHoleLetters> kLetters = {
    "A", "B", "C", "CD", "D", "E", "EF", "F", "FG", "G", "H", "JS", "J", "K", "M",
    "N", "P", "R", "S", "T", "U", "V", "X", "Y", "Z", "ZA", "ZB", "ZC",
    "a", "b", "c", "cd", "d", "e", "ef", "f", "fg", "g", "h", "js", "j", "k", "m",
    "n", "p", "r", "s", "t", "u", "v", "x", "y", "z", "za", "zb", "zc",
};

constexpr std::array<std::string_view, 20> kGrades = {
    "01", "0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15", "16", "17", "18",
};

constexpr std::array<std::string_view, 95> kPreferredClasses = {
    // holes
                                       "G6",  "H6",  "JS6", "K6", "M6", "N6", "P6", "R6", "S6", "T6",
                                "F7",  "G7",  "H7",  "JS7", "K7", "M7", "N7", "P7", "R7", "S7", "T7", "U7", "X7",
                         "E8",  "F8",         "H8",  "JS8", "K8", "M8", "N8", "P8", "R8",
                  "D9",  "E9",  "F9",         "H9",
           "C10", "D10", "E10",               "H10",
    "A11", "B11", "C11", "D11",               "H11",
    // shafts
                                       "g5",  "h5",  "js5", "k5", "m5", "n5", "p5", "r5", "s5", "t5",
                                "f6",  "g6",  "h6",  "js6", "k6", "m6", "n6", "p6", "r6", "s6", "t6", "u6", "x6",
                         "e7",  "f7",         "h7",  "js7", "k7", "m7", "n7", "p7", "r7", "s7", "t7", "u7",
                  "d8",  "e8",  "f8",         "h8",
           "b9",  "c9",  "d9",  "e9",         "h9",
                         "d10",               "h10",
    "a11", "b11", "c11",                      "h11",
};
// clang-format on

}  // namespace

std::span<const std::string_view> DeviationLetters()
{
    return kLetters;
}

std::span<const std::string_view> Grades()
{
    return kGrades;
}

std::span<const std::string_view> PreferredClasses()
{
    return kPreferredClasses;
}

std::optional<ToleranceClass> ParseToleranceClass(std::string_view code)
{
    const std::size_t digits = std::min(code.find_first_of("0123456789"), code.size());
    const auto letters = std::ranges::find(kLetters, code.substr(0, digits));
    const auto grade = std::ranges::find(kGrades, code.substr(digits));
    if (letters == kLetters.end() || grade == kGrades.end())
        return std::nullopt;
    return ToleranceClass{*letters, letters < kLetters.begin() + kHoleLetters,
                          kGrade01 + static_cast<int>(grade - kGrades.begin())};
}

}  // namespace iso286
