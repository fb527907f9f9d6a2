// What only shows when a file is used: on the pages of its function, or in the dialog of the options.
#pragma once

namespace tarvis {

struct PrintRun;

// Makes the pages of the data file that was read last, each report with all that it can print. `Mode` and the
// overlap of the session say which reports. What would stop the program there is a RunTimeFailure; pictures
// are not looked for.
void MakePages(PrintRun& run, bool overlapResult);

// Stops at a number of the options that nothing in the dialog or on the pages can show.
void RequireChoices(PrintRun& run);

}  // namespace tarvis
