#include "launch/load_print_options.h"

#include <string>

#include "printfiles/host_files.h"
#include "printfiles/print_options_file.h"
#include "run/failures.h"
#include "run/print_run.h"
#include "text/native_path.h"

namespace tarvis {
namespace {

void ClearProgress(PrintSession& session) {
  session.OverlapMode = 0;
  session.OverlapNum = 0;
  session.FinishedReports = 0;
  session.TocGroup.clear();
  session.SimExMode = 0;
}

}  // namespace

void LoadPrintOptions(PrintRun& run) {
  const std::string path = run.Session.SystemFolder + OptionsFile;
  if (FileExists(path)) return LoadPrintOptions(run, path);
  DefaultPrintOptions(run);
  ClearProgress(run.Session);
}

void LoadPrintOptions(PrintRun& run, std::string_view path) {
  run.Options = {};
  if (LoadLines(run, path) < 0 || !ReadPrintOptionsFile(run)) {
    ReportFailure(run, Failure::WrongPrintOptionsFile);
  }
  ClearProgress(run.Session);
}

}  // namespace tarvis
