// The clock of all tests.
#pragma once

#include <ctime>

namespace tarvis {

// 2026/03/05 17:04:09.
inline std::tm PinnedTime() {
  std::tm time{};
  time.tm_year = 2026 - 1900;
  time.tm_mon = 2;
  time.tm_mday = 5;
  time.tm_hour = 17;
  time.tm_min = 4;
  time.tm_sec = 9;
  return time;
}

}  // namespace tarvis
