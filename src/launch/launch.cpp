#include "launch/launch.h"

#include "launch/command_line.h"
#include "launch/load_print_options.h"
#include "launch/system_paths.h"
#include "run/failures.h"
#include "run/print_run.h"
#include "text/numbers.h"

namespace tarvis {
namespace {

enum Argument {
  ModeArgument = 1,
  HelpFileArgument,
  HelpContextArgument,
  EditionArgument,
  ArgumentCount = EditionArgument
};

FailurePlace PlaceOf(int argument) {
  return {.File = "command line", .Line = 0, .Key = "argument " + std::to_string(argument)};
}

const std::string& Text(const CheckedArray<std::string>& arguments, int argument) {
  if (argument > arguments.HighestIndex()) throw RunTimeFailure("missing", PlaceOf(argument));
  return arguments[argument];
}

template <typename Integer>
Integer Number(const CheckedArray<std::string>& arguments, int argument,
               Integer (*convert)(std::string_view)) {
  const std::string& text = Text(arguments, argument);
  try {
    return convert(text);
  } catch (const RunTimeFailure& failure) {
    throw failure.At(PlaceOf(argument));
  }
}

// Settings can be changed without a printer; everything else would print.
void RequirePrinter(PrintRun& run, Printers& printers) {
  if (run.Session.Mode == Mode::PrnSetting || printers.NDevices() != 0) return;
  printers.PrintDialog();
  EndRun(run);
}

}  // namespace

void Launch(PrintRun& run, std::string_view commandLine, const LaunchServices& services) {
  PrintSession& session = run.Session;
  const CheckedArray<std::string> arguments = SplitCommandLine(commandLine, ArgumentCount);
  if (arguments.HighestIndex() == 0) {
    session.Diagnosis = "command line: no argument";
    ReportFailure(run, Failure::WrongArgument);
  }
  session.HostEdition = Number(arguments, EditionArgument, StrictInteger);
  LoadSystemPaths(run, services.Registry);
  session.ModeText = Text(arguments, ModeArgument);
  session.Mode = ModeOf(session.ModeText);
  session.HelpFile += Text(arguments, HelpFileArgument);
  session.HelpContextId = Number(arguments, HelpContextArgument, StrictLong);
  RequirePrinter(run, services.Printers);
  LoadPrintOptions(run);
  services.Windows.ShowPrintSetting();
}

}  // namespace tarvis
