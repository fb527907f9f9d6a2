// Wires the rooms of the program together and starts a run.
#include "launch/failures.h"
#include "launch/launch.h"
#include "launch/print_run.h"
#include "platform/application.h"
#include "platform/command_line.h"
#include "platform/end_signals.h"
#include "platform/fonts.h"
#include "platform/host_settings.h"
#include "platform/process_guard.h"
#include "platform/program_windows.h"
#include "platform/qt_desktop.h"
#include "platform/system_printers.h"

int main(int argc, char** argv) {
  using namespace tarvis;
  GuardProcess();
  QtDesktop desktop;
  ToolkitArguments arguments(argv[0]);
  const std::unique_ptr<Application> application = StartApplication(arguments, desktop);
  application->Run([&] {
    RequireFonts(desktop);
    // They last as long as the process, which ends without coming back here.
    static const std::unique_ptr<HostSettings> settings = OpenHostSettings(desktop);
    static PrintRun run(desktop);
    static QtProgramWindows windows(run);
    static SystemPrinters printers(settings->CountsPdfPrinter());
    static const EndSignals endSignals([&application, &desktop] {
      if (application->IsFailing()) desktop.EndProcess(ExitAfterRunTimeFailure);
      windows.StopWork();
      EndRun(run);
    });
    run.Page = CodePage(settings->CodePageNumber());
    Launch(run, CommandLineText(argc, argv), {*settings, printers, windows});
  });
}
