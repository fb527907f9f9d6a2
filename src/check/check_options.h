// The file of the print options: what only shows when it is used in the dialog, and what it holds.
#pragma once

#include <string>

namespace tarvis {

struct PrintRun;

// Stops at a number of the options that nothing in the dialog or on the pages can show.
void RequireChoices(PrintRun& run);

// What the options that were read last hold, in one line.
std::string OptionsContents(const PrintRun& run);

}  // namespace tarvis
