// Files that another program has open, and what a user reads when one can't be written.
#pragma once

#include <filesystem>
#include <string>
#include <system_error>

namespace tarvis {

// Where a program can keep others out of a file that it has open: waits until this one can read `path`, at
// most two seconds. False if it still can't. At once true where nothing keeps others out.
bool WaitUntilReadable(const std::filesystem::path& path);

// Why a file can't be written, as a text for users.
std::string ReasonOf(const std::error_code& error);

}  // namespace tarvis
