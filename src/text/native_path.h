// The file system, as the readers see it. Paths are UTF-8 with backslashes, as the system forms them.
#pragma once

#include <filesystem>
#include <string_view>

namespace tarvis {

// The path that the operating system takes: on POSIX a backslash separates folders. To be called at the
// moment when a file is touched, and never before.
std::filesystem::path NativePath(std::string_view path);

// Whether `path` names an existing regular file; * and ? mean nothing. An empty path names none.
bool FileExists(std::string_view path);

}  // namespace tarvis
