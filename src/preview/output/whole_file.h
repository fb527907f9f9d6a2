// Files that take the place of older ones only when they are complete.
#pragma once

#include <QString>
#include <filesystem>
#include <string_view>

namespace tarvis {

// Writes a file whole or not at all, so that nothing is lost on a failure. Returns an error text for the
// user, empty if all is well.
[[nodiscard]] QString WriteWholeFile(std::string_view bytes, const std::filesystem::path& path);

}  // namespace tarvis
