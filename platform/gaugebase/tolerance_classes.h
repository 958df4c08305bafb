#pragma once

#include <optional>
#include <span>
#include <string_view>

/// The ISO 286 system of limits and fits: its names, its printed tables and the limits that follow from them.
/// The facts are those of ISO 286-1:2010 as several published tables agree on them; the few groups of cells that could
/// not be confirmed that way are marked where they stand. Sizes are in millimetres, tolerances and deviations in
/// micrometres.
namespace iso286
{

/// Letters of the fundamental deviations in the order of the tables: holes A to ZC, then shafts a to zc.
std::span<const std::string_view> DeviationLetters();

/// Standard tolerance grades from the finest on, as they stand in a code: "01", "0", "1" to "18".
std::span<const std::string_view> Grades();

/// Codes of the tolerance classes that are offered as the recommended ones: holes row by row from the finest grade on,
/// then shafts. They follow the standard's two figures; 18 of the 95 are not confirmed.
std::span<const std::string_view> PreferredClasses();

/// Number of grade IT01 in calculations; IT0 is 0, IT1 is 1 and so on.
inline constexpr int kGrade01 = -1;
inline constexpr int kCoarsestGrade = 18;

struct ToleranceClass
{
    std::string_view letters;  // an element of DeviationLetters()
    bool isHole;
    int grade;  // kGrade01 to kCoarsestGrade
};

/// Takes a code such as "H7" apart. Nothing unless it is exactly one entry of DeviationLetters() followed by one entry
/// of Grades(): case counts, blanks and leading zeros are refused.
std::optional<ToleranceClass> ParseToleranceClass(std::string_view code);

}  // namespace iso286
