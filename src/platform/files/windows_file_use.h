// Files that another program has open on Windows.
#pragma once

#include <filesystem>

namespace tarvis {

// Waits until `path` can be opened for `access`, a set of the system's rights, at most two seconds. False
// only if another program still has it open in a way that keeps this one out.
bool WaitUntilFree(const std::filesystem::path& path, unsigned long access);

}  // namespace tarvis
