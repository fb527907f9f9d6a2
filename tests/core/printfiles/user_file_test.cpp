// The reader of User.tmp: parameters, switches and comment.
#include "printfiles/user_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/support/reader_run.h"
#include "printfiles/host_files.h"

namespace tarvis {
namespace {

using Lines = std::vector<std::string>;

class UserFile : public ReaderRun {
 protected:
  UserFile() : ReaderRun({"User.tmp", ReadUserFile, {}}) {}
};

TEST_F(UserFile, FillsHeaderParametersSwitchesAndComment) {
  ASSERT_TRUE(Read({"File-Spec,3", "FileType,User, list", "Made-by,Host Ver1.00",
                    "DateTime,2026/03/05 17:04:09", "MechaInfo,Servo A, Motor B", "File,axis 1, left.usr",
                    "UserNum,2", "UserName,001,Gain, speed loop", "UserValue,40,50,Hz", "UserName,002,Filter",
                    "UserValue,1.5,2.5,ms", "SwitchNum,1", "Switch,003,1001,0001,Mode, basic",
                    "Switch0,0,1,1,1,Direction\\r\\n1:Reverse", "Switch1,1,1,0,0,B", "Switch2,2,1,0,0,C",
                    "Switch3,3,1,1,0,D, with comma", "CommentCnt,2", "Comment,one, two\\r\\nthree"}));
  EXPECT_EQ(Run.Header.FileSpec, 3);
  EXPECT_EQ(Run.Header.FileType, "User, list");
  EXPECT_EQ(Run.Header.MadeBy, "Host Ver1.00");
  EXPECT_EQ(Run.Header.DateTime, "2026/03/05 17:04:09");
  EXPECT_EQ(Run.Header.MechaInfo, "Servo A, Motor B");
  EXPECT_EQ(Run.Header.File, "axis 1, left.usr");
  EXPECT_EQ(Run.User.UserNum, 2);
  EXPECT_EQ(Run.User.Prm.HighestIndex(), 2);
  EXPECT_EQ(Run.User.Prm[0].No, "001");
  EXPECT_EQ(Run.User.Prm[0].Name, "Gain, speed loop");
  EXPECT_EQ(Run.User.Prm[0].Value, "40");
  EXPECT_EQ(Run.User.Prm[0].Default, "50");
  EXPECT_EQ(Run.User.Prm[0].Unit, "Hz");
  EXPECT_EQ(Run.User.Prm[1].Name, "Filter");
  EXPECT_EQ(Run.User.Prm[1].Unit, "ms");
  EXPECT_EQ(Run.User.SwitchNum, 1);
  const UserSwitch& row = Run.User.Switches[0];
  EXPECT_EQ(row.No, "003");
  EXPECT_EQ(row.Value, "1001");
  EXPECT_EQ(row.Default, "0001");
  EXPECT_EQ(row.Name, "Mode, basic");
  EXPECT_EQ(row.Digit[0].First, "0");
  EXPECT_EQ(row.Digit[0].Count, "1");
  EXPECT_EQ(row.Digit[0].Value, "1");
  EXPECT_EQ(row.Digit[0].Default, "1");
  EXPECT_EQ(row.Digit[0].Text, "Direction\r\n1:Reverse");
  EXPECT_EQ(row.Digit[1].Text, "B");
  EXPECT_EQ(row.Digit[2].Text, "C");
  EXPECT_EQ(row.Digit[3].Text, "D, with comma");
  EXPECT_EQ(Run.User.CommentCnt, 2);
  EXPECT_EQ(Run.User.Comment, "one, two\r\nthree");
}

TEST_F(UserFile, KnowsEachKeyInItsOwnSpellingOnly) {
  const HostFile userFile = {"User.tmp", ReadUserFile, {}};
  ExpectHeaderLines(*this, userFile);
  ExpectParameterBlock(*this, userFile);
}

TEST_F(UserFile, IsRefusedAtOnceBelowFileSpec3) {
  EXPECT_EQ(Refused({"File-Spec,2", "unknown"}), "User.tmp:1: File-Spec: below 3");
  EXPECT_EQ(Refused({"File-Spec,-1"}), "User.tmp:1: File-Spec: below 3");
  EXPECT_TRUE(Read({"File-Spec,3"}));
  EXPECT_TRUE(Read({"File-Spec,4"}));
  EXPECT_TRUE(Read({"File-Spec,2.5000001"})) << "rounds to 3";
}

TEST_F(UserFile, PassesWithoutFileSpec) {
  EXPECT_TRUE(Read({"UserNum,0"}));
}

TEST_F(UserFile, RefusesKeysThatItDoesNotKnow) {
  EXPECT_EQ(Refused({"File-Spec,3", "Colour,1"}), "User.tmp:2: unknown key 'Colour'");
  EXPECT_EQ(Refused({"usernum,1"}), "User.tmp:1: unknown key 'usernum'");
  EXPECT_EQ(Refused({" Comment,x"}), "User.tmp:1: unknown key ' Comment'");
  EXPECT_EQ(Refused({"Comment ,x"}), "User.tmp:1: unknown key 'Comment '");
  EXPECT_EQ(Refused({"File-Spec,3", ""}), "User.tmp:2: unknown key ''");
  EXPECT_EQ(Refused({std::string("Comment\0,x", 10)}), "User.tmp:1: unknown key 'Comment\\x00'");
  EXPECT_EQ(Refused({"GetDataDate,2026"}), "User.tmp:1: unknown key 'GetDataDate'");
}

TEST_F(UserFile, RefusesAFinalEmptyLineButNotAMissingLineEnd) {
  LoadBytes(Run, "User.tmp", "UserNum,0\r\n\r\n");
  EXPECT_FALSE(ReadUserFile(Run));
  LoadBytes(Run, "User.tmp", "UserNum,0\r\nComment,end");
  EXPECT_TRUE(ReadUserFile(Run));
  EXPECT_EQ(Run.User.Comment, "end");
}

TEST_F(UserFile, EmptyIsReadAndLeavesTheRecordsAlone) {
  ASSERT_TRUE(Read({"MechaInfo,old", "UserNum,1", "Comment,old"}));
  ASSERT_TRUE(Read({}));
  EXPECT_EQ(Run.Header.MechaInfo, "old");
  EXPECT_EQ(Run.User.UserNum, 1);
  EXPECT_EQ(Run.User.Comment, "old");
}

TEST_F(UserFile, IsAcceptedWithAnotherTypeIfItsKeysAreKnown) {
  EXPECT_TRUE(Read({"FileType,something else", "Made-by,", "UserNum,0"}));
}

TEST_F(UserFile, KeyWithoutCommaHasAnEmptyValue) {
  ASSERT_TRUE(Read({"Comment,old", "Comment", "FileType"}));
  EXPECT_EQ(Run.User.Comment, "");
}

TEST_F(UserFile, RefusesLinesBeforeTheirCount) {
  EXPECT_EQ(Refused({"UserName,1,a"}), "User.tmp:1: UserName: comes before 'UserNum'");
  EXPECT_EQ(Refused({"UserNum,1", "Switch,1,2,3,a"}), "User.tmp:2: Switch: comes before 'SwitchNum'");
}

TEST_F(UserFile, RefusesMoreLinesThanItsCountAnnounces) {
  EXPECT_EQ(Refused({"UserNum,1", "UserName,1,a", "UserValue,1,2,u", "UserName,2,b"}),
            "User.tmp:4: UserName: one more than 'UserNum' announces");
  EXPECT_EQ(Refused({"SwitchNum,1", "Switch,1,2,3,a", "Switch3,,,,", "Switch,2,2,3,b"}),
            "User.tmp:4: Switch: one more than 'SwitchNum' announces");
  EXPECT_EQ(Refused({"UserNum,0", "UserName,1,a"}),
            "User.tmp:2: UserName: one more than 'UserNum' announces");
  EXPECT_EQ(Refused({"SwitchNum,0", "Switch,1,1,1,a"}),
            "User.tmp:2: Switch: one more than 'SwitchNum' announces");
}

TEST_F(UserFile, HasOnlyTheSpareElementWithCountZero) {
  ASSERT_TRUE(Read({"UserNum,0", "SwitchNum,0"}));
  EXPECT_EQ(Run.User.Prm.HighestIndex(), 0);
  EXPECT_EQ(Run.User.Switches.HighestIndex(), 0);
}

TEST_F(UserFile, HasEmptyElementsForAnnouncedLinesThatAreMissing) {
  ASSERT_TRUE(Read({"UserNum,3", "UserName,1,a", "UserValue,1,2,u"}));
  EXPECT_EQ(Run.User.Prm.HighestIndex(), 3);
  EXPECT_EQ(Run.User.Prm[2].No, "");
}

TEST_F(UserFile, CutsAUnitAtItsComma) {
  ASSERT_TRUE(Read({"UserNum,1", "UserName,1,a,b,c", "UserValue,1,2,m,s,x"}));
  EXPECT_EQ(Run.User.Prm[0].Name, "a,b,c");
  EXPECT_EQ(Run.User.Prm[0].Unit, "m");
}

TEST_F(UserFile, TakesShortListLinesAsEmptyElements) {
  ASSERT_TRUE(
      Read({"UserNum,1", "UserName,1", "UserValue,1", "SwitchNum,1", "Switch,1", "Switch0", "Switch3,0,1"}));
  EXPECT_EQ(Run.User.Prm[0].Name, "");
  EXPECT_EQ(Run.User.Prm[0].Unit, "");
  EXPECT_EQ(Run.User.Switches[0].Name, "");
  EXPECT_EQ(Run.User.Switches[0].Digit[3].Count, "1");
  EXPECT_EQ(Run.User.Switches[0].Digit[3].Text, "");
}

TEST_F(UserFile, CountsASwitchWithMissingDigits) {
  ASSERT_TRUE(Read({"SwitchNum,2", "Switch,1,,,a", "Switch3,0,1,,,x", "Switch,2,,,b", "Switch3,0,1,,,y"}));
  EXPECT_EQ(Run.User.Switches[0].Digit[0].Text, "");
  EXPECT_EQ(Run.User.Switches[0].Digit[3].Text, "x");
  EXPECT_EQ(Run.User.Switches[1].No, "2");
}

TEST_F(UserFile, OverwritesASwitchUntilSwitch3MovesOn) {
  ASSERT_TRUE(Read({"SwitchNum,2", "Switch,1,,,a", "Switch0,0,1,,,x", "Switch,2,,,b", "Switch3,0,1,,,y"}));
  EXPECT_EQ(Run.User.Switches[0].No, "2");
  EXPECT_EQ(Run.User.Switches[0].Digit[0].Text, "x");
  EXPECT_EQ(Run.User.Switches[1].No, "");
}

TEST_F(UserFile, TakesAValueWithoutNameAndMovesOn) {
  ASSERT_TRUE(Read({"UserNum,2", "UserValue,1,2,u", "UserName,2,b", "UserValue,3,4,v"}));
  EXPECT_EQ(Run.User.Prm[0].No, "");
  EXPECT_EQ(Run.User.Prm[0].Value, "1");
  EXPECT_EQ(Run.User.Prm[1].No, "2");
}

TEST_F(UserFile, PutsASurplusValueIntoTheSpareAndStopsAtTheNext) {
  const Lines oneTooMany = {"UserNum,1", "UserName,1,a", "UserValue,1,2,u", "UserValue,3,4,v"};
  ASSERT_TRUE(Read(oneTooMany));
  EXPECT_EQ(Run.User.Prm[1].Value, "3");
  Lines twoTooMany = oneTooMany;
  twoTooMany.emplace_back("UserValue,5,6,w");
  EXPECT_EQ(Stopped(twoTooMany), "User.tmp:5: UserValue: two more than 'UserNum' announces: '5,6,w'");
}

TEST_F(UserFile, StopsAtLinesWithoutAnyArray) {
  EXPECT_EQ(Stopped({"UserValue,1,2,u"}), "User.tmp:1: UserValue: comes before 'UserNum': '1,2,u'");
  for (const char* key : {"Switch0", "Switch1", "Switch2", "Switch3"}) {
    EXPECT_EQ(Stopped({std::string(key) + ",0,1,,,x"}),
              "User.tmp:1: " + std::string(key) + ": comes before 'SwitchNum': '0,1,,,x'");
  }
}

TEST_F(UserFile, PutsASurplusDigitIntoTheSpareSwitch) {
  ASSERT_TRUE(Read({"SwitchNum,0", "Switch0,0,1,,,x"}));
  EXPECT_EQ(Run.User.Switches[0].Digit[0].Text, "x");
}

TEST_F(UserFile, KeepsTheRunningIndexAtASecondCount) {
  ASSERT_TRUE(
      Read({"UserNum,2", "UserName,1,a", "UserValue,1,2,u", "UserNum,3", "UserName,2,b", "UserValue,3,4,v"}));
  EXPECT_EQ(Run.User.UserNum, 3);
  EXPECT_EQ(Run.User.Prm[0].No, "") << "the rows are dropped";
  EXPECT_EQ(Run.User.Prm[1].No, "2");
}

TEST_F(UserFile, RefusesAfterASecondCountBelowTheIndex) {
  EXPECT_EQ(Refused({"UserNum,2", "UserValue,1,2,u", "UserValue,1,2,u", "UserNum,1", "UserName,3,c"}),
            "User.tmp:5: UserName: one more than 'UserNum' announces");
  EXPECT_EQ(Stopped({"UserNum,2", "UserValue,1,2,u", "UserValue,1,2,u", "UserNum,1", "UserValue,3,4,v"}),
            "User.tmp:5: UserValue: two more than 'UserNum' announces: '3,4,v'");
}

TEST_F(UserFile, HasNoRoomWithANegativeCount) {
  EXPECT_TRUE(Read({"UserNum,-1"}));
  EXPECT_EQ(Refused({"UserNum,-1", "UserName,1,a"}),
            "User.tmp:2: UserName: one more than 'UserNum' announces");
  EXPECT_EQ(Stopped({"UserNum,-2"}), "User.tmp:1: UserNum: a count can't be below -1: '-2'");
}

TEST_F(UserFile, HoldsAsManyElementsAs16BitsCount) {
  ASSERT_TRUE(Read({"UserNum,32767", "SwitchNum,32767"}));
  EXPECT_EQ(Run.User.Prm.HighestIndex(), 32767);
  EXPECT_EQ(Stopped({"UserNum,32768"}), "User.tmp:1: UserNum: number out of range: '32768'");
}

TEST_F(UserFile, StopsAtABadNumberAndSaysWhere) {
  for (const char* key : {"File-Spec", "UserNum", "SwitchNum", "CommentCnt"}) {
    EXPECT_EQ(Stopped({"FileType,x", std::string(key) + ",1,5"}),
              "User.tmp:2: " + std::string(key) + ": not a number: '1,5'");
    EXPECT_EQ(Stopped({key}), "User.tmp:1: " + std::string(key) + ": not a number: ''");
  }
}

TEST_F(UserFile, ReplacesAnEarlierCommentWhateverItsCount) {
  ASSERT_TRUE(Read({"CommentCnt,2", "Comment,first", "Comment,second"}));
  EXPECT_EQ(Run.User.Comment, "second");
}

TEST_F(UserFile, UnescapesDigitTextsButNotTheSwitchName) {
  ASSERT_TRUE(Read({"SwitchNum,1", "Switch,1,2,3,a\\r\\nb", "Switch3,0,1,2,3,a\\r\\nb,c"}));
  EXPECT_EQ(Run.User.Switches[0].Name, "a\\r\\nb");
  EXPECT_EQ(Run.User.Switches[0].Digit[3].Text, "a\r\nb,c");
}

TEST_F(UserFile, KeepsHeaderParametersAndCommentOfTheFileBefore) {
  ASSERT_TRUE(Read({"File-Spec,4", "MechaInfo,A", "File,a.usr", "UserNum,1", "UserName,1,a",
                    "UserValue,1,2,u", "Comment,old"}));
  ASSERT_TRUE(Read({"FileType,next"}));
  EXPECT_EQ(Run.Header.FileSpec, 4);
  EXPECT_EQ(Run.Header.MechaInfo, "A");
  EXPECT_EQ(Run.Header.File, "a.usr");
  EXPECT_EQ(Run.User.Prm[0].Name, "a");
  EXPECT_EQ(Run.User.Comment, "old");
}

TEST_F(UserFile, NeedsItsCountAgainInASecondRead) {
  ASSERT_TRUE(Read({"UserNum,1", "UserName,1,a", "UserValue,1,2,u"}));
  EXPECT_EQ(Refused({"UserName,2,b"}), "User.tmp:1: UserName: comes before 'UserNum'");
  ASSERT_TRUE(Read({"UserValue,9,8,w"})) << "this line asks for no count";
  EXPECT_EQ(Run.User.Prm[0].Value, "9") << "the index starts anew";
}

TEST_F(UserFile, TakesLinesInAnyOrderApartFromCounts) {
  ASSERT_TRUE(Read({"Comment,x", "SwitchNum,1", "UserNum,1", "Switch,7,,,s", "UserName,1,a", "File-Spec,3"}));
  EXPECT_EQ(Run.User.Switches[0].No, "7");
}

TEST_F(UserFile, StopsAtMoreLinesThan16BitsCountBeforeReadingAny) {
  Lines lines(32768, "Comment,x");
  ASSERT_TRUE(Read(lines));
  lines.insert(lines.begin(), "unknown,1");
  EXPECT_EQ(Stopped(lines), "User.tmp:32769: overflow: more than 32768 lines");
}

TEST_F(UserFile, FullOfCountLinesIsReadLikeAnyOther) {
  Lines lines;
  for (int line = 0; line < 16384; ++line) {
    lines.push_back("SwitchNum," + std::string(line % 2 == 0 ? "32767" : "16384"));
    lines.emplace_back("Switch3,0,1,,,x");
  }
  ASSERT_TRUE(Read(lines));
  EXPECT_EQ(Run.User.Switches.HighestIndex(), 16384);
  EXPECT_EQ(Run.User.Switches[16383].Digit[3].Text, "x");
  EXPECT_EQ(Run.User.Switches[16382].Digit[3].Text, "");
}

TEST_F(UserFile, ReadsDoubleByteTextsWhoseSecondByteIsABackslashOrBar) {
  Run.CodePage = CodePage(932);
  LoadBytes(Run, "User.tmp",
            "UserNum,1\r\nUserName,1,\x95\x5C\x83\x7C,x\r\nComment,\x95\x5C\\r\\n\x83\x7C\r\n");
  ASSERT_TRUE(ReadUserFile(Run));
  EXPECT_EQ(Run.User.Prm[0].Name, "\u8868\u30DD,x");
  EXPECT_EQ(Run.User.Comment, "\u8868\r\n\u30DD");
}

TEST_F(UserFile, ShowsAnEndlessKeyInOneShortLine) {
  EXPECT_EQ(Refused({std::string(1 << 20, 'k')}),
            "User.tmp:1: unknown key '" + std::string(60, 'k') + "...'");
}

}  // namespace
}  // namespace tarvis
