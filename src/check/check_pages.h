// What only shows when a data file is used: on the pages of its function.
#pragma once

#include "report/data_set.h"

namespace tarvis {

// Makes the pages of the data file that was read last, each report with all that it can print. What would
// stop the program there is a RunTimeFailure; pictures are not looked for.
void MakePages(PrintRun& run, const PrintFunction& function, DataSetKind kind);

}  // namespace tarvis
