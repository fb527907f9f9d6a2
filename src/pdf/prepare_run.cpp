#include "pdf/prepare_run.h"

#include <filesystem>
#include <system_error>

#include "launch/load_print_options.h"
#include "launch/system_paths.h"
#include "pdf/moment.h"
#include "pdf/option_settings.h"
#include "pdf/pdf_error.h"
#include "platform/system/host_settings.h"
#include "run/print_run.h"
#include "session/confirm.h"
#include "text/native_path.h"
#include "text/numbers.h"

namespace tarvis {
namespace {

constexpr const char* NewestVersion = "200";  // of the host, which offers all functions of its edition

std::int16_t EditionOf(const std::string& text) {
  try {
    return StrictInteger(text);
  } catch (const RunTimeFailure& failure) {
    throw failure.At({.File = "command line", .Line = 0, .Key = "edition"});
  }
}

void TakeDataFolder(PrintSession& session, const std::string& folder) {
  std::error_code error;
  if (!std::filesystem::is_directory(NativePath(folder), error)) {
    throw PdfError("--data: \"" + folder + "\" is no folder" +
                   (error ? " that can be read: " + error.message() : ""));
  }
  session.TempFolder = folder + "\\";
  session.HostVersion = NewestVersion;
}

}  // namespace

void PrepareRun(PrintRun& run, const PdfOrder& order, HostSettings& settings) {
  PrintSession& session = run.Session;
  run.CodePage = order.CodePageNumber ? CodePage(*order.CodePageNumber) : settings.SystemCodePage();
  if (order.Date) run.Now = [date = *order.Date] { return LocalTimeOf(date); };
  session.HostEdition = EditionOf(order.Edition);
  LoadSystemPaths(run, settings);
  if (order.DataFolder) TakeDataFolder(session, *order.DataFolder);
  session.ModeText = order.Mode;
  session.Mode = ModeOf(order.Mode);
  if (session.Mode == Mode::PrnSetting) throw PdfError("PrnSetting prints nothing, so there is no PDF of it");
  if (order.OptionsFile) {
    LoadPrintOptions(run, *order.OptionsFile);
  } else {
    LoadPrintOptions(run);
  }
  for (const std::string& setting : order.Settings) SetOption(run, setting);
  ConfirmKeptOptions(run);
}

}  // namespace tarvis
