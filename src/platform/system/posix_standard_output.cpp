// Standard output as a file of the POSIX system.
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "platform/system/standard_output.h"

namespace tarvis {

bool IsStandardOutputOpen() {
  return fcntl(STDOUT_FILENO, F_GETFD) != -1;
}

std::string WriteStandardOutput(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(STDOUT_FILENO, bytes.data(), bytes.size());
    if (count < 0 && errno != EINTR) return std::generic_category().message(errno);
    if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return {};
}

}  // namespace tarvis
