// Safe writing of files on Windows.
#include <windows.h>

#include <cerrno>
#include <system_error>

#include "platform/files/settle_file.h"

namespace tarvis {
namespace {

// The reason of the last call that failed, as the standard library numbers them.
int LastReason() {
  const std::error_code error(static_cast<int>(GetLastError()), std::system_category());
  const std::error_condition reason = error.default_error_condition();
  return reason.category() == std::generic_category() ? reason.value() : EIO;
}

}  // namespace

// A new file gets its owner and its rights from the folder.
bool SettleFile(const std::filesystem::path& fresh, const std::filesystem::path& /*replaced*/) {
  const HANDLE file = CreateFileW(fresh.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    errno = LastReason();
    return false;
  }
  const bool settled = FlushFileBuffers(file) != 0;
  if (!settled) errno = LastReason();
  CloseHandle(file);
  return settled;
}

}  // namespace tarvis
