// POSIX systems keep nobody out of a file that is open.
#include "platform/files/file_in_use.h"

namespace tarvis {

bool WaitUntilReadable(const std::filesystem::path& /*path*/) {
  return true;
}

std::string ReasonOf(const std::error_code& error) {
  return error.message();
}

}  // namespace tarvis
