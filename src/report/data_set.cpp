#include "report/data_set.h"

#include <array>
#include <functional>
#include <vector>

#include "printfiles/host_files.h"
#include "printfiles/idx_tbl_file.h"
#include "printfiles/jog_tbl_file.h"
#include "printfiles/key_place.h"
#include "printfiles/mecha_file.h"
#include "printfiles/real_trace_file.h"
#include "printfiles/sim_file.h"
#include "printfiles/trace_file.h"
#include "printfiles/upwizard_file.h"
#include "printfiles/user_file.h"
#include "printfiles/zone_tbl_file.h"
#include "run/failures.h"
#include "run/print_run.h"
#include "text/numbers.h"

namespace tarvis {
namespace {

constexpr int OverlapDetailOfTrace = 9;
constexpr int OverlapDetailOfSim = 13;
constexpr int WideComparison = 8;  // overlapped simulations from which the wide comparison prints

using Modules = std::vector<std::string>;

// The elements of an option key, counted from 1.
template <typename Elements>
bool On(const Elements& elements, int element) {
  return elements[static_cast<std::size_t>(element - 1)] == 1;
}

void AddIf(Modules& modules, bool condition, const char* name) {
  if (condition) modules.emplace_back(name);
}

// Name, switches, unit and default setting stand at four elements in a row, from `first` on.
template <typename Elements>
void CopyColumnSwitches(PrintSession& session, const Elements& elements, int first) {
  const auto element = [&](int offset) { return elements[static_cast<std::size_t>(first - 1 + offset)]; };
  session.ShowPrmName = element(0);
  session.ShowPrmSwitches = element(1);
  session.ShowPrmUnit = element(2);
  session.ShowPrmDefault = element(3);
}

Modules UserModules(PrintRun& run) {
  const auto& option = run.Options.UserOption;
  Modules modules{"rptUserPrm"};
  AddIf(modules, On(option, 5), "rptUserComment");
  CopyColumnSwitches(run.Session, option, 1);
  return modules;
}

Modules UPWizardModules(PrintRun&) {
  return {"rptUPWizard"};
}

Modules TraceModules(PrintRun& run) {
  const auto& option = run.Options.TraceOption;
  Modules modules{"rptTraceGraph", "rptTraceObject"};
  AddIf(modules, On(option, 1), "rptTraceTrigger");
  AddIf(modules, On(option, 2), "rptDataDate");
  AddIf(modules, On(option, 3), "rptUserPrm");
  AddIf(modules, On(option, 8), "rptUserComment");
  CopyColumnSwitches(run.Session, option, 4);
  return modules;
}

// The second name is spelled so in the list; it stands for rptTraceObjectOverlap.
Modules TraceOverlapModules(PrintRun&) {
  return {"rptTraceGraph", "rptTraceObjrctOverlap"};
}

Modules RealTraceModules(PrintRun& run) {
  const auto& option = run.Options.RealTraceOption;
  Modules modules{"rptRealTraceGraph"};
  AddIf(modules, On(option, 1), "rptRealTraceInfo");
  AddIf(modules, On(option, 2), "rptUserPrm");
  AddIf(modules, On(option, 7), "rptUserComment");
  CopyColumnSwitches(run.Session, option, 3);
  return modules;
}

Modules MechaModules(PrintRun& run) {
  const auto& option = run.Options.MechaOption;
  Modules modules{"rptMechaGraph"};
  AddIf(modules, On(option, 1), "rptMechaResonance");
  AddIf(modules, On(option, 2), "rptMechaNotch");
  AddIf(modules, On(option, 3), "rptMechaMeasure");
  AddIf(modules, On(option, 4), "rptDataDate");
  AddIf(modules, On(option, 5), "rptUserComment");
  return modules;
}

// The kind is converted only here, so a bad one stops nobody who doesn't print the reference setting.
bool IsRegularPattern(const PrintRun& run) {
  const std::string& kind = run.Sim.PatternSetting.PatternKind;
  try {
    return StrictReal(kind) == 0;
  } catch (const RunTimeFailure& failure) {
    throw failure.At(PlaceOf(run, "PatternSetting", 2, kind));
  }
}

Modules SimModules(PrintRun& run) {
  const auto& option = run.Options.SimOption;
  Modules modules{"rptSimGraph", "rptSimInfo", "rptTraceObject"};
  if (On(option, 1)) modules.emplace_back(IsRegularPattern(run) ? "rptSimRef1" : "rptSimRef2");
  AddIf(modules, On(option, 2), "rptSimSettingSvMt");
  AddIf(modules, On(option, 3), "rptSimSettingMecha");
  AddIf(modules, On(option, 4), "rptDataDate");
  AddIf(modules, On(option, 5), "rptUserPrm");
  AddIf(modules, On(option, 10), "rptUserComment");
  CopyColumnSwitches(run.Session, option, 6);
  return modules;
}

Modules SimOverlapModules(PrintRun& run) {
  const auto& option = run.Options.SimOption;
  Modules modules{"rptSimGraph", "rptTraceObjrctOverlap"};
  AddIf(modules, On(option, 11) || On(option, 12), "rptSimCmpFileList");
  AddIf(modules, On(option, 11), "rptSimCmpTime");
  const bool wide = run.Session.OverlapNum >= WideComparison;
  AddIf(modules, On(option, 12), wide ? "rptSimCmpUserEx" : "rptSimCmpUser");
  return modules;
}

// A table type other than 0 or 1 leaves index 0 empty, and a comment goes to index 1.
Modules IdxTblModules(PrintRun& run) {
  const int type = run.IdxTbl.TblType;
  Modules modules{type == 0 ? "rptIdxIdxTblTable" : type == 1 ? "rptIdxIdxTblExTable" : ""};
  AddIf(modules, run.Options.IdxTblOption.Comment == 1, "rptUserComment");
  return modules;
}

Modules ZoneTblModules(PrintRun& run) {
  Modules modules{"rptIdxZoneTblTable"};
  AddIf(modules, run.Options.ZoneTblOption == 1, "rptUserComment");
  return modules;
}

Modules JogTblModules(PrintRun& run) {
  Modules modules{"rptIdxJogTblTable"};
  AddIf(modules, run.Options.JogTblOption == 1, "rptUserComment");
  return modules;
}

struct DataSet {
  tarvis::Mode Mode;
  bool OverlapResult;
  const char* File;  // without suffix and extension
  bool (*Read)(PrintRun&);
  tarvis::Failure Failure;
  Modules (*List)(PrintRun&);
};

constexpr std::array<DataSet, 11> DataSets{{
    {Mode::User, false, "User", ReadUserFile, Failure::WrongParameterFile, UserModules},
    {Mode::UPWizard, false, "UPWizard", ReadUPWizardFile, Failure::WrongParameterWizardFile, UPWizardModules},
    {Mode::Trace, false, "Trace", ReadTraceFile, Failure::WrongTraceFile, TraceModules},
    {Mode::Trace, true, "Trace", ReadTraceFile, Failure::WrongTraceFile, TraceOverlapModules},
    {Mode::RealTrace, false, "RealTrace", ReadRealTraceFile, Failure::WrongRealTimeTraceFile,
     RealTraceModules},
    {Mode::Mecha, false, "Mecha", ReadMechaFile, Failure::WrongMechanicalAnalysisFile, MechaModules},
    {Mode::Sim, false, "Sim", ReadSimFile, Failure::WrongSimulationFile, SimModules},
    {Mode::Sim, true, "Sim", ReadSimFile, Failure::WrongSimulationFile, SimOverlapModules},
    {Mode::IdxTbl, false, "IdxIdxTbl", ReadIdxTblFile, Failure::WrongProgramTableFile, IdxTblModules},
    {Mode::ZoneTbl, false, "IdxZoneTbl", ReadZoneTblFile, Failure::WrongZoneTableFile, ZoneTblModules},
    {Mode::JogTbl, false, "IdxJogTbl", ReadJogTblFile, Failure::WrongJogSpeedTableFile, JogTblModules},
}};

void ReadDataFile(PrintRun& run, const DataSet& set, const std::string& suffix) {
  const std::string path = run.Session.TempFolder + set.File + suffix + ".tmp";
  if (LoadLines(run, path) < 0 || !set.Read(run)) ReportFailure(run, set.Failure);
}

void ListModules(PrintRun& run, const DataSet& set) {
  // Names of a print before must not come back where this list leaves an index empty.
  run.Session.ModuleNames.Clear();
  const Modules modules = set.List(run);
  for (int index = 0; index < static_cast<int>(modules.size()); ++index) {
    SetModuleCount(run, index);
    SetModuleName(run, index, modules[static_cast<std::size_t>(index)]);
  }
}

// Title and group of overlapped data sets. The title is joined to the options' own text each time.
void NameOverlappedSet(PrintRun& run, const std::string& suffix, bool overlapResult) {
  PrintSession& session = run.Session;
  const bool sim = session.Mode == Mode::Sim;
  const bool detail =
      sim ? On(run.Options.SimOption, OverlapDetailOfSim) : On(run.Options.TraceOption, OverlapDetailOfTrace);
  const std::string name = (sim ? run.Options.SimHeader : run.Options.TraceHeader).TitleText + "-";
  if (overlapResult) {
    session.ActiveHeader.TitleText = name + "Overlapping result";
    if (detail) session.TocGroup = "Overlapping result";
  } else if (suffix == "1") {
    session.ActiveHeader.TitleText = name + "Overlapping target";
    session.TocGroup = "Overlapping target";
  } else if (!suffix.empty()) {
    session.ActiveHeader.TitleText = name + "Overlapping data";
    session.TocGroup = "Overlapping data " + std::to_string(std::stoi(suffix) - 1) + "/" +
                       std::to_string(session.OverlapNum - 1);
  }
}

}  // namespace

void SetModuleCount(PrintRun& run, int last) {
  run.Session.ModuleLast = static_cast<std::int16_t>(last);
  run.Session.ModuleNames.ResizeKeeping(last);
}

void SetModuleName(PrintRun& run, int index, const std::string& name) {
  run.Session.ModuleNames[index] = name;
}

void ListFunctionModules(PrintRun& run, bool overlapResult) {
  for (const DataSet& set : DataSets) {
    if (run.Session.Mode == set.Mode && overlapResult == set.OverlapResult) ListModules(run, set);
  }
}

void LoadFunctionDataSet(PrintRun& run, const std::string& suffix, bool overlapResult) {
  for (const DataSet& set : DataSets) {
    if (run.Session.Mode != set.Mode || overlapResult != set.OverlapResult) continue;
    ReadDataFile(run, set, suffix);
    ListModules(run, set);
    if (run.Session.Mode == Mode::Trace || run.Session.Mode == Mode::Sim)
      NameOverlappedSet(run, suffix, overlapResult);
  }
}

}  // namespace tarvis
