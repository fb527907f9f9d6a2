#include "functions/trace/trace_function.h"

#include <array>

#include "functions/contents.h"
#include "functions/module_list.h"
#include "functions/trace/rptTraceGraph.h"
#include "functions/trace/rptTraceObject.h"
#include "functions/trace/rptTraceObjectOverlap.h"
#include "functions/trace/rptTraceTrigger.h"
#include "printfiles/trace_file.h"

namespace tarvis {
namespace {

constexpr std::array Reports = {
    NamedReport{"rptTraceGraph", MakeReport<rptTraceGraph>},
    NamedReport{"rptTraceObject", MakeReport<rptTraceObject>},
    // The module lists spell the name so.
    NamedReport{"rptTraceObjrctOverlap", MakeReport<rptTraceObjectOverlap>},
    NamedReport{"rptTraceTrigger", MakeReport<rptTraceTrigger>},
};

ModuleList Modules(PrintRun& run) {
  const auto& option = run.Options.TraceOption;
  ModuleList modules{"rptTraceGraph", "rptTraceObject"};
  AddIf(modules, option.IsOn(TraceElement::Trigger), "rptTraceTrigger");
  AddIf(modules, option.IsOn(TraceElement::Date), "rptDataDate");
  AddIf(modules, option.IsOn(TraceElement::Parameters), "rptUserPrm");
  AddIf(modules, option.IsOn(TraceElement::Comments), "rptUserComment");
  PassColumnSwitches(run.Session, option);
  return modules;
}

ModuleList ResultModules(PrintRun& /*run*/) {
  return {"rptTraceGraph", "rptTraceObjrctOverlap"};
}

bool PrintsDetail(const PrintOptions& options) {
  return options.TraceOption.IsOn(TraceElement::OverlapDetail);
}

std::string ContentsOf(const PrintRun& run) {
  const TraceData& trace = run.Trace;
  return GraphContents(trace.TraceGraph) + ", " + CursorRowContents(trace.CursolSelect) + ", " +
         ChannelContents(trace) + ", " + OverlapContents(trace) + ", " + ParameterContents(run);
}

constexpr OverlapRule Overlap = {.ResultModules = ResultModules, .PrintsDetail = PrintsDetail};

}  // namespace

constinit const PrintFunction TraceFunction = {.Mode = Mode::Trace,
                                               .Header = &PrintOptions::TraceHeader,
                                               .File = "Trace",
                                               .Read = ReadTraceFile,
                                               .WrongFile = Failure::WrongTraceFile,
                                               .Modules = Modules,
                                               .Reports = Reports,
                                               .Contents = ContentsOf,
                                               .Overlap = &Overlap};

}  // namespace tarvis
