// Safe writing of files on POSIX systems.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/files/settle_file.h"

namespace tarvis {
namespace {

template <typename Id>
constexpr Id NoChange = static_cast<Id>(-1);

// Only the superuser may give files away, but members of a group may give them to it; without leave, a file
// keeps its owner or group. The group gets the rights that it had; another one gets none.
void TakeOwner(int file, const struct stat& old) {
  static_cast<void>(!fchown(file, old.st_uid, NoChange<gid_t>));
  static_cast<void>(!fchown(file, NoChange<uid_t>, old.st_gid));
  struct stat fresh = {};
  if (fstat(file, &fresh) != 0) return;
  const mode_t ofGroup = fresh.st_gid == old.st_gid ? old.st_mode & S_IRWXG : 0;
  static_cast<void>(fchmod(file, (fresh.st_mode & (S_IRWXU | S_IRWXO)) | ofGroup));
}

bool IsSettled(int file) {
  int done = fsync(file);
  while (done != 0 && errno == EINTR) done = fsync(file);
  return done == 0 || errno == EINVAL;  // a file system that doesn't support it
}

}  // namespace

bool SettleFile(const std::filesystem::path& fresh, const std::filesystem::path& replaced) {
  const int file = open(fresh.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
  if (file < 0) return false;
  struct stat old = {};
  if (stat(replaced.c_str(), &old) == 0) TakeOwner(file, old);
  const bool settled = IsSettled(file);
  const int reason = errno;
  close(file);
  errno = reason;
  return settled;
}

}  // namespace tarvis
