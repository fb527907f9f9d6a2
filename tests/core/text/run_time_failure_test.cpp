#include "text/run_time_failure.h"

#include <gtest/gtest.h>

namespace tarvis {
namespace {

TEST(RunTimeFailure, NamesFileLineKeyAndText) {
  const RunTimeFailure failure("not a whole number",
                               {.File = "Trace.tmp", .Line = 17, .Key = "CursolSelect", .Text = "x"});
  EXPECT_STREQ(failure.what(), "Trace.tmp:17: CursolSelect: not a whole number: 'x'");
}

TEST(RunTimeFailure, KeepsWhatIsKnownWhenThePlaceIsAdded) {
  const RunTimeFailure failure("not a whole number", {.File = {}, .Line = 0, .Key = {}, .Text = "x"});
  const RunTimeFailure placed = failure.At({.File = "User.tmp", .Line = 3, .Key = "UserNum", .Text = "y"});
  EXPECT_STREQ(placed.what(), "User.tmp:3: UserNum: not a whole number: 'x'");
}

}  // namespace
}  // namespace tarvis
