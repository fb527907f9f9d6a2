// What tarvis-check says of good files, among them the examples of the documentation, and of bad ones.
#include "check/check_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <ostream>
#include <string>

#include "support/source_folder.h"
#include "support/test_run.h"
#include "text/text.h"

namespace tarvis {
namespace {

const std::string kExamples = SourceFolder() + "/docs/examples/";

std::string ReadWhole(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

struct Example {
  std::string Name;
  std::string Contents;
};

void PrintTo(const Example& example, std::ostream* out) {
  *out << example.Name;
}

class ExampleFiles : public testing::TestWithParam<Example> {};

TEST_P(ExampleFiles, AreGoodInTheDocumentation) {
  const FileCheck check = CheckFile(kExamples + GetParam().Name, CodePage());
  EXPECT_EQ(check.Line, GetParam().Name + ": " + GetParam().Contents);
  EXPECT_TRUE(check.IsGood);
}

// So that the reference describes every key that an example shows.
TEST_P(ExampleFiles, HaveOnlyKeysOfTheDocumentation) {
  const std::string reference = ReadWhole(SourceFolder() + "/docs/file-formats.md");
  const std::string example = ReadWhole(kExamples + GetParam().Name);
  std::string_view text = example;
  ASSERT_FALSE(text.empty());
  while (!text.empty()) {
    std::string_view line = NextTextLine(text);
    const std::string key(NextField(line));
    EXPECT_NE(reference.find("`" + key + "`"), std::string::npos) << key;
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, ExampleFiles,
    testing::Values(
        Example{"User.tmp",
                "3 parameters, 1 switch parameter, comment 'Values after the first tuning, left "
                "axis To be "
                "checked with ...'"},
        Example{"UPWizard.tmp",
                "diagram 'C:\\Host\\bin\\wizard\\base.bmp', 2 relays, 4 output numbers, 7 output names"},
        Example{"Trace.tmp",
                "graph 'C:\\Host\\bin\\dat\\tmp\\Trace.emf', 2 cursor rows, 5 channels, overlap of 2 data "
                "sets, 0 "
                "parameters, 0 switch parameters, comment 'Overlap of two runs'"},
        Example{
            "Trace1.tmp",
            "graph 'C:\\Host\\bin\\dat\\tmp\\Trace1.emf', 2 cursor rows, 5 channels, no overlap, 3 "
            "parameters, 1 "
            "switch parameter, comment 'Values after the first tuning, left axis To be checked with ...'"},
        Example{"RealTrace.tmp",
                "graph 'C:\\Host\\bin\\dat\\tmp\\Real.emf', 2 cursor rows, 3 parameters, 1 switch parameter, "
                "comment "
                "'Values after the first tuning, left axis To be checked with ...'"},
        Example{"Mecha.tmp",
                "graph 'C:\\Host\\bin\\dat\\tmp\\Gain.emf', cursor table, comment 'Belt at nominal tension'"},
        Example{"Sim.tmp",
                "graph 'C:\\Host\\bin\\dat\\tmp\\Sim.emf', 2 cursor rows, 5 channels, pattern 'Trapezoid' of "
                "3 values, "
                "overlap of 2 data sets, 2 compared parameters, 3 parameters, 1 switch parameter, comment "
                "'Values after "
                "the first tuning, left axis To be checked with ...'"},
        Example{"Sim1.tmp",
                "graph 'C:\\Host\\bin\\dat\\tmp\\Sim1.emf', 2 cursor rows, 5 channels, pattern 'Trapezoid' "
                "of 3 values, "
                "no overlap, 0 compared parameters, 3 parameters, 1 switch parameter, comment 'Values after "
                "the first "
                "tuning, left axis To be checked with ...'"},
        Example{"IdxIdxTbl.tmp",
                "3 steps, 2 with a program, with ACC and DEC, comment 'Shuttle between two stops'"},
        Example{"IdxZoneTbl.tmp", "2 zones, comment 'Zone 1 covers the loading station'"},
        Example{"IdxJogTbl.tmp", "2 jog speeds, no comment"},
        Example{"PrintOption.ToT", "options of version 4, cover letter No. 1, black and white"}),
    [](const auto& example) { return example.param.Name.substr(0, example.param.Name.find('.')); });

class CheckedFile : public testing::Test {
 protected:
  std::string Wrong(const std::string& name, const std::string& bytes) {
    Folder.Write(name, bytes);
    const FileCheck check = CheckFile((Folder.Path() / name).string(), CodePage(932));
    EXPECT_FALSE(check.IsGood);
    return check.Line;
  }

  bool IsGood(const std::string& name, const std::string& bytes) {
    Folder.Write(name, bytes);
    const FileCheck check = CheckFile((Folder.Path() / name).string(), CodePage(932));
    EXPECT_TRUE(check.IsGood) << check.Line;
    EXPECT_TRUE(Folder.Has(name));
    return check.IsGood;
  }

  TempFolder Folder;
};

TEST_F(CheckedFile, ShowsFileLineKeyAndReason) {
  EXPECT_EQ(Wrong("Trace2.tmp", "File-Spec,3\r\nCursolselect,1\r\n"),
            "Trace2.tmp:2: unknown key 'Cursolselect'");
  EXPECT_EQ(Wrong("User.tmp", "UserNum,many\r\n"), "User.tmp:1: UserNum: not a number: 'many'");
  EXPECT_EQ(Wrong("PrintOption.ToT", "Colour,1\r\n"), "PrintOption.ToT:1: unknown key 'Colour'");
}

TEST_F(CheckedFile, NamesAMissingFile) {
  EXPECT_EQ(CheckFile((Folder.Path() / "Sim.tmp").string(), CodePage()).Line, "Sim.tmp: can't be read");
}

TEST_F(CheckedFile, KnowsAFileByItsNameOnly) {
  for (const char* name : {"user.tmp", "User1.tmp", "Trace0.tmp", "Tracex.tmp", "RealTrace1.tmp", "Other.tmp",
                           ".tmp", "User.ToT"}) {
    EXPECT_EQ(Wrong(name, ""), std::string(name) + ": not the name of a host file");
  }
  EXPECT_TRUE(IsGood("Trace12.tmp", ""));
}

std::string Times(const std::string& line, int count) {
  std::string lines;
  for (; count > 0; --count) lines += line;
  return lines;
}

const std::string kPattern = "PatternSetting,n,0,p,1\r\n";
const std::string kTwelveTimes = Times("CmpTime,f,t,c\r\n", 12);

TEST_F(CheckedFile, BoundsComparisonTimesByTheOverlapThatTheProgramTakes) {
  EXPECT_EQ(Wrong("Sim.tmp", "OverlapMode,1\r\nOverlapNum,12\r\n" + kTwelveTimes),
            "Sim.tmp:14: CmpTime: 'OverlapNum' counts 12 simulations, and only 11 have room: 'f,t,c'");
  EXPECT_TRUE(IsGood("Sim.tmp", "OverlapMode,1\r\nOverlapNum,11\r\n" + kTwelveTimes));
  EXPECT_TRUE(IsGood("Sim.tmp", "OverlapMode,0\r\nOverlapNum,12\r\n" + kTwelveTimes + kPattern));
  EXPECT_EQ(Wrong("Sim.tmp", "OverlapNum,12\r\nOverlapMode,0\r\n" + kTwelveTimes + kPattern),
            "Sim.tmp:14: CmpTime: 'OverlapNum' counts 12 simulations, and only 11 have room: 'f,t,c'")
      << "the program takes the number before it finds the mode";
}

TEST_F(CheckedFile, StopsAtANumberOfDataSetsThatTheProgramCannotCount) {
  EXPECT_EQ(Wrong("Trace.tmp", "OverlapMode,1\r\nOverlapNum,32767\r\n"),
            "Trace.tmp:2: OverlapNum: number out of range: '32767'");
  EXPECT_EQ(Wrong("Trace.tmp", "OverlapMode,1\r\nOverlapNum,32766\r\n"),
            "Trace.tmp:2: OverlapNum: number out of range: '32766'")
      << "with a cover letter";
  EXPECT_EQ(Wrong("Trace.tmp", "OverlapMode,1\r\nOverlapNum,-1\r\n"),
            "Trace.tmp:2: OverlapNum: number out of range: '-1'");
  EXPECT_EQ(Wrong("Sim.tmp", "OverlapMode,1\r\nOverlapNum,-32768\r\n"),
            "Sim.tmp:2: OverlapNum: number out of range: '-32768'");
  EXPECT_TRUE(IsGood("Trace.tmp", "OverlapMode,1\r\nOverlapNum,0\r\n"));
  EXPECT_TRUE(IsGood("Trace.tmp", "OverlapMode,1\r\nOverlapNum,32765\r\n"));
  EXPECT_TRUE(IsGood("Trace.tmp", "OverlapMode,0\r\nOverlapNum,32767\r\n"));
  EXPECT_TRUE(IsGood("Trace.tmp", "OverlapNum,-1\r\nOverlapMode,0\r\n"));
}

TEST_F(CheckedFile, TakesTheOverlapOfACompanionFromTheMainFileBesideIt) {
  EXPECT_TRUE(IsGood("Sim1.tmp", "OverlapMode,1\r\nOverlapNum,12\r\n" + kTwelveTimes + kPattern));
  Folder.Write("Sim.tmp", "OverlapMode,1\r\nOverlapNum,12\r\n");
  EXPECT_EQ(Wrong("Sim1.tmp", kTwelveTimes + kPattern),
            "Sim1.tmp:12: CmpTime: 'OverlapNum' counts 12 simulations, and only 11 have room: 'f,t,c'");
}

TEST_F(CheckedFile, FindsWhatStopsTheProgramOnlyWhenItsPagesAreMade) {
  EXPECT_EQ(Wrong("Sim.tmp", "PatternSetting,n,,p,1\r\n"),
            "Sim.tmp:1: PatternSetting: element 2: not a number: ''");
  EXPECT_EQ(Wrong("Sim.tmp", "PatternSetting,n,1,p,42\r\n"),
            "Sim.tmp:1: PatternSetting: element 4: only 41 values have room: '42'");
  EXPECT_EQ(Wrong("Sim.tmp", "OverlapMode,1\r\nOverlapNum,12\r\n"),
            "Sim.tmp:2: OverlapNum: only 11 simulations have room: '12'");
  EXPECT_EQ(Wrong("Trace.tmp", "DataTrace1,Speed,yes,V\r\n"),
            "Trace.tmp:1: DataTrace1: element 2: not a number: 'yes'");
  EXPECT_EQ(Wrong("Trace.tmp", "OverlapMode,1\r\nDataTrace1,Speed,,V\r\n"),
            "Trace.tmp:2: DataTrace1: element 2: not a number: ''");
}

TEST_F(CheckedFile, FindsNothingElse) {
  EXPECT_TRUE(IsGood("Sim.tmp", "OverlapMode,1\r\nOverlapNum,2\r\nPatternSetting,n,,p,1\r\n"))
      << "the result of an overlap prints no pattern";
  EXPECT_TRUE(IsGood("Sim.tmp", "PatternSetting,n,0,p,42\r\n")) << "a regular pattern prints ten values";
  EXPECT_TRUE(IsGood("Trace.tmp", "DataTrace1,,yes,V\r\n")) << "a channel without a name isn't used";
  EXPECT_TRUE(IsGood("User.tmp", "SwitchNum,1\r\nSwitch,1\r\nSwitch0,x,y\r\nSwitch3,\r\n"))
      << "a bad digit is passed over";
  EXPECT_TRUE(IsGood("UPWizard.tmp", "BASE,nowhere.bmp\r\n")) << "pictures are not looked for";
}

TEST_F(CheckedFile, FindsOptionsThatNothingCanShow) {
  EXPECT_EQ(Wrong("PrintOption.ToT", "ColorType,2\r\n"), "PrintOption.ToT:1: ColorType: no such choice: '2'");
  EXPECT_EQ(Wrong("PrintOption.ToT", "Cover,1\r\nSelectCover,4\r\n"),
            "PrintOption.ToT:2: SelectCover: no such choice: '4'");
  EXPECT_EQ(Wrong("PrintOption.ToT", "IdxTblOption,3,,,1\r\n"),
            "PrintOption.ToT:1: IdxTblOption: element 1: no such choice: '3'");
  EXPECT_EQ(Wrong("PrintOption.ToT", "MechaHeader,1,1,1,-1,1,t\r\n"),
            "PrintOption.ToT:1: MechaHeader: element 4: no such choice: '-1'");
  EXPECT_EQ(Wrong("PrintOption.ToT", "JogTblOption,3\r\n"),
            "PrintOption.ToT:1: JogTblOption: element 1: no such choice: '3'");
  EXPECT_TRUE(IsGood("PrintOption.ToT", "Cover,0\r\nSelectCover,4\r\nPrmWizHeader,7,7,7,7,7,t\r\n"));
  EXPECT_TRUE(IsGood("PrintOption.ToT", "UserOption,2,2,2,2,2\r\n")) << "a grey mark";
}

TEST_F(CheckedFile, LooksAtTheMarksOfEveryPageThatTheDialogLists) {
  const std::string place = "PrintOption.ToT:1: ";
  for (const std::string function :
       {"User", "Trace", "RealTrace", "Mecha", "Sim", "IdxTbl", "ZoneTbl", "JogTbl"}) {
    EXPECT_EQ(Wrong("PrintOption.ToT", function + "Header,1,1,1,1,3,t\r\n"),
              place + function + "Header: element 5: no such choice: '3'");
  }
  for (const std::string marks : {"User", "Trace", "RealTrace", "Mecha", "Sim", "ZoneTbl", "JogTbl"}) {
    EXPECT_EQ(Wrong("PrintOption.ToT", marks + "Option,3,1,1,1,1,1,1,1,1,1,1,1,1\r\n"),
              place + marks + "Option: element 1: no such choice: '3'");
  }
  EXPECT_EQ(Wrong("PrintOption.ToT", "IdxTblOption,0,,,3\r\n"),
            place + "IdxTblOption: element 4: no such choice: '3'");
}

TEST_F(CheckedFile, LeavesTheFileAlone) {
  Wrong("User.tmp", "wrong\r\n");
  EXPECT_EQ(Folder.Read("User.tmp"), "wrong\r\n");
}

}  // namespace
}  // namespace tarvis
