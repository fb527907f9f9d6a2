// The reader of Trace.tmp and its numbered companions, which fills `Trace` and `User`.
#pragma once

namespace tarvis {

struct PrintRun;

// Fills the record from the lines loaded last. False, with the reason in the session's diagnosis, for a file
// that is refused; a strict number that fails, a line beyond its array, or more than 32768 lines throw
// RunTimeFailure. A `File-Spec` below 3 is refused.
bool ReadTraceFile(PrintRun& run);

}  // namespace tarvis
