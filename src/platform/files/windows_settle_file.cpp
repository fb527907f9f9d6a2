// Safe writing of files on Windows.
#include <windows.h>

#include "platform/files/settle_file.h"

namespace tarvis {

// A new file gets its owner and its rights from the folder.
bool SettleFile(const std::filesystem::path& fresh, const std::filesystem::path& /*replaced*/) {
  const HANDLE file = CreateFileW(fresh.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  const bool settled = FlushFileBuffers(file) != 0;
  CloseHandle(file);
  return settled;
}

}  // namespace tarvis
