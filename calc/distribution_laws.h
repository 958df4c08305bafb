#pragma once

#include <cstdint>
#include <optional>

// Distribution laws of a size within its tolerance field. The codes travel between host and module as 32-bit integers,
// so any other number may arrive; 0 stands for none.

inline constexpr std::int32_t kNormalLaw = 1;      // Gauss; the field is taken as plus or minus three sigma
inline constexpr std::int32_t kUniformLaw = 2;     // equal probability
inline constexpr std::int32_t kTriangularLaw = 3;  // Simpson

/// Standard deviation of a size whose tolerance field has the given width, in the width's unit, not rounded.
///
/// T / 6, T / (2 sqrt 3) or T / (2 sqrt 6), where T / 6 is evaluated as T * 0.16666666666666666; a negative width gives
/// a negative result.
/// @return nothing for a code that is none of the three laws
/// Source: the second central moments of the normal law cut at three sigma, the uniform and the triangular law.
std::optional<double> StandardDeviation(std::int32_t law, double fieldWidth);

/// Width of the tolerance field whose sizes have the given standard deviation, not rounded; the inverse of
/// StandardDeviation. NaN stays NaN.
/// @return nothing for a code that is none of the three laws
std::optional<double> FieldWidth(std::int32_t law, double standardDeviation);
