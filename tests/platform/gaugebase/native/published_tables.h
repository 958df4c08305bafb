#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The printed tables as they stand in data/, one fact a line: what the tables in the program are compared with.
/// Millimetres and micrometres; sizes are over `over_mm`, up to and including `up_to_mm`.
namespace published
{

extern const std::string_view standard_tolerances;  // over_mm,up_to_mm,IT01,IT0,IT1,...,IT18
extern const std::string_view shaft_deviations;     // letter,grade_from,grade_to,over_mm,up_to_mm,deviation_um,which
extern const std::string_view hole_deviations;      // the same, then add_delta
extern const std::string_view hole_delta;           // over_mm,up_to_mm,IT3,...,IT8
extern const std::string_view preferred_classes;    // kind,code

/// Cells of the lines below the heading; an empty cell is an empty text.
std::vector<std::vector<std::string>> Lines(std::string_view csv);

}  // namespace published
