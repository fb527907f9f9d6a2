// The reader of IdxZoneTbl.tmp, which fills `ZoneTbl` and the comment of `User`.
#pragma once

namespace tarvis {

struct PrintRun;

// Fills the record from the lines loaded last. False, with the reason in the session's diagnosis, for a file
// that is refused; a strict number that fails, a line beyond its array, or more than 32768 lines throw
// RunTimeFailure.
bool ReadZoneTblFile(PrintRun& run);

}  // namespace tarvis
