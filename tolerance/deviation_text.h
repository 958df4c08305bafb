#pragma once

#include <cstdint>
#include <string>

/// Upper and lower deviation as text, millimetres. An empty text gives no value and counts as 0.
struct DeviationPair
{
    std::string upper;
    std::string lower;
};

/// Checks both deviations as they stand in the edits, typed or filled from the library, and brings them into normal
/// form: at most nine decimal places, halves away from zero, no needless zeros, "." as the point; an empty one becomes
/// "0".
///
/// A deviation is decimal digits with at most one "." or ",", a sign before them, spaces around them. "." is the
/// decimal point; "," is it where the numeric locale of the process says so, else it ends the number ("0,5" is 0). No
/// exponents. A number beyond the range of a double is malformed, too. Signs directly before the point are odd on
/// purpose: "+.5" is 0.5, "-.5" is malformed. Directly behind "+." or "+,", or one digit later, one more point or comma
/// is taken and the number is read as far as it goes ("+..5" is 0, "+.5.5" is 0.5). The pair needs lower < upper, and
/// not two texts that are both 0. A deviation of nothing but spaces and zeros counts as empty here, and two empty ones
/// fail; whether the user has typed anything at all is a question to the texts themselves.
///
/// @param texts  UTF-8; replaced by both normal forms on 0, else untouched
/// @return       0, or the string resource that tells what is wrong: 51691 upper malformed (also when both are), 51692
///               lower malformed, 51693 both zero or lower not below upper
std::int32_t CheckDeviations(DeviationPair& texts);

/// A deviation of the tolerance library as the edits show it: millimetres with three significant digits and a sign,
/// "%+.3g" with "." under every locale. Empty for exactly 0 and for -0. Magnitudes below 0.0001 mm come in exponent
/// form ("+5e-05"), which CheckDeviations refuses. NaN of either sign is "+nan", the infinities are "+inf" and "-inf".
std::string LibraryDeviationText(float micrometres);
