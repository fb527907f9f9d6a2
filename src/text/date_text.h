// Dates as texts, the same in every locale.
#pragma once

#include <ctime>
#include <string>

namespace tarvis {

// "2026/03/05 17:04:09"
std::string DateTimeText(const std::tm& time);
// "March 05, 2026"
std::string LongDateText(const std::tm& time);

}  // namespace tarvis
