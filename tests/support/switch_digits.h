// Digits of switch parameters, for the tests of the lists that print them.
#pragma once

#include <string>

#include "run/user_data.h"

namespace tarvis {

// Its value is 1 and its default 0.
inline SwitchDigit Digit(const std::string& first, const std::string& count, const std::string& text) {
  return {first, count, "1", "0", text};
}

// One that its parameter doesn't use.
inline const SwitchDigit NoDigit{"0", "0", "", "", ""};

}  // namespace tarvis
