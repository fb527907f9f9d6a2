#include "functions/catalog.h"

#include <algorithm>
#include <array>

#include "functions/mecha/mecha_function.h"
#include "functions/realtrace/real_trace_function.h"
#include "functions/sim/sim_function.h"
#include "functions/tables/table_functions.h"
#include "functions/trace/trace_function.h"
#include "functions/user/user_function.h"
#include "functions/wizard/wizard_function.h"
#include "report/rptCover.h"
#include "report/rptDataDate.h"
#include "report/rptUserComment.h"

namespace tarvis {
namespace {

constexpr std::array Functions = {
    &UserFunction, &WizardFunction, &TraceFunction,   &RealTraceFunction, &MechaFunction,
    &SimFunction,  &IdxTblFunction, &ZoneTblFunction, &JogTblFunction,
};

constexpr std::array SharedReports = {
    NamedReport{"rptCover", MakeReport<rptCover>},
    NamedReport{"rptUserComment", MakeReport<rptUserComment>},
    NamedReport{"rptDataDate", MakeReport<rptDataDate>},
};

const NamedReport* FindReport(std::span<const NamedReport> reports, const std::string& name) {
  const auto found = std::ranges::find(reports, name, &NamedReport::Name);
  return found == reports.end() ? nullptr : &*found;
}

}  // namespace

FunctionTable AllFunctions() {
  return Functions;
}

std::shared_ptr<ActiveReport> CreateFunctionReport(const std::string& name, ReportContext context) {
  const NamedReport* report = FindReport(SharedReports, name);
  for (const PrintFunction* function : Functions) {
    if (report == nullptr) report = FindReport(function->Reports, name);
  }
  return report == nullptr ? nullptr : report->Create(context);
}

}  // namespace tarvis
