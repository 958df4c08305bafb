#pragma once

#include <string>
#include <string_view>

// Numbers as decimal text, the same on every system and under every locale: the decimal point is always ".".

/// Rounds to nine decimal places, halves away from zero: sign(value) * floor(|value| * 1e9 + 0.5) * 1e-9.
///
/// The sign is kept also when nothing else is left: a tiny negative value and -0 give -0.
/// NaN stays NaN; from about 1.8e299 on the intermediate product overflows and the result is infinite.
double RoundToNano(double value);

/// The longest decimal number at the start of a text, as the standard `atof` finds it in the "C" locale.
///
/// White space may stand before it, a sign, digits with one ".", and an exponent belong to it; whatever follows is
/// ignored ("12,5" is 12). Without a number the result is 0. Hexadecimal numbers, "inf" and "nan" are no numbers here.
/// A number too large for a double is infinite with its sign, one too small is 0 with its sign.
double TextToNumber(std::string_view text);

/// Nine decimal places without trailing zeros and without a trailing ".": 12.5, 10, -0, 0.000000001.
///
/// The digits are those of the exact binary value, ties to even; the sign of a rounded-off -0 stays.
/// NaN of either sign is "nan", the infinities are "inf" and "-inf".
std::string NumberText9(double value);

/// As NumberText9 with four decimal places.
std::string NumberText4(double value);
