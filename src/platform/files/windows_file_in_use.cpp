// Files that the host or a virus scanner has open for a moment, and those that a viewer keeps open.
#include <windows.h>

#include "platform/files/file_in_use.h"
#include "platform/files/windows_file_use.h"

namespace tarvis {
namespace {

constexpr ULONGLONG Patience = 2000;  // milliseconds
constexpr DWORD Pause = 20;

bool IsInUse(const std::filesystem::path& path, DWORD access) {
  const HANDLE file =
      CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return GetLastError() == ERROR_SHARING_VIOLATION;
  CloseHandle(file);
  return false;
}

}  // namespace

bool WaitUntilFree(const std::filesystem::path& path, unsigned long access) {
  const ULONGLONG end = GetTickCount64() + Patience;
  while (IsInUse(path, access)) {
    if (GetTickCount64() >= end) return false;
    Sleep(Pause);
  }
  return true;
}

bool WaitUntilReadable(const std::filesystem::path& path) {
  return WaitUntilFree(path, GENERIC_READ);
}

std::string ReasonOf(const std::error_code& error) {
  return error == std::errc::text_file_busy ? "it is in use by another program" : error.message();
}

}  // namespace tarvis
