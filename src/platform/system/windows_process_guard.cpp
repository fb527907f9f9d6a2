// What the process sets up for itself on Windows: nothing.
#include "platform/system/process_guard.h"

namespace tarvis {

// The runtime library keeps the numbers of closed streams free, and no signal ends a process for a failed
// write.
void GuardProcess() {}

// There is one pool.
void UseOneMemoryPool() {}

}  // namespace tarvis
