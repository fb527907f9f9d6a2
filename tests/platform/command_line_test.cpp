// The command line as one text.
#include "platform/command_line.h"

#include <gtest/gtest.h>

namespace tarvis {
namespace {

TEST(CommandLine, IsWhatFollowsTheProgramsNameJoinedWithBlanks) {
  char name[] = "tarvis", mode[] = "User", help[] = "my help.html", context[] = "-style";
  char* const argv[] = {name, mode, help, context, nullptr};
  EXPECT_EQ(CommandLineText(4, argv), "User my help.html -style");
}

TEST(CommandLine, IsEmptyWithoutArguments) {
  char name[] = "tarvis";
  char* const argv[] = {name, nullptr};
  EXPECT_EQ(CommandLineText(1, argv), "");
}

}  // namespace
}  // namespace tarvis
