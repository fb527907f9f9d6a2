// The processor time of the calling thread.
#pragma once

#include <ctime>

namespace tarvis {

inline double ThreadMilliseconds() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

}  // namespace tarvis
