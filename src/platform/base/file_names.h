// Names of files as the operating system takes them, and what it says of the files.
#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>
#include <vector>

namespace tarvis {

// The form of a path with backslashes (UTF-8) that the system takes, however long it is.
std::filesystem::path FormOfSystem(std::string_view path);

// What is at a path that FormOfSystem has given; the target of a link. `error` is set as by the standard
// library's function of this kind.
std::filesystem::file_status StatusOf(const std::filesystem::path& path, std::error_code& error);

// All that is directly in a folder but folders, in any order. Nothing of a folder that can't be read.
std::vector<std::filesystem::path> FilesIn(const std::filesystem::path& folder);

// A file that can't be deleted stays, without a message.
void RemoveFile(const std::filesystem::path& file);

}  // namespace tarvis
