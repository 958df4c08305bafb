#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The standard deviation of a link as its dialog shows it: by the law from the field between two deviations, rounded
/// to nine decimal places. Deviations are decimal numbers in one unit, a text without a number counts as 0. Empty for a
/// law that is none of the three.
std::string SigmaText(std::int32_t law, std::string_view upperDev, std::string_view lowerDev);
