// Makes a written file safe against a loss of power. The standard library has no such call.
#pragma once

#include <filesystem>

namespace tarvis {

// Returns when the bytes of the closed file `fresh` are on the disk. Gives it the owner and the group of the
// file `replaced` if that one exists and this process may. False if the bytes may be lost.
[[nodiscard]] bool SettleFile(const std::filesystem::path& fresh, const std::filesystem::path& replaced);

}  // namespace tarvis
