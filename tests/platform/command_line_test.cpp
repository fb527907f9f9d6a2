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

TEST(ArgumentsOfALine, FollowANameUpToABlankOrATab) {
  EXPECT_EQ(ArgumentsOf(R"(C:\Host\bin\tarvis.exe User help.chm 1 1)"), "User help.chm 1 1");
  EXPECT_EQ(ArgumentsOf("tarvis.exe\tUser \t7"), "User \t7");
  EXPECT_EQ(ArgumentsOf("tarvis.exe  User"), " User");
}

TEST(ArgumentsOfALine, FollowANameInQuotationMarksThatHoldsBlanks) {
  EXPECT_EQ(ArgumentsOf(R"("C:\Program Files\tarvis.exe" User "help.chm")"), R"( User "help.chm")");
  EXPECT_EQ(ArgumentsOf(R"("tarvis.exe"User)"), "User");
}

TEST(ArgumentsOfALine, AreEmptyWhereNothingFollows) {
  for (const char* line : {"", "tarvis.exe", "\"tarvis.exe\"", "\"tarvis.exe", "tarvis.exe "})
    EXPECT_EQ(ArgumentsOf(line), "") << line;
}

}  // namespace
}  // namespace tarvis
