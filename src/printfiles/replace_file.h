// Writing a file in such a way that the old one or the new one is there at every moment, whole.
#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

#include "run/desktop.h"

namespace tarvis {

// Whether a file may replace what is at `path`: only nothing, or a regular file, also through a link. What
// can't be looked at can't be replaced.
[[nodiscard]] bool CanBeReplaced(const std::filesystem::path& path);

// Writes `bytes` into a new file next to `path` and gives it the name and the mode of the old one; the rights
// of its group are those that `settle` has given it. A link is followed, and stays. False on any error, with
// the old file as it was and the reason in `error`: also for a `path` that can't be replaced. Files that a
// process left when it was ended while it wrote are removed a minute later at the earliest, since another
// process may still write there.
bool ReplaceFile(const std::filesystem::path& path, std::string_view bytes, const FileSettler& settle,
                 std::error_code& error);
bool ReplaceFile(const std::filesystem::path& path, std::string_view bytes, const FileSettler& settle);

}  // namespace tarvis
