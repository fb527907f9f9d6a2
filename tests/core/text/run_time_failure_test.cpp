#include "text/run_time_failure.h"

#include <gtest/gtest.h>

namespace tarvis {
namespace {

TEST(RunTimeFailure, NamesFileLineKeyAndText) {
  const RunTimeFailure failure("not a whole number",
                               {.File = "Trace.tmp", .Line = 17, .Key = "CursolSelect", .Text = "x"});
  EXPECT_STREQ(failure.what(), "Trace.tmp:17: CursolSelect: not a whole number: 'x'");
}

TEST(RunTimeFailure, NamesTheElementOfAListAndATextThatIsEmpty) {
  const RunTimeFailure failure(
      "not a number", {.File = "Sim.tmp", .Line = 3, .Key = "PatternSetting", .Element = 4, .Text = ""});
  EXPECT_STREQ(failure.what(), "Sim.tmp:3: PatternSetting: element 4: not a number: ''");
}

TEST(RunTimeFailure, OfALineNamesItsKeyWhateverTheThrowerNamed) {
  const RunTimeFailure failure("subscript out of range",
                               {.File = {}, .Line = 0, .Key = "UserData.Prm", .Text = "3"});
  const RunTimeFailure placed = failure.AtKey({.File = "User.tmp", .Line = 5, .Key = "UserValue"});
  EXPECT_STREQ(placed.what(), "User.tmp:5: UserValue: subscript out of range: '3'");
}

TEST(RunTimeFailure, KeepsWhatIsKnownWhenThePlaceIsAdded) {
  const RunTimeFailure failure("not a whole number", {.File = {}, .Line = 0, .Key = {}, .Text = "x"});
  const RunTimeFailure placed = failure.At({.File = "User.tmp", .Line = 3, .Key = "UserNum", .Text = "y"});
  EXPECT_STREQ(placed.what(), "User.tmp:3: UserNum: not a whole number: 'x'");
}

}  // namespace
}  // namespace tarvis
