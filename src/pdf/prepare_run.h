// From the command line to a run whose options are confirmed.
#pragma once

#include "pdf/order.h"

namespace tarvis {

class HostSettings;
struct PrintRun;

// Fills folders, options and session of the run as launch and dialog would. A folder of data files that was
// named on the command line is taken as that of a host which knows all functions. Numbered failures and
// run-time failures leave as they do there; PdfError for what nothing can be printed of.
void PrepareRun(PrintRun& run, const PdfOrder& order, HostSettings& settings);

}  // namespace tarvis
