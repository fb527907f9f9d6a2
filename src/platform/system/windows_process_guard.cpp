// What the process sets up for itself on Windows.
#include <windows.h>

#include <cstdio>

#include "platform/system/process_guard.h"

namespace tarvis {

// The runtime library keeps the numbers of closed streams free, and no signal ends a process for a failed
// write. A program with windows has no console of its own: what it has to say goes to the one from which it
// was started, if there is one, and Ctrl+C there ends it.
void GuardProcess() {
  if (GetStdHandle(STD_ERROR_HANDLE) != nullptr || AttachConsole(ATTACH_PARENT_PROCESS) == FALSE) return;
  static_cast<void>(std::freopen("CONOUT$", "w", stderr));
}

// There is one pool.
void UseOneMemoryPool() {}

}  // namespace tarvis
