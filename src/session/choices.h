// Numbers of the options that must be one of the choices that a dialog or a page offers.
#pragma once

#include <cstdint>

namespace tarvis {

struct PrintRun;

// The highest value of a check box: 0 off, 1 on, 2 grey, which only an options file can bring.
inline constexpr int HighestMark = 2;

// Throws RunTimeFailure, with the place in the options file, unless `option` of the run's options lies
// between `lowest` and `highest`.
void RequireChoice(PrintRun& run, const std::int16_t& option, int lowest, int highest);

// The same for a check box.
void RequireMark(PrintRun& run, const std::int16_t& option);

}  // namespace tarvis
