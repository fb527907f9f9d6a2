// Names of files on POSIX systems, where a slash separates folders.
#include <algorithm>
#include <string>

#include "platform/base/file_names.h"

namespace tarvis {

namespace fs = std::filesystem;

fs::path FormOfSystem(std::string_view path) {
  std::u8string text(path.begin(), path.end());
  std::ranges::replace(text, u8'\\', u8'/');
  return {text};
}

fs::file_status StatusOf(const fs::path& path, std::error_code& error) {
  return fs::status(path, error);
}

std::vector<fs::path> FilesIn(const fs::path& folder) {
  std::error_code error;
  std::vector<fs::path> files;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    std::error_code ignored;
    if (!fs::is_directory(entry->symlink_status(ignored))) files.push_back(entry->path());
  }
  return files;
}

void RemoveFile(const fs::path& file) {
  std::error_code ignored;
  fs::remove(file, ignored);
}

}  // namespace tarvis
