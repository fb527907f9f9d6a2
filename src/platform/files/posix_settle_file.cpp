// Safe writing of files on POSIX systems.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/files/settle_file.h"

namespace tarvis {

bool SettleFile(const std::filesystem::path& fresh, const std::filesystem::path& replaced) {
  const int file = open(fresh.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
  if (file < 0) return false;
  struct stat old = {};
  // Only the superuser may give files away; with other users the file keeps its owner.
  if (stat(replaced.c_str(), &old) == 0) static_cast<void>(!fchown(file, old.st_uid, old.st_gid));
  const bool settled = fsync(file) == 0 || errno == EINVAL;  // a file system that doesn't support it
  close(file);
  return settled;
}

}  // namespace tarvis
