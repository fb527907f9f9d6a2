// Files of the host in code pages of one and two bytes a character.
#include <gtest/gtest.h>

#include <string>

#include "printfiles/host_files.h"
#include "printfiles/jog_tbl_file.h"
#include "printfiles/mecha_file.h"
#include "printfiles/print_options_file.h"
#include "printfiles/sim_file.h"
#include "printfiles/trace_file.h"
#include "printfiles/upwizard_file.h"
#include "printfiles/user_file.h"
#include "printfiles/zone_tbl_file.h"
#include "support/test_run.h"

namespace tarvis {
namespace {

// A text in a code page. Where the code page has such characters, their second bytes are 5C and 7C, which
// alone are the backslash of the escape and a bar.
struct Sample {
  int Page;
  std::string Bytes;
  std::string Text;
};

class FilesInCodePage : public testing::TestWithParam<Sample>, protected TestRun {
 protected:
  using TestRun::Run;

  FilesInCodePage() { Run.CodePage = CodePage(GetParam().Page); }

  // Reads a file whose lines have the sample where they have a $.
  bool Read(bool (*reader)(PrintRun&), std::string lines) {
    for (std::size_t at = 0; (at = lines.find('$', at)) != std::string::npos; at += Bytes.size()) {
      lines.replace(at, 1, Bytes);
    }
    LoadBytes(Run, "any.tmp", lines);
    return reader(Run);
  }

  const std::string& Bytes = GetParam().Bytes;
  const std::string& Text = GetParam().Text;
};

TEST_P(FilesInCodePage, KeepFieldsRestsAndLineBreaksApart) {
  ASSERT_TRUE(Read(ReadUserFile,
                   "MechaInfo,$,$\r\nUserNum,1\r\nUserName,$,$,x\r\nUserValue,$,$,$,$\r\nSwitchNum,1\r\n"
                   "Switch,$,1,2,$\\r\\n$\r\nSwitch3,0,1,$,$,$\\r\\n$\rComment,$\\r\\n$,$"));
  EXPECT_EQ(Run.Header.MechaInfo, Text + "," + Text);
  EXPECT_EQ(Run.User.Prm[0].No, Text);
  EXPECT_EQ(Run.User.Prm[0].Name, Text + ",x");
  EXPECT_EQ(Run.User.Prm[0].Unit, Text);
  EXPECT_EQ(Run.User.Switches[0].Name, Text + "\\r\\n" + Text);
  EXPECT_EQ(Run.User.Switches[0].Digit[3].Text, Text + "\r\n" + Text);
  EXPECT_EQ(Run.User.Comment, Text + "\r\n" + Text + "," + Text);
}

TEST_P(FilesInCodePage, ReadInEveryKindOfFile) {
  ASSERT_TRUE(Read(ReadTraceFile, "CursolSelect,1\r\nCursolInfo1,1,2,3,$,$\r\nDataTrace1,$,1,$\r\n"));
  EXPECT_EQ(Run.Trace.CursolInfo1.NameUnit, Text + "," + Text);
  EXPECT_EQ(Run.Trace.DataTrace1.Unit, Text);
  ASSERT_TRUE(Read(ReadMechaFile, "Notch,$,$,$\r\n"));
  EXPECT_EQ(Run.Mecha.Notch.Value, Text);
  ASSERT_TRUE(Read(ReadSimFile, "Inertia,$,$\\r\\n$,$\r\n"));
  EXPECT_EQ(Run.Sim.Inertia.Value, Text + "\r\n" + Text);
  ASSERT_TRUE(Read(ReadUPWizardFile, "BASE,C:\\$\\$.bmp\r\nRY,1,$,$,$,$\r\n"));
  EXPECT_EQ(Run.UPWizard.Base, "C:\\" + Text + "\\" + Text + ".bmp");
  EXPECT_EQ(Run.UPWizard.Ry[1].Name, Text + "," + Text);
  ASSERT_TRUE(Read(ReadZoneTblFile, "Pos-Unit,$\\r\\n$\r\nZoneCnt,1\r\nZone,1,$,$\r\n"));
  EXPECT_EQ(Run.ZoneTbl.PosUnit, Text + "\r\n" + Text);
  EXPECT_EQ(Run.ZoneTbl.Zone[0].ZoneP, Text);
  ASSERT_TRUE(Read(ReadJogTblFile, "JspdCnt,1\r\nJspd,1,$\r\n"));
  EXPECT_EQ(Run.JogTbl.Jspd[0].Speed, Text);
}

TEST_P(FilesInCodePage, KeepTheOptionsThroughWritingAndReading) {
  const TempFolder folder;
  Run.Session.SystemFolder = folder.HostPath();
  const std::string path = folder.HostPath("PrintOption.ToT");
  Run.Options.DrowSect = Text + "\r\n" + Text;
  Run.Options.DrowLogo = "C:\\" + Text + "\\r\\names.bmp";
  Run.Options.UserHeader.TitleText = Text;
  ASSERT_TRUE(WritePrintOptionsFile(Run, path));
  Run.Options = {};
  ASSERT_GT(LoadLines(Run, path), 0);
  ASSERT_TRUE(ReadPrintOptionsFile(Run));
  EXPECT_EQ(Run.Options.DrowSect, Text + "\r\n" + Text);
  EXPECT_EQ(Run.Options.DrowLogo, "C:\\" + Text + "\\r\\names.bmp");
  EXPECT_EQ(Run.Options.UserHeader.TitleText, Text);
}

TEST_P(FilesInCodePage, SpoilNoOtherLineByHalfACharacterAtTheEndOfOne) {
  const std::string half = Bytes.substr(0, 1);
  LoadBytes(Run, "User.tmp", "FileType," + half + "\r\nComment,whole");
  ASSERT_TRUE(ReadUserFile(Run));
  EXPECT_EQ(Run.User.Comment, "whole");
}

INSTANTIATE_TEST_SUITE_P(All, FilesInCodePage,
                         testing::Values(Sample{1252, "\xC4\\|\xDF", "\u00C4\\|\u00DF"},
                                         Sample{932, "\x95\x5C\x83\x7C", "\u8868\u30DD"},
                                         Sample{936, "\x81\x5C\x81\x7C", "\u4E57\u4E85"},
                                         Sample{949, "\xB0\xA1\xC7\xD1", "\uAC00\uD55C"},
                                         Sample{950, "\xA5\x5C\xA5\x7C", "\u529F\u56DB"}));

}  // namespace
}  // namespace tarvis
