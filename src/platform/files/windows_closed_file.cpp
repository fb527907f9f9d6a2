// Files that nobody else can open, on Windows.
#include <windows.h>

#include "platform/files/closed_file.h"

namespace tarvis {

std::error_code MakeClosedFile(const std::filesystem::path& path) {
  const HANDLE file =
      CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return {static_cast<int>(GetLastError()), std::system_category()};
  CloseHandle(file);
  return {};
}

}  // namespace tarvis
