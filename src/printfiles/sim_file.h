// The reader of Sim.tmp and its numbered companions, which fills `Sim` and `User`.
#pragma once

namespace tarvis {

struct PrintRun;

// Fills the record from the lines loaded last. False, with the reason in the session's diagnosis, for a file
// that is refused; a strict number that fails, a line beyond its array, or more than 32768 lines throw
// RunTimeFailure. `OverlapNum` of the session bounds the rows of `CmpTime`.
bool ReadSimFile(PrintRun& run);

}  // namespace tarvis
