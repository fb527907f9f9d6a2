// Replacing a file: the old one stays until the new one is complete.
#include "printfiles/replace_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "core/printfiles/replaced_file.h"

namespace tarvis {
namespace {

namespace fs = std::filesystem;

constexpr const char* kLeftover = "options.0123456789abcdef.new";

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

TEST_F(ReplacedFile, IsNotMadeInAFolderThatIsMissing) {
  EXPECT_FALSE(Replace("no/such/folder/options"));
}

TEST_F(ReplacedFile, MayHaveTheLongestName) {
  const std::string name(255, 'n');
  Folder.Write(name, "old");
  EXPECT_TRUE(Replace(name));
  EXPECT_EQ(Folder.Read(name), "new");
  EXPECT_EQ(FileCount(), 1);
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

TEST_F(ReplacedFile, IsWrittenUnderANameThatHasNoHalfCharacter) {
  std::u8string name = u8"n";
  while (name.size() < 250) name += u8"\u00E4\u8868";
  std::u8string given;
  ASSERT_TRUE(ReplaceFile(Folder.Path() / name, "new", [&](const fs::path& fresh, const fs::path&) {
    given = fresh.filename().u8string();
    return true;
  }));
  const std::u8string start = given.substr(0, given.find(u8'.'));
  EXPECT_TRUE(name.starts_with(start));
  EXPECT_EQ(start.size(), 198U) << "whole characters of 200 bytes";
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
