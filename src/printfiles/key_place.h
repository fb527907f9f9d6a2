// The line of a key in its file, for values that fail only long after they were read.
#pragma once

#include <string_view>

#include "text/run_time_failure.h"

namespace tarvis {

struct PrintRun;

// The last line of `key` in the data file that was loaded last, with its value as the text. Without such a
// line the place has no line and an empty text.
FailurePlace PlaceOf(const PrintRun& run, std::string_view key);
// The same for one element of that line, counted from 1, whose text is known.
FailurePlace PlaceOf(const PrintRun& run, std::string_view key, int element, const std::string& text);

}  // namespace tarvis
