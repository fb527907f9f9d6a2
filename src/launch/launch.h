// The main routine: everything from the command line to the open dialog.
#pragma once

#include <string_view>

#include "run/desktop.h"

namespace tarvis {

struct PrintRun;

// What the main routine asks of the system around it.
struct LaunchServices {
  HostRegistry& Registry;
  tarvis::Printers& Printers;
  ProgramWindows& Windows;
};

// Starts a run: `commandLine` is the text after the program's name. Returns with the dialog open, or
// doesn't return: no argument and an unknown edition are failure 1, and without a printer every mode but
// `PrnSetting` ends after a message to the user. Less than four arguments, or a number that is none, throw
// RunTimeFailure.
void Launch(PrintRun& run, std::string_view commandLine, const LaunchServices& services);

}  // namespace tarvis
