// The positions of a digit group, as the parameter list and the switch list print them.
#pragma once

#include "report/engine/control.h"
#include "run/user_data.h"

namespace tarvis {

// The oldest file layout whose switches list their digits.
inline constexpr int SpecWithDigits = 3;

// "1, 2" for First 1 and Count 2; empty for Count 0. A First or Count that is no number throws RunTimeFailure
// and leaves the field as it was; a position above the 16-bit range throws and leaves the part before it.
void SetDigitList(const SwitchDigit& digit, Field& field);

}  // namespace tarvis
