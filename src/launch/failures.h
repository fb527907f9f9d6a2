// The one reporter of numbered failures, and the one way in which every run ends.
#pragma once

#include <exception>

namespace tarvis {

class Desktop;
struct PrintRun;

// Deletes `*.tmp`, then `*.emf` in the temporary folder (nothing while that is unknown) and ends the process
// with exit status 0. Every file error is ignored.
[[noreturn]] void EndRun(PrintRun& run);

// Writes the session's diagnosis to standard error, beeps five times, shows the numbered message titled
// "Printing Error", then EndRun. `number` is 1 to 17.
[[noreturn]] void ReportFailure(PrintRun& run, int number);

// The end of a run by a failure that no routine handles: shows it titled "Run-time error", writes it to
// standard error, and ends the process with exit status 1 and no file deleted.
[[noreturn]] void ReportRunTimeFailure(Desktop& desktop, const std::exception& failure);

// The text of table entry `number`, 0 to 17.
const char* FailureMessage(int number);

}  // namespace tarvis
