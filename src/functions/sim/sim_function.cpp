#include "functions/sim/sim_function.h"

#include <array>

#include "functions/contents.h"
#include "functions/module_list.h"
#include "functions/sim/rptSimCmpFileList.h"
#include "functions/sim/rptSimCmpTime.h"
#include "functions/sim/rptSimCmpUser.h"
#include "functions/sim/rptSimCmpUserEx.h"
#include "functions/sim/rptSimGraph.h"
#include "functions/sim/rptSimInfo.h"
#include "functions/sim/rptSimRef1.h"
#include "functions/sim/rptSimRef2.h"
#include "functions/sim/rptSimSettingMecha.h"
#include "functions/sim/rptSimSettingSvMt.h"
#include "printfiles/key_place.h"
#include "printfiles/sim_file.h"
#include "text/excerpt.h"
#include "text/numbers.h"

namespace tarvis {
namespace {

constexpr int WideComparison = 8;  // overlapped simulations from which the wide comparison prints

constexpr std::array Reports = {
    NamedReport{"rptSimGraph", MakeReport<rptSimGraph>},
    NamedReport{"rptSimCmpFileList", MakeReport<rptSimCmpFileList>},
    NamedReport{"rptSimCmpTime", MakeReport<rptSimCmpTime>},
    NamedReport{"rptSimCmpUser", MakeReport<rptSimCmpUser>},
    NamedReport{"rptSimCmpUserEx", MakeReport<rptSimCmpUserEx>},
    NamedReport{"rptSimInfo", MakeReport<rptSimInfo>},
    NamedReport{"rptSimRef1", MakeReport<rptSimRef1>},
    NamedReport{"rptSimRef2", MakeReport<rptSimRef2>},
    NamedReport{"rptSimSettingMecha", MakeReport<rptSimSettingMecha>},
    NamedReport{"rptSimSettingSvMt", MakeReport<rptSimSettingSvMt>},
};

// The kind is converted only here, so a wrong one stops nobody who doesn't print the reference setting.
bool IsRegularPattern(const PrintRun& run) {
  const std::string& kind = run.Sim.PatternSetting.PatternKind;
  try {
    return StrictReal(kind) == 0;
  } catch (const RunTimeFailure& failure) {
    throw failure.At(PlaceOf(run, "PatternSetting", 2, kind));
  }
}

ModuleList Modules(PrintRun& run) {
  const auto& option = run.Options.SimOption;
  ModuleList modules{"rptSimGraph", "rptSimInfo", "rptTraceObject"};
  if (option.IsOn(SimElement::Reference))
    modules.emplace_back(IsRegularPattern(run) ? "rptSimRef1" : "rptSimRef2");
  AddIf(modules, option.IsOn(SimElement::ServoAndMotor), "rptSimSettingSvMt");
  AddIf(modules, option.IsOn(SimElement::Mechanics), "rptSimSettingMecha");
  AddIf(modules, option.IsOn(SimElement::Date), "rptDataDate");
  AddIf(modules, option.IsOn(SimElement::Parameters), "rptUserPrm");
  AddIf(modules, option.IsOn(SimElement::Comments), "rptUserComment");
  PassColumnSwitches(run.Session, option);
  return modules;
}

// The second name is spelled so in the list; it means rptTraceObjectOverlap.
ModuleList ResultModules(PrintRun& run) {
  const auto& option = run.Options.SimOption;
  const bool times = option.IsOn(SimElement::TimeComparison);
  const bool parameters = option.IsOn(SimElement::ParameterComparison);
  const bool wide = run.Session.OverlapNum >= WideComparison;
  ModuleList modules{"rptSimGraph", "rptTraceObjrctOverlap"};
  AddIf(modules, times || parameters, "rptSimCmpFileList");
  AddIf(modules, times, "rptSimCmpTime");
  AddIf(modules, parameters, wide ? "rptSimCmpUserEx" : "rptSimCmpUser");
  return modules;
}

bool PrintsDetail(const PrintOptions& options) {
  return options.SimOption.IsOn(SimElement::OverlapDetail);
}

std::string ContentsOf(const PrintRun& run) {
  const SimData& sim = run.Sim;
  return GraphContents(sim.SimGraph) + ", " + CursorRowContents(sim.CursolSelect) + ", " +
         ChannelContents(sim) + ", pattern '" + Excerpt(sim.PatternSetting.PatternName) + "' of " +
         Counted(sim.PatternSetting.PatternCount, "value", "values") + ", " + OverlapContents(sim) + ", " +
         Counted(sim.CmpUserNum, "compared parameter", "compared parameters") + ", " + ParameterContents(run);
}

constexpr OverlapRule Overlap = {.ResultModules = ResultModules, .PrintsDetail = PrintsDetail};

}  // namespace

constinit const PrintFunction SimFunction = {.Mode = Mode::Sim,
                                             .Header = &PrintOptions::SimHeader,
                                             .File = "Sim",
                                             .Read = ReadSimFile,
                                             .WrongFile = Failure::WrongSimulationFile,
                                             .Modules = Modules,
                                             .Reports = Reports,
                                             .Contents = ContentsOf,
                                             .Overlap = &Overlap};

}  // namespace tarvis
