// The message of a run-time failure: file, line, key and text.
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

TEST(RunTimeFailure, NamesTheKeyOfItsLineWhateverTheThrowerNamed) {
  const RunTimeFailure failure("subscript out of range",
                               {.File = {}, .Line = 0, .Key = "UserData.Prm", .Text = "3"});
  const RunTimeFailure placed = failure.AtKey({.File = "User.tmp", .Line = 5, .Key = "UserValue"});
  EXPECT_STREQ(placed.what(), "User.tmp:5: UserValue: subscript out of range: '3'");
}

TEST(RunTimeFailure, LeavesOutWhatIsNotKnown) {
  EXPECT_STREQ(RunTimeFailure("reason").what(), "reason");
  EXPECT_STREQ(RunTimeFailure("reason", {.File = "a", .Line = 0, .Key = {}, .Text = {}}).what(), "a: reason");
  EXPECT_STREQ(RunTimeFailure("reason", {.File = "a", .Line = 1, .Key = {}, .Text = {}}).what(),
               "a:1: reason");
  EXPECT_STREQ(RunTimeFailure("reason", {.File = {}, .Line = 0, .Key = "k", .Text = {}}).what(), "k: reason");
  EXPECT_STREQ(RunTimeFailure("reason", {.File = {}, .Line = 0, .Key = {}, .Text = "t"}).what(),
               "reason: 't'");
}

TEST(RunTimeFailure, MembersAlreadySetStayWhenThePlaceIsAdded) {
  const FailurePlace first{.File = "a", .Line = 1, .Key = "k", .Text = "t"};
  const FailurePlace second{.File = "b", .Line = 2, .Key = "l", .Text = "u"};
  EXPECT_STREQ(RunTimeFailure("reason", first).At(second).what(), "a:1: k: reason: 't'");
  EXPECT_STREQ(RunTimeFailure("reason").At(second).what(), "b:2: l: reason: 'u'");
  EXPECT_EQ(RunTimeFailure("reason").At(second).At(first).Place().Line, 2);
  EXPECT_EQ(RunTimeFailure("reason", first).At(second).Reason(), "reason");
}

TEST(RunTimeFailure, KeepsWhatIsKnownWhenThePlaceIsAdded) {
  const RunTimeFailure failure("not a whole number", {.File = {}, .Line = 0, .Key = {}, .Text = "x"});
  const RunTimeFailure placed = failure.At({.File = "User.tmp", .Line = 3, .Key = "UserNum", .Text = "y"});
  EXPECT_STREQ(placed.what(), "User.tmp:3: UserNum: not a whole number: 'x'");
}

}  // namespace
}  // namespace tarvis
