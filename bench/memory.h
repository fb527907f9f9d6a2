// How much memory the process holds.
#pragma once

#include <fstream>
#include <string>

namespace tarvis {

// An entry of the process's status in megabytes: "VmRSS:" now, "VmHWM:" at its peak.
inline double ResidentMegabytes(const std::string& entry) {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    double kilobytes = 0;
    if (word == entry && status >> kilobytes) return kilobytes / 1024;
  }
  return 0;
}

inline double PeakMegabytes() {
  return ResidentMegabytes("VmHWM:");
}

}  // namespace tarvis
