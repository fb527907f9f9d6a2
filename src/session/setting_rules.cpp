#include "session/setting_rules.h"

#include <string>
#include <string_view>

#include "printfiles/data_file_scan.h"
#include "printfiles/host_files.h"
#include "run/failures.h"
#include "run/print_run.h"
#include "text/date_text.h"
#include "text/excerpt.h"
#include "text/numbers.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

constexpr std::int16_t StepsWithoutTable = 1000;

// Failure 1, with a reason and a text for standard error.
[[noreturn]] void RefuseHost(PrintRun& run, const std::string& reason, const std::string& text) {
  run.Session.Diagnosis = reason + ": '" + Excerpt(text) + "'";
  ReportFailure(run, Failure::WrongArgument);
}

void ReadStepCount(PrintRun& run) {
  PrintSession& session = run.Session;
  if (LoadLines(run, session.TempFolder + "IdxIdxTbl.tmp") < 0)
    ReportFailure(run, Failure::WrongProgramTableFile);
  ScanLines(run, [&session](std::string_view key, std::string_view rest) {
    if (key != "IndexCnt") return true;
    session.StepLimit = StrictInteger(rest);
    return false;
  });
}

}  // namespace

std::span<const FunctionEntry> OfferedFunctions(PrintRun& run) {
  const std::int16_t edition = run.Session.HostEdition;
  const std::span<const FunctionEntry> entries = FunctionEntries(edition, run.Session.HostVersion);
  if (entries.empty() && (edition == 1 || edition == 4)) {
    RefuseHost(run, "no such version of edition " + std::to_string(edition), run.Session.HostVersion);
  }
  return entries;
}

const ModeChoice& OpenMode(PrintRun& run, std::span<const FunctionEntry> functions) {
  PrintSession& session = run.Session;
  const ModeChoice* choice = FindModeChoice(session.HostEdition, session.Mode);
  if (choice == nullptr) {
    RefuseHost(run, "command line: no such mode of edition " + std::to_string(session.HostEdition),
               session.ModeText);
  }
  if (session.Mode == Mode::SimEx) {
    session.Mode = Mode::Sim;
    session.SimExMode = 1;
  }
  if (static_cast<std::size_t>(choice->Index) >= functions.size()) {
    throw RunTimeFailure(
        "no function of this version",
        {.File = "command line", .Line = 0, .Key = "mode", .Text = Excerpt(TextOf(session.Mode))});
  }
  return *choice;
}

void LoadStepLimit(PrintRun& run) {
  PrintSession& session = run.Session;
  if (session.Mode == Mode::IdxTbl) ReadStepCount(run);
  if (session.HostEdition == 2 && session.Mode == Mode::PrnSetting) session.StepLimit = StepsWithoutTable;
}

// Edition 4 compares simulations; edition 1 has no such page, not even for PrnSetting.
PageId PageOf(const PrintSession& session, const FunctionEntry& entry) {
  const bool compares =
      session.HostEdition == 4 && (session.Mode == Mode::PrnSetting || session.SimExMode == 1);
  return entry.Page == PageId::InfSim && compares ? PageId::InfSimOverlap : entry.Page;
}

bool SwitchCover(PrintOptions& options, bool on) {
  options.Cover = on ? 1 : 0;
  const bool selectsFirst = on && options.SelectCover == 0;
  if (selectsFirst) options.SelectCover = 1;
  if (!on) options.SelectCover = 0;
  return selectsFirst;
}

void StampOptions(PrintRun& run) {
  run.Options.DateTime = DateTimeText(run.Now());
}

}  // namespace tarvis
