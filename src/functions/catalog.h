// All function reports by the names that the module lists hold.
#pragma once

#include "report/report_context.h"

namespace tarvis {

// A new report of that name, or empty for an empty or unknown name.
std::shared_ptr<ActiveReport> CreateFunctionReport(const std::string& name, ReportContext context);

}  // namespace tarvis
