// Safe writing of files on Windows.
#include <windows.h>

#include <cerrno>
#include <system_error>

#include "platform/files/settle_file.h"
#include "platform/files/windows_file_use.h"

namespace tarvis {
namespace {

// The reason of the last call that failed, as the standard library numbers them.
int LastReason() {
  const std::error_code error(static_cast<int>(GetLastError()), std::system_category());
  const std::error_condition reason = error.default_error_condition();
  return reason.category() == std::generic_category() ? reason.value() : EIO;
}

// The bytes of a file go to the disk.
bool Flush(const std::filesystem::path& fresh) {
  const HANDLE file = CreateFileW(fresh.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    errno = LastReason();
    return false;
  }
  const bool flushed = FlushFileBuffers(file) != 0;
  if (!flushed) errno = LastReason();
  CloseHandle(file);
  return flushed;
}

}  // namespace

// A new file gets its owner and its rights from the folder. A file that is open is not replaced.
bool SettleFile(const std::filesystem::path& fresh, const std::filesystem::path& replaced) {
  if (!Flush(fresh)) return false;
  if (WaitUntilFree(replaced, DELETE)) return true;
  errno = ETXTBSY;
  return false;
}

}  // namespace tarvis
