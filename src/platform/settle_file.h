// Files that last: what the standard library can't ask of the operating system.
#pragma once

#include <filesystem>

namespace tarvis {

// Returns when the bytes of the closed file `fresh` are on the disk. Gives it the owner and the group of the
// file `replaced` if that one exists and this process may. False if the bytes may be lost.
bool SettleFile(const std::filesystem::path& fresh, const std::filesystem::path& replaced);

}  // namespace tarvis
