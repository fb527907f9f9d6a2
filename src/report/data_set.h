// The data sets of a print: loads a file and lists the function reports that print it.
#pragma once

#include <cstdint>
#include <string>

#include "report/print_function.h"

namespace tarvis {

// What is printed of a data file: the data themselves, or the comparison of all data sets that are laid over
// each other.
enum class DataSetKind { Data, OverlapResult };

// The file of a data set in the temporary folder. `suffix` is empty or the number of an overlapped data set.
[[nodiscard]] std::string DataFileName(const PrintFunction& function, const std::string& suffix);

// How many overlapped data sets are printed one by one, from number 1 on, as the data file that was loaded
// last has it; not checked.
[[nodiscard]] int CountPrintedSets(const PrintRun& run, const PrintFunction& function);

// How many rows the master report has: the cover letter, the data set, and each of the overlapped data sets
// if their details are printed. A number that 16 bits can't hold throws RunTimeFailure; the data file without
// a suffix must be the one that was loaded last.
[[nodiscard]] std::int16_t CountMasterRows(const PrintRun& run, const PrintFunction* function);

// Loads a data set of `function` and fills module list, column switches, title and group of the session.
// `suffix` is empty or the number of an overlapped data set. A file that is wrong ends the run with the
// failure of the function.
void LoadDataSet(PrintRun& run, const PrintFunction& function, const std::string& suffix, DataSetKind kind);

// Lists the function reports that print the data file that was read last, with their column switches.
void ListModules(PrintRun& run, const PrintFunction& function, DataSetKind kind);

}  // namespace tarvis
