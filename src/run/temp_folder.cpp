#include "run/temp_folder.h"

#include <algorithm>
#include <filesystem>
#include <string>

#include "platform/base/file_names.h"
#include "text/native_path.h"

namespace tarvis {
namespace {

char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool EndsIn(const std::filesystem::path& path, std::string_view ending) {
  const std::u8string name = path.filename().u8string();
  if (name.size() < ending.size()) return false;
  return std::equal(
      ending.begin(), ending.end(), name.end() - static_cast<std::ptrdiff_t>(ending.size()),
      [](char wanted, char8_t found) { return Lower(wanted) == Lower(static_cast<char>(found)); });
}

}  // namespace

void DeleteFiles(std::string_view folder, std::string_view ending) {
  if (folder.empty()) return;
  // Errors are dropped throughout: the process ends next, and nobody could act on them.
  for (const std::filesystem::path& file : FilesIn(NativePath(folder))) {
    if (EndsIn(file, ending)) RemoveFile(file);
  }
}

}  // namespace tarvis
