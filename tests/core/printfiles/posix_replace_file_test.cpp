// Replacing a file where there are modes, links, pipes, devices and limits of size.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <system_error>

#include "core/printfiles/replaced_file.h"
#include "support/full_disk.h"

namespace tarvis {
namespace {

namespace fs = std::filesystem;

TEST_F(ReplacedFile, StaysAsItWasOnAFullDisk) {
  Folder.Write("options", "old");
  const FullDisk disk;
  EXPECT_FALSE(ReplaceFile(Folder.Path() / "options", std::string(100000, 'x'),
                           [](const fs::path&, const fs::path&) { return true; }));
  EXPECT_EQ(Folder.Read("options"), "old");
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(ReplacedFile, KeepsItsMode) {
  for (const unsigned mode : {0600U, 0640U, 0444U, 0666U}) {
    Folder.Write("options", "old");
    fs::permissions(Folder.Path() / "options", fs::perms(mode));
    EXPECT_TRUE(Replace());
    EXPECT_EQ(ModeOf("options"), fs::perms(mode));
    EXPECT_EQ(Folder.Read("options"), "new");
    fs::remove(Folder.Path() / "options");
  }
}

TEST_F(ReplacedFile, GivesItsGroupNoRightsThatSettlingHasNotGiven) {
  Folder.Write("options", "old");
  fs::permissions(Folder.Path() / "options", fs::perms(0664));
  EXPECT_TRUE(ReplaceFile(Folder.Path() / "options", "new", [](const fs::path& fresh, const fs::path&) {
    fs::permissions(fresh, fs::perms::group_read, fs::perm_options::add);
    return true;
  }));
  EXPECT_EQ(ModeOf("options"), fs::perms(0644));
}

TEST_F(ReplacedFile, SaysWhyItIsTheOldOne) {
  Folder.Write("options", "old");
  std::error_code error;
  const auto settle = [](const fs::path&, const fs::path&) { return true; };
  {
    const FullDisk disk;
    EXPECT_FALSE(ReplaceFile(Folder.Path() / "options", std::string(100000, 'x'), settle, error));
  }
  EXPECT_EQ(error, std::errc::file_too_large);
  EXPECT_FALSE(ReplaceFile(Folder.Path() / "none/options", "new", settle, error));
  EXPECT_EQ(error, std::errc::no_such_file_or_directory);
  EXPECT_TRUE(ReplaceFile(Folder.Path() / "options", "new", settle, error));
  EXPECT_FALSE(error);
}

TEST_F(ReplacedFile, IsClosedToOthersWhileItIsWritten) {
  Folder.Write("options", "old");
  fs::permissions(Folder.Path() / "options", fs::perms(0600));
  EXPECT_TRUE(ReplaceFile(Folder.Path() / "options", "new", [](const fs::path& fresh, const fs::path&) {
    EXPECT_EQ(fs::status(fresh).permissions(), fs::perms(0600));
    return true;
  }));
}

TEST_F(ReplacedFile, HasTheModeOfAnyNewFileWhereNoneWas) {
  Folder.Write("any", "");
  EXPECT_TRUE(Replace());
  EXPECT_EQ(ModeOf("options"), ModeOf("any"));
}

TEST_F(ReplacedFile, IsTheTargetOfALinkAndTheLinkStays) {
  Folder.Write("elsewhere/real", "old");
  fs::create_symlink("elsewhere/real", Folder.Path() / "options");
  EXPECT_TRUE(Replace());
  EXPECT_EQ(Folder.Read("elsewhere/real"), "new");
  EXPECT_TRUE(fs::is_symlink(Folder.Path() / "options"));
  EXPECT_EQ(FileCount(), 2);
}

TEST_F(ReplacedFile, IsNotMadeThroughALinkToNowhere) {
  fs::create_symlink(Folder.Path() / "missing", Folder.Path() / "options");
  EXPECT_FALSE(Replace());
  EXPECT_FALSE(Folder.Has("missing"));
  EXPECT_TRUE(fs::is_symlink(Folder.Path() / "options"));
}

TEST_F(ReplacedFile, IsNotMadeThroughLinksThatFormACircle) {
  fs::create_symlink("options", Folder.Path() / "options");
  EXPECT_FALSE(Replace());
}

TEST_F(ReplacedFile, IsRefusedWhereAPipeIsAndNobodyWaits) {
  ASSERT_EQ(mkfifo((Folder.Path() / "options").c_str(), 0600), 0);
  fs::create_symlink("options", Folder.Path() / "link");
  EXPECT_FALSE(Replace());
  EXPECT_FALSE(Replace("link"));
  EXPECT_TRUE(fs::is_fifo(Folder.Path() / "options"));
}

TEST_F(ReplacedFile, IsRefusedWhereADeviceOrAFolderIs) {
  fs::create_symlink("/dev/null", Folder.Path() / "options");
  fs::create_directory(Folder.Path() / "folder");
  EXPECT_FALSE(Replace());
  EXPECT_FALSE(Replace("folder"));
  EXPECT_TRUE(fs::is_directory(Folder.Path() / "folder"));
}

}  // namespace
}  // namespace tarvis
