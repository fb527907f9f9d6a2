// The one reporter of numbered failures, and the one way in which every run ends.
#pragma once

#include <cstdint>

namespace tarvis {

class Desktop;
struct PrintRun;

// Exit status after a failure that has no number: one that no routine handles, or a desktop that can't show
// windows.
constexpr int ExitAfterRunTimeFailure = 1;

// Deletes `*.tmp`, then `*.emf` in the temporary folder (nothing while that is unknown) and ends the process
// with exit status 0. Every file error is ignored.
[[noreturn]] void EndRun(PrintRun& run);

// The numbered failures. Their numbers are the entries of the message table.
enum class Failure : std::int16_t {
  WrongArgument = 1,
  LogoNotFound = 2,
  WrongParameterFile = 3,
  WrongTraceFile = 4,
  WrongSimulationFile = 5,
  BlackAndWhiteGraphNotFound = 6,
  ExplanatoryFileNotFound = 7,
  ColorGraphNotFound = 8,
  MechanicalModelNotFound = 9,
  WrongPrintOptionsFile = 10,
  WrongMechanicalAnalysisFile = 11,
  WrongParameterWizardFile = 12,
  ParameterWizardPictureNotFound = 13,
  WrongRealTimeTraceFile = 14,
  WrongProgramTableFile = 15,
  WrongZoneTableFile = 16,
  WrongJogSpeedTableFile = 17,
};

// Writes the session's diagnosis to standard error, beeps five times, shows the numbered message titled
// "Printing Error", then EndRun.
[[noreturn]] void ReportFailure(PrintRun& run, Failure failure);

// The first line of the failure's message.
const char* FailureMessage(Failure failure);

}  // namespace tarvis
