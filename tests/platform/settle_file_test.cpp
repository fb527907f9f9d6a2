// A file's bytes reach the disk before it takes its place.
#include "platform/files/settle_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/temp_folder.h"

namespace tarvis {
namespace {

constexpr unsigned kOtherOwner = 12345;

class SettledFile : public testing::Test {
 protected:
  std::filesystem::path Path(const char* name) const { return Folder.Path() / name; }
  unsigned OwnerOf(const char* name) const {
    struct stat status = {};
    EXPECT_EQ(stat(Path(name).c_str(), &status), 0);
    return status.st_uid;
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
