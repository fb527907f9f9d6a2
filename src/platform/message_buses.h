// The message buses of the desktop, which the toolkit connects to before a window is shown.
#pragma once

#include <chrono>

#include "run/desktop.h"

namespace tarvis {

// The toolkit waits without limit for a bus that takes connections and never answers, so that no window would
// ever show. Each bus of the environment is tried; one that doesn't answer within `patience` is named on
// standard error and switched off in the environment of this process: windows are shown, but without
// assistive tools. To be called before the application object is made and while the process has one thread.
void LeaveOutSilentBuses(Desktop& desktop, std::chrono::milliseconds patience = std::chrono::seconds(5));

}  // namespace tarvis
