// A folder with files that are replaced, for all tests of that.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <iterator>
#include <string>

#include "printfiles/replace_file.h"
#include "support/temp_folder.h"

namespace tarvis {

class ReplacedFile : public testing::Test {
 protected:
  // Writes "new" into the file of this name.
  bool Replace(const std::string& name = "options") {
    return ReplaceFile(Folder.Path() / name, "new",
                       [](const std::filesystem::path& fresh, const std::filesystem::path& old) {
                         if (std::filesystem::exists(old))
                           std::filesystem::permissions(fresh, std::filesystem::perms::group_all,
                                                        std::filesystem::perm_options::add);
                         return true;
                       });
  }
  // A file that was last written so long ago that nobody writes it any more.
  void Leave(const std::string& name) {
    Folder.Write(name, "cut");
    std::filesystem::last_write_time(
        Folder.Path() / name, std::filesystem::file_time_type::clock::now() - std::chrono::seconds(61));
  }
  int FileCount() const {
    return static_cast<int>(std::distance(std::filesystem::directory_iterator(Folder.Path()),
                                          std::filesystem::directory_iterator()));
  }
  std::filesystem::perms ModeOf(const std::string& name) const {
    return std::filesystem::status(Folder.Path() / name).permissions();
  }

  TempFolder Folder;
};

}  // namespace tarvis
