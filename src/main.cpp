// Wires the rooms of the program together and starts a run.
#include "launch/launch.h"
#include "platform/application.h"
#include "platform/command_line.h"
#include "platform/end_signals.h"
#include "platform/files/settle_file.h"
#include "platform/first_window_watch.h"
#include "platform/message_buses.h"
#include "platform/program_windows.h"
#include "platform/qt_desktop.h"
#include "platform/system/fonts.h"
#include "platform/system/host_settings.h"
#include "platform/system/process_guard.h"
#include "platform/system_printers.h"
#include "run/failures.h"
#include "run/print_run.h"

int main(int argc, char** argv) {
  using namespace tarvis;
  GuardProcess();
  QtDesktop desktop;
  ToolkitArguments arguments(argv[0]);
  LeaveOutSilentBuses(desktop);
  FirstWindowWatch watch(desktop);
  watch.WaitsFor(DisplayName());
  const std::unique_ptr<Application> application = StartApplication(arguments, desktop);
  watch.NoticeWindows();
  watch.WaitsFor("the fonts");
  RequireFonts(desktop);
  watch.WaitsFor("the files of the host");
  // They last as long as the process, which ends without coming back here: no window is taken apart when the
  // toolkit has lost its display.
  const std::unique_ptr<HostSettings> settings = OpenHostSettings(desktop);
  PrintRun run(desktop);
  run.SettleFile = SettleFile;
  QtProgramWindows windows(run);
  SystemPrinters printers(settings->CountsPdfPrinter(), desktop, watch);
  EndSignals endSignals([&] {
    if (application->IsFailing()) desktop.EndProcess(ExitAfterRunTimeFailure);
    windows.StopWork();
    EndRun(run);
  });
  windows.AnswerEndRequestsWith([&endSignals] { endSignals.Answer(); });
  application->Run([&] {
    run.CodePage = settings->SystemCodePage();
    Launch(run, CommandLineText(argc, argv), {*settings, printers, windows});
  });
}
