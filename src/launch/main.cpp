// Wires the rooms of the program together and starts a run.
#include "launch/launch.h"
#include "launch/print_run.h"
#include "platform/application.h"
#include "platform/command_line.h"
#include "platform/host_settings.h"
#include "platform/program_windows.h"
#include "platform/qt_desktop.h"
#include "platform/system_printers.h"

int main(int argc, char** argv) {
  using namespace tarvis;
  QtDesktop desktop;
  ToolkitArguments arguments(argv[0]);
  Application application(arguments, desktop);
  application.Run([&] {
    // They last as long as the process, which ends without coming back here.
    static const std::unique_ptr<HostSettings> settings = OpenHostSettings();
    static PrintRun run(desktop);
    static QtProgramWindows windows(run);
    static SystemPrinters printers(settings->CountsPdfPrinter());
    run.Page = CodePage(settings->CodePageNumber());
    Launch(run, CommandLineText(argc, argv), {*settings, printers, windows});
  });
}
