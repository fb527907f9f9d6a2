// Reading a host's file where there are pipes and devices.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "printfiles/host_files.h"
#include "support/test_run.h"

namespace tarvis {
namespace {

TEST(LoadLines, FailsOnAPipeAndOnADeviceAndNobodyWaits) {
  const TempFolder folder;
  ASSERT_EQ(mkfifo((folder.Path() / "User.tmp").c_str(), 0600), 0);
  std::filesystem::create_symlink("/dev/zero", folder.Path() / "Trace.tmp");
  TestRun test;
  for (const std::string name : {"User.tmp", "Trace.tmp"}) {
    EXPECT_EQ(LoadLines(test.Run, folder.HostPath(name)), -1);
    EXPECT_EQ(test.Run.Session.Diagnosis, name + ": can't be read");
  }
}

}  // namespace
}  // namespace tarvis
