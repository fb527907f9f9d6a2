// The data sets of a print: which file is read, which function reports follow, under which title and group.
#pragma once

#include <string>

namespace tarvis {

struct PrintRun;

// Loads the data set of the function in `Mode` and fills module list, column switches, title and group of the
// session. `suffix` is "" or the number of an overlapped set, `overlapResult` asks for the comparison over
// the first file; both count for traces and simulations only. A file that is wrong ends the run with its
// failure.
void LoadFunctionDataSet(PrintRun& run, const std::string& suffix, bool overlapResult);

// Lists the function reports that `Mode` prints of the data file that was read last, with their column
// switches.
void ListFunctionModules(PrintRun& run, bool overlapResult);

// Stores the highest index of the module list, keeping the names that are there.
void SetModuleCount(PrintRun& run, int last);
void SetModuleName(PrintRun& run, int index, const std::string& name);

}  // namespace tarvis
