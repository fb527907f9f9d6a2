// The program, zone and jog speed tables on paper: both layouts with each print range, and whole pages.
#include "support/golden.h"
#include "support/host_run.h"
#include "support/structure_text.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

struct ProgramTables : HostRun {
  ProgramTables() { Run.Options.IdxTblOption = {0, "0", "127", 0}; }

  // Steps 0 to count - 1, none of them with a program but those of `defined`.
  void AddSteps(int count, std::initializer_list<int> defined = {}) {
    Table.IndexCnt = static_cast<std::int16_t>(count);
    Table.Index.Resize(count);
    for (int step = 0; step < count; ++step) {
      IdxRow& row = Table.Index[step];
      row = {std::to_string(step), "I+1000", "1000", "A2000", "500", "10", "20", "NNN", "IT", "1", "END", 0};
    }
    for (const int step : defined) Table.Index[step].Defined = 1;
  }
  void Print(std::int16_t range, const std::string& first = "0", const std::string& last = "127") {
    Run.Options.IdxTblOption = {range, first, last, 0};
  }
  std::vector<std::string> Steps(const std::string& report = "rptIdxIdxTblTable") {
    return ColumnOf(Report.ComposeAlone(report), "txtIdNum");
  }
  std::vector<float> Heights(const std::string& control = "txtPOSVal",
                             const std::string& report = "rptIdxIdxTblTable") {
    std::vector<float> heights;
    const Document document = Report.ComposeAlone(report);
    for (const Printed& cell : PrintedOf(document, control)) heights.push_back(cell.Box.Height);
    return heights;
  }

  IdxTblData& Table = Run.IdxTbl;
};

TEST_F(ProgramTables, FoldGapsBetweenProgramsIntoOneRow) {
  AddSteps(128, {2, 7});
  Print(1);
  for (const char* report : {"rptIdxIdxTblTable", "rptIdxIdxTblExTable"}) {
    EXPECT_THAT(Steps(report), ElementsAre("2", ":", "7")) << report;
    const Document document = Report.ComposeAlone(report);
    for (const char* column : {"txtPOSVal", "txtSPDVal", "txtRDSTVal", "txtRSPDVal", "txtPOUTVal",
                               "txtEVENTVal", "txtLOOPVal", "txtNEXTVal"}) {
      EXPECT_EQ(ColumnOf(document, column).at(1), "") << column;
      EXPECT_NE(ColumnOf(document, column).at(2), "") << column;
    }
  }
}

TEST_F(ProgramTables, PassOverAThousandEmptyStepsOnOnePage) {
  AddSteps(1000, {0, 999});
  Print(1);
  const Document document = Report.ComposeAlone("rptIdxIdxTblTable");
  EXPECT_THAT(ColumnOf(document, "txtIdNum"), ElementsAre("0", ":", "999"));
  EXPECT_THAT(document.Pages, SizeIs(1));
}

TEST_F(ProgramTables, PrintARange) {
  AddSteps(128, {2});
  Print(2, "5", "7");
  EXPECT_THAT(Steps(), ElementsAre("5", "6", "7"));
  Print(2, "0", "0");
  EXPECT_THAT(Steps(), ElementsAre("0"));
  Print(2, "127", "127");
  EXPECT_THAT(Steps(), ElementsAre("127"));
}

TEST_F(ProgramTables, PrintTheTitlesOverARangeThatStartsLater) {
  AddSteps(128);
  Print(2, "100", "101");
  const Document document = Report.ComposeAlone("rptIdxIdxTblTable");
  EXPECT_THAT(ColumnOf(document, "Field1"), ElementsAre("STEP"));
  EXPECT_EQ(PrintedOf(document, "txtIdNum").at(0).Box.Top, PrintedOf(document, "Field1").at(0).Box.Bottom());
}

TEST_F(ProgramTables, EndTheRunForAnUnknownRangeInsteadOfPrintingForEver) {
  AddSteps(8);
  for (const std::int16_t range : {std::int16_t{3}, std::int16_t{-1}}) {
    Print(range);
    EXPECT_THROW(Report.ComposeAlone("rptIdxIdxTblTable"), RunTimeFailure) << range;
    EXPECT_THROW(Report.ComposeAlone("rptIdxIdxTblExTable"), RunTimeFailure) << range;
  }
}

TEST_F(ProgramTables, CountCharactersAndNotBytes) {
  AddSteps(1);
  Table.Index[0].Pos = "\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4\u00e4";  // 9 characters, 18 bytes
  EXPECT_THAT(Heights("txtIdNum"), ElementsAre(283));
  Table.Index[0].Pos = "12345678901234\U0001F600";  // the last one counts twice: 16
  EXPECT_THAT(Heights("txtIdNum"), ElementsAre(283));
  Table.Index[0].Pos = "123456789012345\U0001F600";
  EXPECT_THAT(Heights("txtIdNum"), ElementsAre(400));
}

TEST_F(ProgramTables, MakeGapRowsTallAfterATallRow) {
  AddSteps(5, {1, 4});
  Table.Index[1].Pos = "-123456789012.345";
  Print(1);
  EXPECT_THAT(Heights("txtIdNum"), ElementsAre(400, 400, 400));
}

