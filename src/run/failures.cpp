#include "run/failures.h"

#include <array>
#include <cstdlib>
#include <string>

#include "run/print_run.h"
#include "run/temp_folder.h"

namespace tarvis {
namespace {

constexpr int BeepCount = 5;
constexpr int ExitAfterRun = 0;

// The second line of every message.
constexpr const char* Canceled = "Printing Process is canceled.";

// By the number of the failure, from 1.
constexpr std::array Messages = {
    "Argument is wrong.",
    "Logo Mark File is not found.",
    "Parameter File is wrong.",
    "Tracing File is wrong.",
    "Dynamics Simulation File is wrong.",
    "Graph File (Black & White) is not found.",
    "Explanatory File is not found.",
    "Graph File (Color) is not found.",
    "Mechanical Setting Model BMP File is not found.",
    "Printing Items Setting File is wrong.",
    "Mechanical Analysis File is wrong.",
    "Parameter Wizard is wrong.",
    "Parameter Wizard BMP File is not found.",
    "Real-Time Tracing File is wrong.",
    "Program Table File is wrong.",
    "Zone Table File is wrong.",
    "Jog Speed Table File is wrong.",
};

// The desktop never returns, but not every compiler sees that of a virtual function.
[[noreturn]] void EndProcess(Desktop& desktop, int exitStatus) {
  desktop.EndProcess(exitStatus);
  std::abort();
}

}  // namespace

const char* FailureMessage(Failure failure) {
  return Messages.at(static_cast<std::size_t>(failure) - 1);
}

void EndRun(PrintRun& run) {
  DeleteFiles(run.Session.TempFolder, ".tmp");
  DeleteFiles(run.Session.TempFolder, ".emf");
  EndProcess(run.Desktop, ExitAfterRun);
}

void ReportFailure(PrintRun& run, Failure failure) {
  run.Desktop.NoticeFailure(failure, run.Session.Diagnosis);
  if (!run.Session.Diagnosis.empty()) run.Desktop.Diagnose(run.Session.Diagnosis);
  for (int beep = 0; beep < BeepCount; ++beep) run.Desktop.Beep();
  run.Desktop.ShowMessage("Printing Error", std::string(FailureMessage(failure)) + "\n" + Canceled);
  EndRun(run);
}

}  // namespace tarvis
