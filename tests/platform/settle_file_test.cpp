// A file's bytes reach the disk before it takes its place.
#include "platform/files/settle_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/temp_folder.h"

namespace tarvis {
namespace {

constexpr unsigned kOtherOwner = 12345;
constexpr unsigned kThisOwner = 23456;

class SettledFile : public testing::Test {
 protected:
  std::filesystem::path Path(const char* name) const { return Folder.Path() / name; }
  unsigned OwnerOf(const char* name) const {
    struct stat status = {};
    EXPECT_EQ(stat(Path(name).c_str(), &status), 0);
    return status.st_uid;
  }
  unsigned ModeOf(const char* name) const {
    struct stat status = {};
    EXPECT_EQ(stat(Path(name).c_str(), &status), 0);
    return status.st_mode & 0777U;
  }

  TempFolder Folder;
};

TEST_F(SettledFile, GetsTheOwnerOfTheFileThatItReplaces) {
  Folder.Write("old", "");
  Folder.Write("fresh", "");
  // Only the system's own user may give files away, and anyone else has only files of his own.
  const bool mayGiveAway = chown(Path("old").c_str(), kOtherOwner, kOtherOwner) == 0;
  EXPECT_TRUE(SettleFile(Path("fresh"), Path("old")));
  EXPECT_EQ(OwnerOf("fresh"), mayGiveAway ? kOtherOwner : geteuid());
}

TEST_F(SettledFile, GivesItsGroupTheRightsThatItHad) {
  Folder.Write("old", "");
  Folder.Write("fresh", "");
  chmod(Path("old").c_str(), 0664);
  chmod(Path("fresh").c_str(), 0600);
  EXPECT_TRUE(SettleFile(Path("fresh"), Path("old")));
  EXPECT_EQ(ModeOf("fresh"), 0660U);
}

TEST_F(SettledFile, GivesAnotherGroupNoRights) {
  Folder.Write("old", "");
  Folder.Write("fresh", "");
  chmod(Path("old").c_str(), 0664);
  chmod(Path("fresh").c_str(), 0600);
  // The system's own user may become one who may not give the file to the group of the old one.
  const bool mayBecomeAnother = chown(Path("old").c_str(), kOtherOwner, kOtherOwner) == 0;
  if (mayBecomeAnother) {
    ASSERT_EQ(chmod(Folder.Path().c_str(), 0755), 0);
    ASSERT_EQ(chown(Path("fresh").c_str(), kThisOwner, kThisOwner), 0);
    ASSERT_EQ(seteuid(kThisOwner), 0);
  }
  EXPECT_TRUE(SettleFile(Path("fresh"), Path("old")));
  ASSERT_EQ(seteuid(getuid()), 0);
  EXPECT_EQ(ModeOf("fresh"), mayBecomeAnother ? 0600U : 0660U);
}

TEST_F(SettledFile, KeepsItsOwnerWhereItReplacesNone) {
  Folder.Write("fresh", "");
  EXPECT_TRUE(SettleFile(Path("fresh"), Path("none")));
  EXPECT_EQ(OwnerOf("fresh"), geteuid());
}

TEST_F(SettledFile, IsLostIfItIsGone) {
  EXPECT_FALSE(SettleFile(Path("none"), Path("old")));
}

}  // namespace
}  // namespace tarvis
