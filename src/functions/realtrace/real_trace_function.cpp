#include "functions/realtrace/real_trace_function.h"

#include <array>

#include "functions/contents.h"
#include "functions/module_list.h"
#include "functions/realtrace/rptRealTraceGraph.h"
#include "functions/realtrace/rptRealTraceInfo.h"
#include "printfiles/real_trace_file.h"

namespace tarvis {
namespace {

constexpr std::array Reports = {
    NamedReport{"rptRealTraceGraph", MakeReport<rptRealTraceGraph>},
    NamedReport{"rptRealTraceInfo", MakeReport<rptRealTraceInfo>},
};

ModuleList Modules(PrintRun& run) {
  const auto& option = run.Options.RealTraceOption;
  ModuleList modules{"rptRealTraceGraph"};
  AddIf(modules, option.IsOn(RealTraceElement::Info), "rptRealTraceInfo");
  AddIf(modules, option.IsOn(RealTraceElement::Parameters), "rptUserPrm");
  AddIf(modules, option.IsOn(RealTraceElement::Comments), "rptUserComment");
  PassColumnSwitches(run.Session, option);
  return modules;
}

std::string ContentsOf(const PrintRun& run) {
  return GraphContents(run.RealTrace.RealTraceGraph) + ", " + CursorRowContents(run.RealTrace.CursolSelect) +
         ", " + ParameterContents(run);
}

}  // namespace

constinit const PrintFunction RealTraceFunction = {.Mode = Mode::RealTrace,
                                                   .Header = &PrintOptions::RealTraceHeader,
                                                   .File = "RealTrace",
                                                   .Read = ReadRealTraceFile,
                                                   .WrongFile = Failure::WrongRealTimeTraceFile,
                                                   .Modules = Modules,
                                                   .Reports = Reports,
                                                   .Contents = ContentsOf};

}  // namespace tarvis
