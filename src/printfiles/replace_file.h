// Writing a file in such a way that the old one or the new one is there at every moment, whole.
#pragma once

#include <filesystem>
#include <string_view>

#include "run/desktop.h"

namespace tarvis {

// Writes `bytes` into a new file next to `path` and gives it the name and the mode of the old one. A link is
// followed, and stays. False on any error, with the old file as it was: also for a `path` that is no regular
// file or a link to nowhere. Files that a process left when it was ended while it wrote are removed.
bool ReplaceFile(const std::filesystem::path& path, std::string_view bytes, const FileSettler& settle);

}  // namespace tarvis
