// PrintOption.ToT: the print options between runs, and the only file that the program writes.
#pragma once

#include <cstdint>
#include <string_view>

#include "text/run_time_failure.h"

namespace tarvis {

struct PrintRun;

// In the system folder.
inline constexpr const char* OptionsFile = "PrintOption.ToT";

// Fills `Options` from the lines loaded last. A field whose key the file doesn't have stays. False, with the
// reason in the session's diagnosis, for a file that is refused; a strict number that fails throws
// RunTimeFailure.
bool ReadPrintOptionsFile(PrintRun& run);

// The place of the number `option` of the run's options in the file that was read, for a value that nothing
// can show. The text is the number.
FailurePlace OptionPlace(PrintRun& run, const std::int16_t& option);

// The options of a first run, dated now.
void DefaultPrintOptions(PrintRun& run);

// Sets `FileSpec` to the version that is written and puts a new file in the place of the old one. False on
// any error, with the old file as it was. What the reader would not find again is left out of the file: what
// follows a CR in a text of one line, and a comma in a text with other elements after it. `DateTime` is the
// caller's.
bool WritePrintOptionsFile(PrintRun& run, std::string_view path);

}  // namespace tarvis
