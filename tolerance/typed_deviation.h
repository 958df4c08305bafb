#pragma once

#include <optional>
#include <string_view>

/// A deviation as the user typed it.
struct TypedDeviation
{
    bool isEmpty;  // nothing but spaces and zeros
    double value;  // millimetres; 0 when empty, otherwise finite
};

/// Reads a typed deviation by the rules of CheckDeviations; nothing when it is malformed. Reads the numeric locale of
/// the process.
std::optional<TypedDeviation> ReadTypedDeviation(std::string_view typed);
