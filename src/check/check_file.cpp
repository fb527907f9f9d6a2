#include "check/check_file.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

#include "check/contents.h"
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

// A reader alone never reaches the desktop.
class NoDesktop : public Desktop {
 public:
  void Beep() override {}
  void ShowMessage(const std::string&, const std::string&) override {}
  void Diagnose(const std::string&) override {}
  [[noreturn]] void EndProcess(int) override { std::abort(); }
};

// The comparison times of a simulation are bounded by the overlap that the session took from the same file.
bool ReadSimFileWithItsOverlap(PrintRun& run) {
  if (!ReadSimFile(run)) return false;
  run.Session.OverlapNum = run.Sim.OverlapNum;
  return ReadSimFile(run);
}

struct FileKind {
  std::string_view Stem;
  std::string_view Ending;
  bool IsNumbered;  // has companions such as Trace1.tmp
  bool (*Read)(PrintRun& run);
  std::string (*Contents)(const PrintRun& run);
};

constexpr std::array Kinds = {
    FileKind{"PrintOption", ".ToT", false, ReadPrintOptionsFile, OptionsContents},
    FileKind{"User", ".tmp", false, ReadUserFile, UserContents},
    FileKind{"UPWizard", ".tmp", false, ReadUPWizardFile, UPWizardContents},
    FileKind{"Trace", ".tmp", true, ReadTraceFile, TraceContents},
    FileKind{"RealTrace", ".tmp", false, ReadRealTraceFile, RealTraceContents},
    FileKind{"Mecha", ".tmp", false, ReadMechaFile, MechaContents},
    FileKind{"Sim", ".tmp", true, ReadSimFileWithItsOverlap, SimContents},
    FileKind{"IdxIdxTbl", ".tmp", false, ReadIdxTblFile, IdxTblContents},
    FileKind{"IdxZoneTbl", ".tmp", false, ReadZoneTblFile, ZoneTblContents},
    FileKind{"IdxJogTbl", ".tmp", false, ReadJogTblFile, JogTblContents},
};

bool IsOfKind(std::string_view name, const FileKind& kind) {
  if (!name.starts_with(kind.Stem) || !name.ends_with(kind.Ending)) return false;
  if (name.size() < kind.Stem.size() + kind.Ending.size()) return false;
  name.remove_prefix(kind.Stem.size());
  name.remove_suffix(kind.Ending.size());
  if (name.empty()) return true;
  return kind.IsNumbered && name.front() != '0' &&
         name.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace

FileCheck CheckFile(std::string_view path, CodePage page) {
  const std::string name(path.substr(path.find_last_of("\\/") + 1));
  const auto* kind = std::ranges::find_if(Kinds, [&](const FileKind& each) { return IsOfKind(name, each); });
  if (kind == Kinds.end()) return {.IsGood = false, .Line = name + ": not the name of a host file"};
  NoDesktop desktop;
  PrintRun run(desktop);
  run.Page = std::move(page);
  try {
    if (LoadLines(run, path) < 0 || !kind->Read(run)) return {.IsGood = false, .Line = run.Session.Diagnosis};
  } catch (const RunTimeFailure& failure) {
    return {.IsGood = false, .Line = failure.what()};
  }
  return {.IsGood = true, .Line = name + ": " + kind->Contents(run)};
}

}  // namespace tarvis
