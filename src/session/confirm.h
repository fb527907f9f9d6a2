// "Printing Item Setting" without a user: opened with the kept options and confirmed at once.
#pragma once

namespace tarvis {

struct PrintRun;

// Leaves options and session of the run as the dialog leaves them when its OK is pressed before anything
// else. What ends the run or throws there does so here; a title above its limit is cut, with a message.
// Writes no file.
void ConfirmKeptOptions(PrintRun& run);

}  // namespace tarvis
