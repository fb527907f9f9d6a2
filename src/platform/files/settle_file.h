// Makes a written file safe against a loss of power. The standard library has no such call.
#pragma once

#include <filesystem>

namespace tarvis {

// Returns when the bytes of the closed file `fresh` are on the disk. Gives it the owner and the group of the
// file `replaced` if that one exists and this process may, and the rights that its group had; where the file
// belongs to another group, that one gets none. False if the bytes may be lost, with the reason in errno.
[[nodiscard]] bool SettleFile(const std::filesystem::path& fresh, const std::filesystem::path& replaced);

}  // namespace tarvis