TEST_F(ProgramTables, KeepTheirHeightForALongValueOfAStepThatDoesNotPrint) {
  AddSteps(8, {1});
  Table.Index[0].Pos = "-123456789012.345";
  Print(1);
  EXPECT_THAT(Heights("txtIdNum"), ElementsAre(283));
  Print(2, "1", "2");
  EXPECT_THAT(Heights("txtIdNum"), ElementsAre(283, 283));
}

struct ProgramTableFiles : ProgramTables {
  Document ComposeFile(const std::string& type) {
    Run.Session.Mode = Mode::IdxTbl;
    Run.Options.IdxTblHeader = {1, 1, 0, 1, 1, "Program table"};
    Run.Options.IdxTblOption = {1, "0", "127", 1};
    WriteLines(
        "IdxIdxTbl.tmp",
        {"File-Spec,3", "MechaInfo,Servo pack 400 W", "File,axis1.idx", "TblType," + type,
         "Position_Unit,POS,[reference unit]", "Speed_Unit,SPD,[reference unit/s]",
         "Rdst_Unit,RDST,[reference unit]", "Rspd_Unit,RSPD,[reference unit/s]", "AccDec_Unit,ACC/DEC,[ms]",
         "IndexCnt,4", "Index,0,I+1000,1000,+500,200,10,20,NNA,IT500,1,1,1", "Index,1,,,,,,,,,,,0",
         "Index,2,A-99999999.9999999,1500,,,,,ZZZ,NEXT,99999,END,1", "Index,3,,,,,,,,,,,0", "CommentCnt,1",
         "Comment,Loading station"});
    return Report.ComposeMaster();
  }
};

TEST_F(ProgramTableFiles, PrintAsPlainTable) {
  const Document document = ComposeFile("0");
  EXPECT_THAT(EntriesOf(document), SizeIs(2));
  ExpectGolden("program_table", Dump(document));
}

TEST_F(ProgramTableFiles, PrintAsExtendedTable) {
  ExpectGolden("program_table_extended", Dump(ComposeFile("1")));
}

TEST_F(ProgramTableFiles, PrintCommentsAloneForAnUnknownType) {
  EXPECT_THAT(EntriesOf(ComposeFile("2")), ElementsAre(HasSubstr("Comments")));
}

struct PatternTables : HostRun {};

TEST_F(PatternTables, GrowWithAUnitOfTwoLines) {
  Run.ZoneTbl.PosUnit = "[mm]\r\n(0.001)";
  Run.JogTbl.SpeedUnit = "[min-1]\r\n(0.1)";
  const Document zones = Report.ComposeAlone("rptIdxZoneTblTable");
  EXPECT_THAT(PrintedOf(zones, "txtUnit").at(0).Texts, ElementsAre("[mm]", "(0.001)"));
  EXPECT_NEAR(PrintedOf(zones, "txtID").at(0).Box.Top, 850 + 2 * 201.1, 1);
  EXPECT_THAT(PrintedOf(Report.ComposeAlone("rptIdxJogTblTable"), "txtUnit").at(0).Texts,
              ElementsAre("[min-1]", "(0.1)"));
}

TEST_F(PatternTables, PrintAZoneFile) {
  Run.Session.Mode = Mode::ZoneTbl;
  Run.Options.ZoneTblHeader = {1, 1, 1, 1, 1, "Zone table"};
  Run.Options.ZoneTblOption = 1;
  WriteLines("IdxZoneTbl.tmp",
             {"File-Spec,3", "MechaInfo,Servo pack 400 W", "File,axis1.zon", "Pos-Unit,[reference unit]",
              "ZoneCnt,3", "Zone,0,-100,+100", "Zone,21,+1000,+2000", "Zone,31,+2000,+99999999",
              "CommentCnt,1", "Comment,Door"});
  const Document document = Report.ComposeMaster();
  EXPECT_THAT(EntriesOf(document), ElementsAre("1: Zone Table @ 855", testing::HasSubstr("1: Comments")));
  ExpectGolden("zone_table", Dump(document));
  ExpectGolden("zone_table_structure", StructureOf(document));
}

TEST_F(PatternTables, PrintAJogSpeedFile) {
  Run.Session.Mode = Mode::JogTbl;
  Run.Options.JogTblHeader = {1, 1, 1, 1, 1, "Jog speed table"};
  WriteLines("IdxJogTbl.tmp", {"File-Spec,3", "File,axis1.jog", "Speed-Unit,[reference unit/s]", "JspdCnt,2",
                               "Jspd,1,1000", "Jspd,10,2500", "CommentCnt,1", "Comment,Door"});
  const Document document = Report.ComposeMaster();
  EXPECT_THAT(EntriesOf(document), ElementsAre("1: Jog Speed Table @ 855"));
  ExpectGolden("jog_table", Dump(document));
}

TEST_F(PatternTables, PrintRowsThatTheFileDoesNotHoldAsZero) {
  Run.ZoneTbl.Zone.Resize(2);
  Run.ZoneTbl.Zone[0] = {1, "1", "2"};
  Run.ZoneTbl.ZoneCnt = 2;
  EXPECT_THAT(ColumnOf(Report.ComposeAlone("rptIdxZoneTblTable"), "txtIdNum"), ElementsAre("1", "0"));
}

}  // namespace
}  // namespace tarvis
