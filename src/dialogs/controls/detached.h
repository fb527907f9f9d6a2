// Work that is started without waiting for it, since a file system that has stopped answering may delay it
// for minutes.
#pragma once

#include <functional>

namespace tarvis {

// Runs `work` in a thread of its own, which may live longer than everything else in the program, so `work`
// must own what it uses and must not throw. False if the system has no thread left.
[[nodiscard]] bool RunDetached(std::function<void()> work);

}  // namespace tarvis
