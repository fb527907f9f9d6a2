// New files that nobody else can open.
#include "platform/files/closed_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/temp_folder.h"

namespace tarvis {
namespace {

TEST(ClosedFile, IsForItsOwnerAloneWhateverNewFilesAreElse) {
  const TempFolder folder;
  const mode_t before = umask(0);
  EXPECT_EQ(MakeClosedFile(folder.Path() / "fresh"), std::error_code());
  umask(before);
  EXPECT_EQ(std::filesystem::status(folder.Path() / "fresh").permissions(), std::filesystem::perms(0600));
}

TEST(ClosedFile, TakesTheNameOfNoOther) {
  const TempFolder folder;
  folder.Write("other", "old");
  std::filesystem::create_symlink("nowhere", folder.Path() / "link");
  EXPECT_EQ(MakeClosedFile(folder.Path() / "other"), std::errc::file_exists);
  EXPECT_EQ(MakeClosedFile(folder.Path() / "link"), std::errc::file_exists);
  EXPECT_EQ(folder.Read("other"), "old");
  EXPECT_FALSE(folder.Has("nowhere"));
}

TEST(ClosedFile, IsNotMadeInAFolderThatIsMissing) {
  const TempFolder folder;
  EXPECT_EQ(MakeClosedFile(folder.Path() / "none" / "fresh"), std::errc::no_such_file_or_directory);
}

}  // namespace
}  // namespace tarvis
