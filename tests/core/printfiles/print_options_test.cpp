// The options file: defaults, every key, old versions, bad lines, and writing.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <string>
#include <vector>

#include "printfiles/host_files.h"
#include "printfiles/print_options_file.h"
#include "support/test_run.h"
#include "text/text.h"

namespace tarvis {
namespace {

using Lines = std::vector<std::string>;

class PrintOptionsFile : public testing::Test, protected TestRun {
 protected:
  using TestRun::Run;

  PrintOptionsFile() { Run.Session.SystemFolder = Folder.HostPath(); }

  bool Read(const Lines& lines) {
    Load("PrintOption.ToT", lines);
    return ReadPrintOptionsFile(Run);
  }
  std::string Stopped(const Lines& lines) {
    return RunTimeFailureOf([&] { Read(lines); });
  }
  std::string Path() const { return Folder.HostPath("PrintOption.ToT"); }
  std::string Written() {
    EXPECT_TRUE(WritePrintOptionsFile(Run, Path()));
    return Folder.Read("PrintOption.ToT");
  }

  // Reads what was written, as the next run does.
  void ReadBack() {
    Run.Options = {};
    LoadLines(Run, Path());
    EXPECT_TRUE(ReadPrintOptionsFile(Run)) << Run.Session.Diagnosis;
  }

