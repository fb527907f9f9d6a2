#include "launch/launch.h"

#include "launch/command_line.h"
#include "launch/load_print_options.h"
#include "launch/system_paths.h"
#include "run/failures.h"
#include "run/print_run.h"
#include "text/numbers.h"

namespace tarvis {
namespace {

constexpr int ArgumentIsWrong = 1;

enum Argument {
  ModeArgument = 1,
  HelpFileArgument,
  HelpContextArgument,
  EditionArgument,
  ArgumentCount = EditionArgument
};

// Settings can be changed without a printer; everything else would print.
void RequirePrinter(PrintRun& run, Printers& printers) {
  if (run.Session.Mode == "PrnSetting" || printers.NDevices() != 0) return;
  printers.PrintDialog();
  EndRun(run);
}

}  // namespace

void Launch(PrintRun& run, std::string_view commandLine, const LaunchServices& services) {
  PrintSession& session = run.Session;
  const CheckedArray<std::string> arguments = SplitCommandLine(commandLine, ArgumentCount);
  if (arguments.HighestIndex() == 0) ReportFailure(run, ArgumentIsWrong);
  session.HostEdition = StrictInteger(arguments[EditionArgument]);
  LoadSystemPaths(run, services.Registry);
  session.Mode = arguments[ModeArgument];
  session.HelpFile += arguments[HelpFileArgument];
  session.HelpContextId = StrictLong(arguments[HelpContextArgument]);
  RequirePrinter(run, services.Printers);
  LoadPrintOptions(run);
  services.Windows.ShowPrintSetting();
}

}  // namespace tarvis
