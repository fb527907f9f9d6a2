// Names of files on Windows. The runtime library's functions refuse long ones, so none of them is used here.
#include <windows.h>

#include <algorithm>
#include <array>
#include <string>

#include "platform/base/file_names.h"

namespace tarvis {
namespace {

namespace fs = std::filesystem;

// Longer names are taken only in a form of their own. A folder needs room for the short name of a file.
constexpr std::size_t LongestOrdinary = MAX_PATH - 12 - 1;

constexpr std::wstring_view LongStart = LR"(\\?\)";
constexpr std::wstring_view LongServerStart = LR"(\\?\UNC\)";
constexpr std::wstring_view ServerStart = LR"(\\)";

// What the system says of a name that nothing has.
constexpr std::array<DWORD, 6> Missing = {ERROR_FILE_NOT_FOUND, ERROR_PATH_NOT_FOUND, ERROR_INVALID_NAME,
                                          ERROR_BAD_PATHNAME,   ERROR_BAD_NETPATH,    ERROR_BAD_NET_NAME};

// In the form for long names, the system takes a name as it is; so it is made a whole one before.
std::wstring WholeName(const std::wstring& name) {
  std::wstring whole(GetFullPathNameW(name.c_str(), 0, nullptr, nullptr), L'\0');
  whole.resize(GetFullPathNameW(name.c_str(), static_cast<DWORD>(whole.size()), whole.data(), nullptr));
  return whole;
}

fs::file_type TypeOf(HANDLE file) {
  if (GetFileType(file) != FILE_TYPE_DISK) return fs::file_type::character;
  BY_HANDLE_FILE_INFORMATION information;
  if (GetFileInformationByHandle(file, &information) == FALSE) return fs::file_type::unknown;
  const bool isFolder = (information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  return isFolder ? fs::file_type::directory : fs::file_type::regular;
}

}  // namespace

fs::path FormOfSystem(std::string_view path) {
  const fs::path name(std::u8string(path.begin(), path.end()));
  if (name.native().size() < LongestOrdinary || name.native().starts_with(LongStart)) return name;
  const std::wstring whole = WholeName(name.native());
  if (whole.starts_with(ServerStart)) return std::wstring(LongServerStart) + whole.substr(ServerStart.size());
  return std::wstring(LongStart) + whole;
}

// Nobody who has a file open keeps others from looking at it.
fs::file_status StatusOf(const fs::path& path, std::error_code& error) {
  error.clear();
  const HANDLE file = CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                  nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    const DWORD reason = GetLastError();
    error = {static_cast<int>(reason), std::system_category()};
    const bool isMissing = std::ranges::find(Missing, reason) != Missing.end();
    return fs::file_status(isMissing ? fs::file_type::not_found : fs::file_type::none);
  }
  const fs::file_status status(TypeOf(file));
  CloseHandle(file);
  return status;
}

std::vector<fs::path> FilesIn(const fs::path& folder) {
  std::vector<fs::path> files;
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW((folder / L"*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return files;
  do {
    const bool isFolder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (!isFolder) files.push_back(folder / found.cFileName);
  } while (FindNextFileW(search, &found) != FALSE);
  FindClose(search);
  return files;
}

void RemoveFile(const fs::path& file) {
  DeleteFileW(file.c_str());
}

}  // namespace tarvis
