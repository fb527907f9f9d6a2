// All functions of the host, and all function reports by the names that the module lists hold.
#pragma once

#include "report/print_function.h"

namespace tarvis {

FunctionTable AllFunctions();

// A new report of that name, or empty for an empty or unknown name.
std::shared_ptr<ActiveReport> CreateFunctionReport(const std::string& name, ReportContext context);

}  // namespace tarvis
