// Files that nobody else can open, on POSIX systems.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/files/closed_file.h"

namespace tarvis {

std::error_code MakeClosedFile(const std::filesystem::path& path) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (file < 0) return {errno, std::generic_category()};
  close(file);  // nothing was written that could be lost
  return {};
}

}  // namespace tarvis
