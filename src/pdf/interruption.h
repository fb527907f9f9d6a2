// Requests by the user or the system to stop.
#pragma once

namespace tarvis {

// From now on the first such request is only noted, so that no incomplete file is left; a second one ends the
// process at once.
void NoteInterruptions();

// Whether there was one.
bool IsInterrupted();

// Ends the process as the request that was noted would have ended it.
[[noreturn]] void EndAsInterrupted();

}  // namespace tarvis
