#include "launch/load_print_options.h"

#include <string>

#include "printfiles/host_files.h"
#include "printfiles/print_options_file.h"
#include "run/failures.h"
#include "run/print_run.h"
#include "text/native_path.h"

namespace tarvis {

void LoadPrintOptions(PrintRun& run) {
  PrintSession& session = run.Session;
  const std::string path = session.SystemFolder + "PrintOption.ToT";
  run.Options = {};
  if (!FileExists(path)) {
    DefaultPrintOptions(run);
  } else if (LoadLines(run, path) < 0 || !ReadPrintOptionsFile(run)) {
    ReportFailure(run, Failure::WrongPrintOptionsFile);
  }
  session.OverlapMode = 0;
  session.OverlapNum = 0;
  session.FinishedReports = 0;
  session.TocGroup.clear();
  session.SimExMode = 0;
}

}  // namespace tarvis
