// Replacing a file: the old one stays until the new one is complete.
#include "printfiles/replace_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <string>
#include <system_error>

#include "support/full_disk.h"
#include "support/temp_folder.h"

namespace tarvis {
namespace {

namespace fs = std::filesystem;

constexpr const char* kLeftover = "options.0123456789abcdef.new";

class ReplacedFile : public testing::Test {
 protected:
  // Writes "new" into the file of this name.
  bool Replace(const std::string& name = "options") {
    return ReplaceFile(Folder.Path() / name, "new", [](const fs::path& fresh, const fs::path& old) {
      if (fs::exists(old)) fs::permissions(fresh, fs::perms::group_all, fs::perm_options::add);
      return true;
    });
  }
  // A file that was last written so long ago that nobody writes it any more.
  void Leave(const std::string& name) {
    Folder.Write(name, "cut");
    fs::last_write_time(Folder.Path() / name, fs::file_time_type::clock::now() - std::chrono::seconds(61));
  }
  int FileCount() const {
    return static_cast<int>(std::distance(fs::directory_iterator(Folder.Path()), fs::directory_iterator()));
  }
  fs::perms ModeOf(const std::string& name) const { return fs::status(Folder.Path() / name).permissions(); }

  TempFolder Folder;
};

TEST_F(ReplacedFile, HoldsTheNewBytesAndHasNothingBesideIt) {
  Folder.Write("options", std::string(100000, 'x'));
  EXPECT_TRUE(Replace());
  EXPECT_EQ(Folder.Read("options"), "new");
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(ReplacedFile, NeedNotBeThereBefore) {
  EXPECT_TRUE(Replace());
  EXPECT_EQ(Folder.Read("options"), "new");
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(ReplacedFile, IsTheOldOneUntilTheNewOneIsWhole) {
  Folder.Write("options", "old");
  EXPECT_TRUE(ReplaceFile(Folder.Path() / "options", "new", [&](const fs::path& fresh, const fs::path& old) {
    EXPECT_EQ(old, Folder.Path() / "options");
    EXPECT_EQ(Folder.Read("options"), "old");
    EXPECT_EQ(fresh.parent_path(), Folder.Path()) << "a file of another disk can't take its place at once";
    EXPECT_EQ(Folder.Read(fresh.filename().string()), "new");
    return true;
  }));
}

TEST_F(ReplacedFile, StaysAsItWasWhenTheNewOneMayBeLost) {
  Folder.Write("options", "old");
  EXPECT_FALSE(
      ReplaceFile(Folder.Path() / "options", "new", [](const fs::path&, const fs::path&) { return false; }));
  EXPECT_EQ(Folder.Read("options"), "old");
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(ReplacedFile, StaysAsItWasOnAFullDisk) {
  Folder.Write("options", "old");
  const FullDisk disk;
  EXPECT_FALSE(ReplaceFile(Folder.Path() / "options", std::string(100000, 'x'),
                           [](const fs::path&, const fs::path&) { return true; }));
  EXPECT_EQ(Folder.Read("options"), "old");
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(ReplacedFile, IsNotMadeInAFolderThatIsMissing) {
  EXPECT_FALSE(Replace("no/such/folder/options"));
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

TEST_F(ReplacedFile, MayHaveTheLongestName) {
  const std::string name(255, 'n');
  Folder.Write(name, "old");
  EXPECT_TRUE(Replace(name));
  EXPECT_EQ(Folder.Read(name), "new");
  EXPECT_EQ(FileCount(), 1);
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

TEST_F(ReplacedFile, TakesAwayWhatAProcessLeftThatWasEndedWhileItWrote) {
  Leave(kLeftover);
  EXPECT_TRUE(Replace());
  EXPECT_FALSE(Folder.Has(kLeftover));
}

TEST_F(ReplacedFile, LeavesToAnotherProcessWhatThatIsWriting) {
  Folder.Write(kLeftover, "half of it");
  EXPECT_TRUE(Replace());
  EXPECT_TRUE(Folder.Has(kLeftover));
}

TEST_F(ReplacedFile, TakesAwayFilesWithTheNamesThatItGivesItself) {
  for (const std::string& name : {std::string("options"), std::string(255, 'n')}) {
    std::string given;
    ASSERT_TRUE(ReplaceFile(Folder.Path() / name, "new", [&](const fs::path& fresh, const fs::path&) {
      given = fresh.filename().string();
      return true;
    }));
    Leave(given);
    EXPECT_TRUE(Replace(name));
    EXPECT_FALSE(Folder.Has(given)) << given;
  }
}

TEST_F(ReplacedFile, TakesAwayNothingElse) {
  const auto names = {"options.old", "options.new", "options.0123456789abcdeg.new",
                      "other.0123456789abcdef.new", "options.0123456789abcdef.new.old"};
  for (const char* name : names) Leave(name);
  EXPECT_TRUE(Replace());
  for (const char* name : names) EXPECT_TRUE(Folder.Has(name)) << name;
}

}  // namespace
}  // namespace tarvis