  TempFolder Folder;
};

// What a first run writes.
const std::string kDefaultFile =
    "File-Spec,4\r\nFileType,PrintOption TmpFile For Print\r\nMade-by,Quillex Ver2.00\r\n"
    "DateTime,2026/03/05 "
    "17:04:09\r\nCover,0\r\nSelectCover,0\r\nDrowCorp,\r\nDrowSect,\r\nDrowName,\r\nDrowEmail,\r\n"
    "DrowZip,\r\nDrowAdr,\r\nDrowTEL,\r\nDrowFAX,\r\nDrowLogo,\r\nUser1Title,\r\nUser1Corp,\r\nUser1Sect,\r\n"
    "User1Name,\r\nUser1Adr,\r\nUser2Title,\r\nUser2Corp,\r\nUser2Sect,\r\nUser2Name,\r\nUser2Adr,"
    "\r\nUser3Title,\r\n"
    "User3Corp,\r\nUser3Sect,\r\nUser3Name,\r\nUser3Adr,\r\nGreetingCnt,0\r\nGreeting,\r\n"
    "UserHeader,1,1,1,1,1,Parameters\r\nUserOption,1,1,1,1,1\r\nPrmWizHeader,1,1,1,0,1,Parameter Wizard\r\n"
    "PrmWizOption,\r\nTraceHeader,1,1,1,1,1,Tracing\r\nTraceOption,1,1,1,1,1,1,1,1,1\r\n"
    "RealTraceHeader,1,1,1,1,1,Real-Time Tracing\r\nRealTraceOption,1,1,1,1,1,1,1\r\n"
    "MechaHeader,1,1,1,1,1,Mechanical Analysis\r\nMechaOption,1,1,1,1,1\r\nSimHeader,1,1,1,1,1,Dynamics "
    "Simulation\r\n"
    "SimOption,1,1,1,1,1,1,1,1,1,1,1,1,1\r\nColorType,0\r\nIdxTblHeader,1,1,1,1,1,Program Table\r\n"
    "IdxTblOption,0,,,1\r\nZoneTblHeader,1,1,1,1,1,Zone Table\r\nZoneTblOption,1\r\n"
    "JogTblHeader,1,1,1,1,1,Jog Speed Table\r\nJogTblOption,1\r\n";

TEST_F(PrintOptionsFile, HoldsTheDefaultsInFixedOrderAfterAFirstRun) {
  DefaultPrintOptions(Run);
  EXPECT_EQ(Written(), kDefaultFile);
}

TEST_F(PrintOptionsFile, DefaultsReplaceEveryOption) {
  Run.Options.DrowCorp = "old";
  Run.Options.ColorType = 1;
  Run.Options.GreetingCnt = 3;
  DefaultPrintOptions(Run);
  EXPECT_EQ(Run.Options.DrowCorp, "");
  EXPECT_EQ(Run.Options.ColorType, 0);
  EXPECT_EQ(Run.Options.GreetingCnt, 0);
}

// Every key with a value of its own, other than the default.
const Lines kEveryLine = {"File-Spec,4",
                          "FileType,my type",
                          "Made-by,someone",
                          "DateTime,then",
                          "Cover,1",
                          "SelectCover,3",
                          "DrowCorp,Corp, Ltd.",
                          "DrowSect,a\\r\\nb",
                          "DrowName,N",
                          "DrowEmail,E",
                          "DrowZip,Z",
                          "DrowAdr,c\\r\\nd",
                          "DrowTEL,T",
                          "DrowFAX,F",
                          "DrowLogo,C:\\l,ogo.bmp",
                          "User1Title,1t",
                          "User1Corp,1c",
                          "User1Sect,1s\\r\\nx",
                          "User1Name,1n",
                          "User1Adr,1a\\r\\nx",
                          "User2Title,2t",
                          "User2Corp,2c",
                          "User2Sect,2s\\r\\nx",
                          "User2Name,2n",
                          "User2Adr,2a\\r\\nx",
                          "User3Title,3t",
                          "User3Corp,3c",
                          "User3Sect,3s\\r\\nx",
                          "User3Name,3n",
                          "User3Adr,3a\\r\\nx",
                          "GreetingCnt,7",
                          "Greeting,g\\r\\nh",
                          "UserHeader,0,1,0,1,0,U",
                          "UserOption,1,0,1,0,1",
                          "PrmWizHeader,1,0,1,0,1,P",
                          "PrmWizOption,",
                          "TraceHeader,0,0,0,0,1,T",
                          "TraceOption,0,1,0,1,0,1,0,1,0",
                          "RealTraceHeader,0,0,0,1,0,R",
                          "RealTraceOption,1,0,1,0,1,0,1",
                          "MechaHeader,0,0,1,0,0,M",
                          "MechaOption,0,1,0,1,0",
                          "SimHeader,0,1,0,0,0,S",
                          "SimOption,0,1,0,1,0,1,0,1,0,1,0,1,0",
                          "ColorType,1",
                          "IdxTblHeader,1,0,0,0,0,I",
                          "IdxTblOption,2,5,128,0",
                          "ZoneTblHeader,1,1,0,0,0,Z",
                          "ZoneTblOption,0",
                          "JogTblHeader,1,1,1,0,0,J",
                          "JogTblOption,0"};

TEST_F(PrintOptionsFile, ReadsBackEveryValue) {
  ASSERT_TRUE(Read(kEveryLine));
  EXPECT_EQ(Run.Options.DrowCorp, "Corp, Ltd.");
  EXPECT_EQ(Run.Options.DrowSect, "a\r\nb");
  EXPECT_EQ(Run.Options.User[2].Adr, "3a\r\nx");
  EXPECT_EQ(Run.Options.TraceHeader.Pages, 1);
  EXPECT_EQ(Run.Options.TraceHeader.TitleText, "T");
  EXPECT_EQ(Run.Options.SimOption[11], 1);
  EXPECT_EQ(Run.Options.SimOption[12], 0);
  EXPECT_EQ(Run.Options.IdxTblOption.Range, 2);
  EXPECT_EQ(Run.Options.IdxTblOption.First, "5");
  EXPECT_EQ(Run.Options.IdxTblOption.Last, "128");
  EXPECT_EQ(Run.Options.GreetingCnt, 7) << "kept as read";
  EXPECT_EQ(Written(), BytesOf(kEveryLine)) << "read and written without changes it is the same file";
}

TEST_F(PrintOptionsFile, IsAlwaysWrittenAsVersion4AndKeepsItsMaker) {
  ASSERT_TRUE(Read({"File-Spec,2", "Made-by,old host", "DateTime,then"}));
  const std::string written = Written();
  EXPECT_TRUE(written.starts_with("File-Spec,4\r\nFileType,\r\nMade-by,old host\r\nDateTime,then\r\n"))
      << written;
  EXPECT_EQ(Run.Options.FileSpec, 4);
}

TEST_F(PrintOptionsFile, HasNoTraceDetailAndAllSimComparisonsInVersion2) {
  ASSERT_TRUE(Read({"File-Spec,2", "TraceOption,1,1,1,1,1,1,1,1,1", "SimOption,0,0,0,0,0,0,0,0,0,0"}));
  EXPECT_EQ(Run.Options.TraceOption[7], 1);
  EXPECT_EQ(Run.Options.TraceOption[8], 0);
  EXPECT_EQ(Run.Options.SimOption[10], 1);
  EXPECT_EQ(Run.Options.SimOption[11], 1);
  EXPECT_EQ(Run.Options.SimOption[12], 1);
}

TEST_F(PrintOptionsFile, HasTraceDetailAndAllSimComparisonsInVersion3) {
  ASSERT_TRUE(Read({"File-Spec,3", "TraceOption,1,1,1,1,1,1,1,1,1", "SimOption,0,0,0,0,0,0,0,0,0,0,0,0,0"}));
  EXPECT_EQ(Run.Options.TraceOption[8], 1);
  EXPECT_EQ(Run.Options.SimOption[10], 1);
  EXPECT_EQ(Run.Options.SimOption[12], 1);
}

TEST_F(PrintOptionsFile, CountsAsOldWithoutOrWithLateFileSpec) {
  ASSERT_TRUE(Read({"TraceOption,1,1,1,1,1,1,1,1,1", "SimOption,0,0,0,0,0,0,0,0,0,0", "File-Spec,4"}));
  EXPECT_EQ(Run.Options.TraceOption[8], 0);
  EXPECT_EQ(Run.Options.SimOption[10], 1);
}

TEST_F(PrintOptionsFile, ReadsLikeVersion4InALaterVersion) {
  ASSERT_TRUE(Read({"File-Spec,5", "TraceOption,1,1,1,1,1,1,1,1,1", "SimOption,0,0,0,0,0,0,0,0,0,0,1,0,1"}));
  EXPECT_EQ(Run.Options.TraceOption[8], 1);
  EXPECT_EQ(Run.Options.SimOption[10], 1);
  EXPECT_EQ(Run.Options.SimOption[11], 0);
  EXPECT_EQ(Run.Options.SimOption[12], 1);
}

TEST_F(PrintOptionsFile, LeavesSimComparisonsAloneWithoutTraceDetailAhead) {
  ASSERT_TRUE(Read({"File-Spec,4", "SimOption,0,0,0,0,0,0,0,0,0,0,1,1,1", "TraceOption,1,1,1,1,1,1,1,1,1"}));
  EXPECT_EQ(Run.Options.SimOption[10], 0);
  EXPECT_EQ(Run.Options.SimOption[12], 0);
  ASSERT_TRUE(Read({"File-Spec,4", "TraceOption,1,1,1,1,1,1,1,1", "SimOption,0,0,0,0,0,0,0,0,0,0,1,1,1"}));
  EXPECT_EQ(Run.Options.SimOption[10], 0) << "the eight elements have no ninth text";
}

TEST_F(PrintOptionsFile, StopsAtAMissingElement) {
  EXPECT_EQ(Stopped({"File-Spec,4", "TraceOption,1,1,1,1,1,1,1,1,1", "SimOption,0,0,0,0,0,0,0,0,0,0"}),
            "PrintOption.ToT:3: SimOption: element 11: not a number: ''");
  EXPECT_EQ(Stopped({"UserHeader,1,1,1,1"}), "PrintOption.ToT:1: UserHeader: element 5: not a number: ''");
  EXPECT_EQ(Stopped({"UserOption,1,1,1,1"}), "PrintOption.ToT:1: UserOption: element 5: not a number: ''");
  EXPECT_EQ(Stopped({"IdxTblOption,1"}), "PrintOption.ToT:1: IdxTblOption: element 4: not a number: ''");
  EXPECT_EQ(Stopped({"Cover,yes"}), "PrintOption.ToT:1: Cover: not a number: 'yes'");
  EXPECT_EQ(Stopped({"Cover,1,1"}), "PrintOption.ToT:1: Cover: not a number: '1,1'")
      << "the whole value is the number";
}

TEST_F(PrintOptionsFile, NamesThePlaceOfANumberThatNothingCanShow) {
  ASSERT_TRUE(
      Read({"File-Spec,4", "ColorType,1", "ColorType,2", "SimHeader,1,1,1,1,3,x", "MechaOption,1,1,1,1,-7"}));
  PrintOptions& options = Run.Options;
  const auto diagnosisOf = [&](const std::int16_t& option) {
    return std::string(RunTimeFailure("no such choice", OptionPlace(Run, option)).what());
  };
  EXPECT_EQ(diagnosisOf(options.ColorType), "PrintOption.ToT:3: ColorType: no such choice: '2'");
  EXPECT_EQ(diagnosisOf(options.SimHeader.Pages),
            "PrintOption.ToT:4: SimHeader: element 5: no such choice: '3'");
  EXPECT_EQ(diagnosisOf(options.MechaOption[4]),
            "PrintOption.ToT:5: MechaOption: element 5: no such choice: '-7'");
  EXPECT_EQ(diagnosisOf(options.IdxTblOption.Comment),
            "PrintOption.ToT: IdxTblOption: element 4: no such choice: '0'");
  EXPECT_EQ(diagnosisOf(options.SimOption[12]),
            "PrintOption.ToT: SimOption: element 13: no such choice: '0'");
}

TEST_F(PrintOptionsFile, KnowsNoLineOfAnOptionThatOnlyAnEarlierFileHad) {
  ASSERT_TRUE(Read({"File-Spec,4", "ColorType,2"}));
  ASSERT_TRUE(Read({"File-Spec,4"}));
  EXPECT_STREQ(RunTimeFailure("no such choice", OptionPlace(Run, Run.Options.ColorType)).what(),
               "PrintOption.ToT: ColorType: no such choice: '2'");
}

TEST_F(PrintOptionsFile, HeaderWithFiveElementsHasAnEmptyTitle) {
  ASSERT_TRUE(Read({"MechaHeader,1,1,1,1,1"}));
  EXPECT_EQ(Run.Options.MechaHeader.Pages, 1);
  EXPECT_EQ(Run.Options.MechaHeader.TitleText, "");
}

TEST_F(PrintOptionsFile, CutsATitleAtItsCommaOnTheNextRun) {
  ASSERT_TRUE(Read({"TraceHeader,1,1,1,1,1,a,b"}));
  EXPECT_EQ(Run.Options.TraceHeader.TitleText, "a");
  Run.Options.TraceHeader.TitleText = "c,d";
  Written();
  EXPECT_EQ(Run.Options.TraceHeader.TitleText, "c,d") << "this run keeps it whole";
  ASSERT_EQ(LoadLines(Run, Path()), 51);
  ASSERT_TRUE(ReadPrintOptionsFile(Run));
  EXPECT_EQ(Run.Options.TraceHeader.TitleText, "c");
}

TEST_F(PrintOptionsFile, IgnoresWhatFollowsTheWizardsOption) {
  EXPECT_TRUE(Read({"PrmWizOption", "PrmWizOption,", "PrmWizOption,1,x"}));
}

TEST_F(PrintOptionsFile, TakesOnlyTheFirstFieldOfTheTablesOptions) {
  ASSERT_TRUE(Read({"ZoneTblOption,1,x", "JogTblOption,1,"}));
  EXPECT_EQ(Run.Options.ZoneTblOption, 1);
  EXPECT_EQ(Run.Options.JogTblOption, 1);
}

TEST_F(PrintOptionsFile, IsRefusedWithAKeyOfADataFile) {
  EXPECT_FALSE(Read({"File-Spec,4", "MechaInfo,x"}));
  EXPECT_EQ(Run.Session.Diagnosis, "PrintOption.ToT:2: unknown key 'MechaInfo'");
  EXPECT_FALSE(Read({"File,x"}));
  EXPECT_FALSE(Read({"cover,1"}));
}

TEST_F(PrintOptionsFile, KnowsEachKeyInItsOwnSpellingOnly) {
  std::string_view text = kDefaultFile;
  while (!text.empty()) {
    const std::string line(NextTextLine(text));
    std::string other = line;
    const std::size_t comma = line.find(',');
    std::transform(other.begin(), other.begin() + static_cast<std::ptrdiff_t>(comma), other.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    EXPECT_TRUE(Read({line, line})) << "twice: " << line;
    EXPECT_FALSE(Read({other})) << other;
    EXPECT_FALSE(Read({" " + line})) << line;
  }
}

TEST_F(PrintOptionsFile, DropsElementsThatNobodyAsksFor) {
  ASSERT_TRUE(
      Read({"File-Spec,4", "UserOption,1,0,1,0,1,x", "TraceOption,1,1,1,1,1,1,1,1,0,x",
            "SimOption,0,0,0,0,0,0,0,0,0,0,1,0,1,x", "IdxTblOption,1,2,3,1,x", "SimHeader,1,0,1,0,1,t,x"}));
  EXPECT_EQ(Run.Options.UserOption[4], 1);
  EXPECT_EQ(Run.Options.SimOption[12], 1);
  EXPECT_EQ(Run.Options.IdxTblOption.Comment, 1);
  EXPECT_EQ(Run.Options.SimHeader.TitleText, "t");
}

TEST_F(PrintOptionsFile, KeepsAMultiLineGreetingInOneLine) {
  Run.Options.Greeting = "Dear,\r\n\r\nSir\nX";
  const std::string written = Written();
  EXPECT_NE(written.find("\r\nGreeting,Dear,\\r\\n\\r\\nSir\nX\r\n"), std::string::npos);
  LoadLines(Run, Path());
  ASSERT_TRUE(ReadPrintOptionsFile(Run));
  EXPECT_EQ(Run.Options.Greeting, "Dear,\r\n\r\nSir\nX");
}

// A break in a text of one line would make two lines of it, and the next run would refuse the second one.
TEST_F(PrintOptionsFile, HoldsATextOfOneLineUpToItsLineBreak) {
  DefaultPrintOptions(Run);
  Run.Options.DrowCorp = "Northport\r\nMotion";
  Run.Options.DrowLogo = "logo.bmp\rCover,7";
  Run.Options.User[0].Title = "\r\n";
  Run.Options.SimHeader.TitleText = "Line1\r\nLine2";
  const std::string written = Written();
  EXPECT_NE(written.find("\r\nDrowCorp,Northport\r\nDrowSect,"), std::string::npos);
  ReadBack();
  EXPECT_EQ(Run.Options.DrowCorp, "Northport");
  EXPECT_EQ(Run.Options.DrowLogo, "logo.bmp");
  EXPECT_EQ(Run.Options.User[0].Title, "");
  EXPECT_EQ(Run.Options.SimHeader.TitleText, "Line1");
}

TEST_F(PrintOptionsFile, TakesALoneCarriageReturnInATextOfSeveralLinesForALineBreak) {
  Run.Options.Greeting = "a\rb\r\rc\r\nd\ne\r";
  Written();
  ReadBack();
  EXPECT_EQ(Run.Options.Greeting, "a\r\nb\r\n\r\nc\r\nd\ne\r\n");
}

TEST_F(PrintOptionsFile, HoldsAStepUpToItsComma) {
  Run.Options.IdxTblOption = {.Range = 2, .First = "1,5", .Last = "9\r\n,x", .Comment = 1};
  Written();
  ReadBack();
  EXPECT_EQ(Run.Options.IdxTblOption.First, "1");
  EXPECT_EQ(Run.Options.IdxTblOption.Last, "9");
  EXPECT_EQ(Run.Options.IdxTblOption.Comment, 1);
}

TEST_F(PrintOptionsFile, IsWrittenInTheCodePage) {
  Run.CodePage = CodePage(932);
  Run.Options.DrowCorp = "\u8868\u30DD";
  EXPECT_NE(Written().find("DrowCorp,\x95\x5C\x83\x7C\r\n"), std::string::npos);
  LoadLines(Run, Path());
  ASSERT_TRUE(ReadPrintOptionsFile(Run));
  EXPECT_EQ(Run.Options.DrowCorp, "\u8868\u30DD");
}

TEST_F(PrintOptionsFile, ReplacesTheFileBefore) {
  Folder.Write("PrintOption.ToT", std::string(100000, 'x'));
  DefaultPrintOptions(Run);
  EXPECT_EQ(Written(), kDefaultFile);
}

TEST_F(PrintOptionsFile, StaysWholeWhereTheNewOneCanNotBeWritten) {
  DefaultPrintOptions(Run);
  Written();
  Run.Options.DrowCorp = "Northport Motion";
  Run.SettleFile = [](const auto&, const auto&) { return false; };
  EXPECT_FALSE(WritePrintOptionsFile(Run, Path()));
  EXPECT_EQ(Folder.Read("PrintOption.ToT"), kDefaultFile);
}

TEST_F(PrintOptionsFile, GivesFalseAndNothingElseIfItCanNotBeWritten) {
  EXPECT_FALSE(WritePrintOptionsFile(Run, Folder.HostPath("no\\such\\folder\\PrintOption.ToT")));
  std::filesystem::create_directory(Folder.Path() / "PrintOption.ToT");
  EXPECT_FALSE(WritePrintOptionsFile(Run, Path()));
  EXPECT_TRUE(Desktop.Calls.empty());
}

}  // namespace
}  // namespace tarvis
