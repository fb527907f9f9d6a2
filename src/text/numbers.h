// The conversions of numbers in the host's files and on the command line. Independent of the locale.
#pragma once

#include <cstdint>
#include <string_view>

namespace tarvis {

// The strict forms take blanks around a sign, digits, a fraction and an exponent, and nothing else. Halves
// round to the even number. A value too small for a double is 0. A text that is no such number, an empty one
// too, or a value out of range throws RunTimeFailure that names the text.
std::int16_t StrictInteger(std::string_view text);
std::int32_t StrictLong(std::string_view text);
double StrictReal(std::string_view text);

// The longest numeric prefix after leading blanks; 0 if there is none, infinity for one that no double
// holds. Never fails.
double LenientReal(std::string_view text);

}  // namespace tarvis
