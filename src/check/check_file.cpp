#include "check/check_file.h"

#include <algorithm>
#include <array>
#include <utility>

#include "check/check_pages.h"
#include "check/contents.h"
#include "check/ending_desktop.h"
#include "printfiles/data_file_scan.h"
#include "printfiles/host_files.h"
#include "printfiles/idx_tbl_file.h"
#include "printfiles/jog_tbl_file.h"
#include "printfiles/mecha_file.h"
#include "printfiles/print_options_file.h"
#include "printfiles/real_trace_file.h"
#include "printfiles/sim_file.h"
#include "printfiles/trace_file.h"
#include "printfiles/upwizard_file.h"
#include "printfiles/user_file.h"
#include "printfiles/zone_tbl_file.h"
#include "run/print_run.h"

namespace tarvis {
namespace {

struct FileKind {
  std::string_view Stem;
  std::string_view Ending;
  tarvis::Mode Mode;  // of the runs that print it; none for the options
  bool IsOverlapped;  // has companions such as Trace1.tmp
  bool (*Read)(PrintRun& run);
  std::string (*Contents)(const PrintRun& run);
};

constexpr std::array Kinds = {
    FileKind{"PrintOption", ".ToT", Mode::None, false, ReadPrintOptionsFile, OptionsContents},
    FileKind{"User", ".tmp", Mode::User, false, ReadUserFile, UserContents},
    FileKind{"UPWizard", ".tmp", Mode::UPWizard, false, ReadUPWizardFile, UPWizardContents},
    FileKind{"Trace", ".tmp", Mode::Trace, true, ReadTraceFile, TraceContents},
    FileKind{"RealTrace", ".tmp", Mode::RealTrace, false, ReadRealTraceFile, RealTraceContents},
    FileKind{"Mecha", ".tmp", Mode::Mecha, false, ReadMechaFile, MechaContents},
    FileKind{"Sim", ".tmp", Mode::Sim, true, ReadSimFile, SimContents},
    FileKind{"IdxIdxTbl", ".tmp", Mode::IdxTbl, false, ReadIdxTblFile, IdxTblContents},
    FileKind{"IdxZoneTbl", ".tmp", Mode::ZoneTbl, false, ReadZoneTblFile, ZoneTblContents},
    FileKind{"IdxJogTbl", ".tmp", Mode::JogTbl, false, ReadJogTblFile, JogTblContents},
};

bool IsOfKind(std::string_view name, const FileKind& kind) {
  if (!name.starts_with(kind.Stem) || !name.ends_with(kind.Ending)) return false;
  if (name.size() < kind.Stem.size() + kind.Ending.size()) return false;
  name.remove_prefix(kind.Stem.size());
  name.remove_suffix(kind.Ending.size());
  if (name.empty()) return true;
  return kind.IsOverlapped && name.front() != '0' &&
         name.find_first_not_of("0123456789") == std::string_view::npos;
}

// Companions are printed as the main file beside them says.
void TakeOverlap(PrintRun& run, const FileKind& kind, std::string_view folder) {
  if (!kind.IsOverlapped) return;
  const std::string mainFile = std::string(folder) + std::string(kind.Stem) + std::string(kind.Ending);
  if (LoadLines(run, mainFile) < 1) return;
  try {
    ScanOverlap(run);
  } catch (const RunTimeFailure&) {
    // The reader of the main file stops at the same number.
  }
}

bool IsRead(PrintRun& run, const FileKind& kind, std::string_view path) {
  const std::size_t nameStart = path.find_last_of("\\/") + 1;
  TakeOverlap(run, kind, path.substr(0, nameStart));
  if (LoadLines(run, path) < 0 || !kind.Read(run)) return false;
  if (kind.Mode == Mode::None) {
    RequireChoices(run);
    return true;
  }
  const bool isMainFile = path.size() - nameStart == kind.Stem.size() + kind.Ending.size();
  DefaultPrintOptions(run);
  run.Session.Mode = kind.Mode;
  MakePages(run, isMainFile && run.Session.OverlapMode != 0);
  return true;
}

}  // namespace

FileCheck CheckFile(std::string_view path, CodePage page) {
  const std::string name(path.substr(path.find_last_of("\\/") + 1));
  const auto* kind = std::ranges::find_if(Kinds, [&](const FileKind& each) { return IsOfKind(name, each); });
  if (kind == Kinds.end()) return {.IsGood = false, .Line = name + ": not the name of a host file"};
  EndingDesktop desktop;
  PrintRun run(desktop);
  run.Page = std::move(page);
  try {
    if (!IsRead(run, *kind, path)) return {.IsGood = false, .Line = run.Session.Diagnosis};
  } catch (const RunTimeFailure& failure) {
    return {.IsGood = false, .Line = failure.what()};
  }
  return {.IsGood = true, .Line = name + ": " + kind->Contents(run)};
}

}  // namespace tarvis
