// The last part of a path.
#include "text/file_name.h"

#include <gtest/gtest.h>

namespace tarvis {
namespace {

TEST(FileName, IsWhatFollowsTheLastSeparatorOfEitherSystem) {
  EXPECT_EQ(FileNameOf("C:\\data\\Trace.tmp"), "Trace.tmp");
  EXPECT_EQ(FileNameOf("/data/Trace.tmp"), "Trace.tmp");
  EXPECT_EQ(FileNameOf("/data\\logos/logo.bmp"), "logo.bmp");
  EXPECT_EQ(FileNameOf("C:\\data/logos\\logo.bmp"), "logo.bmp");
}

TEST(FileName, IsAllOfAPathWithoutFolders) {
  EXPECT_EQ(FileNameOf("Trace.tmp"), "Trace.tmp");
  EXPECT_EQ(FileNameOf(""), "");
}

TEST(FileName, IsEmptyForAFolder) {
  EXPECT_EQ(FileNameOf("C:\\data\\"), "");
}

}  // namespace
}  // namespace tarvis
