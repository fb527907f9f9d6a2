#include "launch/load_print_options.h"

#include <filesystem>
#include <string>
#include <system_error>

#include "platform/base/file_names.h"
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

// Whether there is a file of this name, or may be one because the system gives no answer: defaults in its
// place would be written over what the user has kept.
bool MayExist(const std::string& path) {
  if (path.find('\0') != std::string::npos) return false;
  std::error_code error;
  const std::filesystem::file_type type = StatusOf(NativePath(path), error).type();
  return type == std::filesystem::file_type::regular || error == std::errc::io_error ||
         error == std::errc::not_enough_memory || error == std::errc::permission_denied ||
         error == std::errc::interrupted;
}

}  // namespace

void LoadPrintOptions(PrintRun& run) {
  const std::string path = run.Session.SystemFolder + OptionsFile;
  if (MayExist(path)) return LoadPrintOptions(run, path);
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
