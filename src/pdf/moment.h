// Moments in time as they are written on a command line.
#pragma once

#include <ctime>
#include <string>

namespace tarvis {

// "2026-11-21", which is the start of that day, "2026-11-21T19:20:44", both in local time, the same with "Z"
// at its end in universal time, or "@" and the seconds since 1970. Throws PdfError for anything else.
std::time_t MomentNamed(const std::string& text);

// The same moment in local time.
std::tm LocalTimeOf(std::time_t moment);

}  // namespace tarvis
