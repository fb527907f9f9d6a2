#include "launch/launch.h"

#include "launch/command_line.h"
#include "launch/failures.h"
#include "launch/load_print_options.h"
#include "launch/print_run.h"
#include "launch/system_paths.h"
#include "printfiles/numbers.h"

namespace tarvis {
namespace {

constexpr int kArgumentIsWrong = 1;

enum Argument { kMode = 1, kHelpFile, kHelpContext, kEdition, kArgumentCount = kEdition };

// Settings can be changed without a printer; everything else would print.
void RequirePrinter(PrintRun& run, Printers& printers) {
  if (run.Session.Mode == "PrnSetting" || printers.NDevices() != 0) return;
  printers.PrintDialog();
  EndRun(run);
}

}  // namespace

void Launch(PrintRun& run, std::string_view commandLine, const LaunchServices& services) {
  PrintSession& session = run.Session;
  const CheckedArray<std::string> arguments = SplitCommandLine(commandLine, kArgumentCount);
  if (arguments.HighestIndex() == 0) ReportFailure(run, kArgumentIsWrong);
  session.HostEdition = StrictInteger(arguments[kEdition]);
  LoadSystemPaths(run, services.Registry);
  session.Mode = arguments[kMode];
  session.HelpFile += arguments[kHelpFile];
  session.HelpContextId = StrictLong(arguments[kHelpContext]);
  RequirePrinter(run, services.Printers);
  LoadPrintOptions(run);
  services.Windows.ShowPrintSetting();
}

}  // namespace tarvis
