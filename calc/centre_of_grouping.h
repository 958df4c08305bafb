#pragma once

#include <string_view>

/// The centre of grouping that a link starts with: the middle of its tolerance field, as an absolute size.
///
/// Evaluated as ((lower + nominal) + (upper + nominal)) * 0.5 in this order of additions, not rounded. The texts are
/// decimal numbers in one unit; a text without a number counts as 0.
double CentreOfGrouping(std::string_view nominal, std::string_view upperDev, std::string_view lowerDev);
