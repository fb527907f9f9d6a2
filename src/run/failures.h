// The one reporter of numbered failures, and the one way in which every run ends.
#pragma once

namespace tarvis {

class Desktop;
struct PrintRun;

// Of a run that ends by a failure without a number: one that no routine handles, or a desk that can't show
// windows.
constexpr int ExitAfterRunTimeFailure = 1;

// Deletes `*.tmp`, then `*.emf` in the temporary folder (nothing while that is unknown) and ends the process
// with exit status 0. Every file error is ignored.
[[noreturn]] void EndRun(PrintRun& run);

// Writes the session's diagnosis to standard error, beeps five times, shows the numbered message titled
// "Printing Error", then EndRun. `number` is 1 to 17.
[[noreturn]] void ReportFailure(PrintRun& run, int number);

// The text of table entry `number`, 0 to 17.
const char* FailureMessage(int number);

}  // namespace tarvis
