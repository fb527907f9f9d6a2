// A folder of its own for each test, taken away at its end.
#pragma once

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

namespace tarvis {

class TempFolder {
 public:
  TempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "tarvis-XXXXXX").string();
    path_ = mkdtemp(pattern.data());
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  // As the system forms folders: with backslashes, the last one included.
  std::string SystemPath() const {
    std::string path = path_.string() + "/";
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
  }
  // The name of a file in it, as the system forms paths: with a backslash before it.
  std::string HostPath(std::string_view name = {}) const { return path_.string() + "\\" + std::string(name); }
  // Makes the folders that the name asks for.
  void Write(std::string_view name, std::string_view bytes) const {
    const std::filesystem::path file = path_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
  }
  std::string Read(std::string_view name) const {
    std::ostringstream bytes;
    bytes << std::ifstream(path_ / name, std::ios::binary).rdbuf();
    return bytes.str();
  }
  bool Has(std::string_view name) const { return std::filesystem::exists(path_ / name); }

 private:
  std::filesystem::path path_;
};

}  // namespace tarvis
