// Makes a file that nobody else can open. The standard library gives new files the rights of any other.
#pragma once

#include <filesystem>
#include <system_error>

namespace tarvis {

// Makes an empty file that only its owner can read and write, from its first moment on; on Windows a new file
// has the rights that its folder gives. It is an error if anything is at `path`.
[[nodiscard]] std::error_code MakeClosedFile(const std::filesystem::path& path);

}  // namespace tarvis
