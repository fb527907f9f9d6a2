// A function of the host as the master report prints it: one row of the table of functions.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "report/report_context.h"
#include "run/failures.h"
#include "run/mode.h"
#include "run/print_options.h"

namespace tarvis {

// The names of the function reports that print one data set, in their order. An empty name prints nothing.
using ModuleList = std::vector<std::string>;

// A function report, and its name in the module lists.
struct NamedReport {
  std::string_view Name;
  std::shared_ptr<ActiveReport> (*Create)(ReportContext context);
};

template <typename Report>
std::shared_ptr<ActiveReport> MakeReport(ReportContext context) {
  return std::make_shared<Report>(context);
}

// What a function has in addition if its data sets can be laid over each other. Their files have the suffixes
// 1, 2 and so on; the file without a suffix holds the overlap result.
struct OverlapRule {
  ModuleList (*ResultModules)(PrintRun& run);         // of the overlap result
  bool (*PrintsDetail)(const PrintOptions& options);  // whether each data set is printed after the result
};

using HeaderMember = HeaderOptions PrintOptions::*;

struct PrintFunction {
  tarvis::Mode Mode;
  HeaderMember Header;    // its texts and flags for the common header
  std::string_view File;  // the data file, without suffix and extension
  bool (*Read)(PrintRun& run);
  Failure WrongFile;
  // Also passes the options for the columns of the parameter list on to the session.
  ModuleList (*Modules)(PrintRun& run);
  std::span<const NamedReport> Reports;          // those that this function defines
  std::string (*Contents)(const PrintRun& run);  // what the data file that was read last holds, in one line
  const OverlapRule* Overlap = nullptr;          // null if there is only one data set
};

// All functions. The rows last as long as the process.
using FunctionTable = std::span<const PrintFunction* const>;

// Null for a mode that prints nothing.
[[nodiscard]] const PrintFunction* FindFunction(FunctionTable functions, Mode mode);

}  // namespace tarvis
