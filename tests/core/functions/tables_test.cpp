// The program tables with their print range, and the tables that spell out the bits of their ID.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "functions/tables/idx_tbl_report.h"
#include "support/report_run.h"

namespace tarvis {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct ProgramTable : testing::Test {
  // Steps 0 to count - 1; those in `defined` hold a program.
  void Fill(int count, std::initializer_list<int> defined = {}) {
    Data.IndexCnt = static_cast<std::int16_t>(count);
    Data.Index.Resize(count);
    for (int step = 0; step < count; ++step) {
      Data.Index[step].Step = std::to_string(step);
      Data.Index[step].Pos = "P" + std::to_string(step);
      Data.Index[step].Acc = "A" + std::to_string(step);
    }
    for (const int step : defined) Data.Index[step].Defined = 1;
  }
  Document Compose(const char* name = "rptIdxIdxTblTable") { return Report.ComposeAlone(name); }
  Texts Steps() { return ColumnOf(Compose(), "txtIdNum"); }

  ReportRun Report;
  IdxTblData& Data = Report.Run.IdxTbl;
  IdxTblOptions& Option = Report.Run.Options.IdxTblOption;
};

TEST_F(ProgramTable, PrintsAllSteps) {
  Fill(3);
  EXPECT_THAT(Steps(), ElementsAre("0", "1", "2"));
}

TEST_F(ProgramTable, FoldsGapsBetweenDefinedStepsIntoOneRow) {
  Fill(128, {2, 7});
  Option.Range = 1;
  const Document document = Compose();
  EXPECT_THAT(ColumnOf(document, "txtIdNum"), ElementsAre("2", ":", "7"));
  EXPECT_THAT(ColumnOf(document, "txtPOSVal"), ElementsAre("P2", "", "P7"));
}

TEST_F(ProgramTable, LeavesNoGapWhereRowsAreLeftOut) {
  Fill(10, {4, 5});
  Option.Range = 1;
  const auto rows = PrintedOf(Compose(), "txtIdNum");
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].Box.Top, 1984 + 298);
  EXPECT_EQ(rows[1].Box.Top, rows[0].Box.Top + 283);
}

TEST_F(ProgramTable, PrintsNoRowWithoutAnyDefinedStep) {
  Fill(16);
  Option.Range = 1;
  EXPECT_THAT(Steps(), IsEmpty());
}

TEST_F(ProgramTable, AllStepsDefinedPrintWithoutGapRow) {
  Fill(3, {0, 1, 2});
  Option.Range = 1;
  EXPECT_THAT(Steps(), ElementsAre("0", "1", "2"));
}

TEST_F(ProgramTable, PrintsARangeOfSteps) {
  Fill(10);
  Option = {2, "3", "5", 0};
  EXPECT_THAT(Steps(), ElementsAre("3", "4", "5"));
}

TEST_F(ProgramTable, ARangeThatRunsBackwardsPrintsNothing) {
  Fill(10);
  Option = {2, "5", "3", 0};
  EXPECT_THAT(Steps(), IsEmpty());
}

TEST_F(ProgramTable, ARangeBeyondTheTablePrintsNothing) {
  Fill(4);
  Option = {2, "50", "60", 0};
  EXPECT_THAT(Steps(), IsEmpty());
}

TEST_F(ProgramTable, NumbersOfTheRangeAreLenient) {
  Fill(4);
  Option = {2, " 1x", "", 0};
  EXPECT_THAT(Steps(), IsEmpty()) << "an empty last step is 0";
  Option = {2, "x", "1.5", 0};
  EXPECT_THAT(Steps(), ElementsAre("0", "1", "2")) << "halves round to the even number";
}

TEST_F(ProgramTable, HalvesOfStepsRoundToTheEvenNumber) {
  Fill(6);
  Option = {2, "0.5", "2.5", 0};
  EXPECT_THAT(Steps(), ElementsAre("0", "1", "2"));
  Option = {2, "1.5", "3.5", 0};
  EXPECT_THAT(Steps(), ElementsAre("2", "3", "4"));
  Option = {2, "2.4", "4.6", 0};
  EXPECT_THAT(Steps(), ElementsAre("2", "3", "4", "5"));
}

TEST_F(ProgramTable, AStepBeyond16BitsIsARunTimeFailureThatNamesIt) {
  Fill(2);
  for (const char* last : {"32767", "32767.4"}) {
    Option = {2, "0", last, 0};
    EXPECT_THAT(Steps(), ElementsAre("0", "1")) << last;
  }
  for (const char* first : {"-32768", "-32768.5"}) {
    Option = {2, first, "1", 0};
    EXPECT_THAT(Steps(), ElementsAre("0", "1")) << first;
  }
  for (const char* beyond : {"32768", "32767.5", "-32769", "-32768.6", "99999"}) {
    for (const bool isFirst : {true, false}) {
      Option = {2, isFirst ? beyond : "0", isFirst ? "1" : beyond, 0};
      try {
        Compose();
        ADD_FAILURE() << beyond;
      } catch (const RunTimeFailure& failure) {
        EXPECT_THAT(failure.what(), AllOf(HasSubstr("IdxTblOption"), HasSubstr(beyond)));
      }
    }
  }
}

TEST_F(ProgramTable, AnUnknownRangeEndsAsARunTimeFailureInsteadOfHanging) {
  Fill(4);
  for (const std::int16_t range : std::initializer_list<std::int16_t>{3, -1}) {
    Option.Range = range;
    EXPECT_THROW(Compose(), RunTimeFailure);
  }
}

TEST_F(ProgramTable, ALongPositionMakesItsRowAndAllLaterOnesHigh) {
  Fill(4);
  // A sign, a point and 14 digits fit their column; one more character doesn't.
  Data.Index[1].Pos = "-12345678.901234";
  Data.Index[2].Pos = "-12345678.9012345";
  const Document document = Compose();
  std::vector<float> heights;
  for (const Printed& printed : PrintedOf(document, "txtSPDVal")) heights.push_back(printed.Box.Height);
  EXPECT_THAT(heights, ElementsAre(283, 283, 400, 400));
  EXPECT_EQ(PrintedOf(document, "txtIdNum")[3].Box.Height, 400) << "the step number is one of them";
}

TEST_F(ProgramTable, PositionSpeedAndDistanceAloneRaiseTheRowsFromTheirLengthOn) {
  struct Column {
    TextOfStep Text;
    std::size_t Raises;  // characters, 0 for never
  };
  for (const char* name : {"rptIdxIdxTblTable", "rptIdxIdxTblExTable"}) {
    for (const Column& column :
         {Column{&IdxRow::Pos, 17}, Column{&IdxRow::Spd, 14}, Column{&IdxRow::Rdst, 14},
          Column{&IdxRow::Rspd, 0}, Column{&IdxRow::Acc, 0}, Column{&IdxRow::Dec, 0},
          Column{&IdxRow::Pout, 0}, Column{&IdxRow::Event, 0}, Column{&IdxRow::Loop, 0},
          Column{&IdxRow::Next, 0}, Column{&IdxRow::Step, 0}}) {
      for (const std::size_t length : {13U, 14U, 16U, 17U, 40U}) {
        Fill(2);
        Data.Index[0].*column.Text = std::string(length, '1');
        const bool isHigh = column.Raises > 0 && length >= column.Raises;
        EXPECT_EQ(PrintedOf(Compose(name), "txtEVENTVal")[1].Box.Height, isHigh ? 400 : 283)
            << name << ", " << length << " characters";
      }
    }
  }
}

TEST_F(ProgramTable, LongSpeedsAndDistancesMakeRowsHighToo) {
  for (const TextOfStep text : {&IdxRow::Spd, &IdxRow::Rdst}) {
    Fill(2);
    Data.Index[0].*text = "1234567890123";
    EXPECT_EQ(PrintedOf(Compose(), "txtPOSVal")[0].Box.Height, 283);
    Data.Index[0].*text = "12345678901234";
    EXPECT_EQ(PrintedOf(Compose(), "txtPOSVal")[0].Box.Height, 400);
  }
}

TEST_F(ProgramTable, ARowLeftOutAtTheEndStillMakesRowsHighOnlyForItself) {
  Fill(3, {0});
  Option.Range = 1;
  Data.Index[1].Pos = "12345678901234567";
  EXPECT_EQ(PrintedOf(Compose(), "txtPOSVal")[0].Box.Height, 283) << "the printed row came before it";
}

TEST_F(ProgramTable, CharactersAreCountedNotBytes) {
  Fill(1);
  Data.Index[0].Pos.clear();
  for (int index = 0; index < 9; ++index)
    Data.Index[0].Pos += "\xE6\xBC\xA2";  // 9 characters, 18 or 27 bytes
  const auto printed = PrintedOf(Compose(), "txtSPDVal");
  EXPECT_EQ(printed[0].Box.Height, 283);
}

TEST_F(ProgramTable, ShowsItsUnitsAfterAColonAndTwoBlanks) {
  Data.Position_Unit = {"POS", "mm"};
  Data.AccDec_Unit = {"ACC/DEC", "ms"};
  Fill(1);
  Document document = Compose();
  EXPECT_THAT(ColumnOf(document, "LblPOS"), ElementsAre("POS"));
  EXPECT_THAT(ColumnOf(document, "txtPosUnit"), ElementsAre(":  mm"));
  EXPECT_THAT(ColumnOf(document, "txtAccDecUnit"), IsEmpty());
  document = Compose("rptIdxIdxTblExTable");
  EXPECT_THAT(ColumnOf(document, "txtAccDecUnit"), ElementsAre(":  ms"));
  EXPECT_THAT(ColumnOf(document, "txtACCval"), ElementsAre("A0"));
}

TEST_F(ProgramTable, ColumnsOfTheTwoLayoutsHaveTheirPlaces) {
  Fill(1);
  const std::vector<std::pair<const char*, Rect>> plain{{"Field1", {20, 1984 + 15, 547, 283}},
                                                        {"Field5", {4677, 1984 + 15, 1276, 283}},
                                                        {"Field9", {8362, 1984 + 15, 567, 283}},
                                                        {"txtNEXTVal", {8362, 1984 + 298, 567, 283}}};
  Document document = Compose();
  for (const auto& [control, place] : plain) EXPECT_EQ(PrintedOf(document, control)[0].Box, place) << control;
  document = Compose("rptIdxIdxTblExTable");
  EXPECT_EQ(PrintedOf(document, "Field11")[0].Box, (Rect{5340, 2268 + 15, 935, 283}));
  EXPECT_EQ(PrintedOf(document, "txtNEXTVal")[0].Box, (Rect{8401, 2268 + 298, 567, 283}));
}

TEST_F(ProgramTable, PrintsItsTitleOnlyWithoutSteps) {
  Fill(0);
  const Document document = Compose();
  EXPECT_EQ(document.Contents.size(), 1U);
  EXPECT_THAT(PrintedOf(document, "Field1"), IsEmpty());
}

TEST_F(ProgramTable, RepeatsItsColumnTitlesOnEachPage) {
  Fill(128);
  const Document document = Compose();
  EXPECT_EQ(document.Pages.size(), 3U);
  EXPECT_EQ(PrintedOf(document, "Field1").size(), 3U);
}

struct BitTables : testing::Test {
  void Zones(std::initializer_list<std::int16_t> ids) {
    ZoneTblData& data = Report.Run.ZoneTbl;
    data.ZoneCnt = static_cast<std::int16_t>(ids.size());
    data.Zone.Resize(data.ZoneCnt);
    int index = 0;
    for (const std::int16_t id : ids) data.Zone[index++] = {id, "N", "P"};
  }
  void Jogs(std::initializer_list<std::int16_t> ids) {
    JogTblData& data = Report.Run.JogTbl;
    data.JspdCnt = static_cast<std::int16_t>(ids.size());
    data.Jspd.Resize(data.JspdCnt);
    int index = 0;
    for (const std::int16_t id : ids) data.Jspd[index++] = {id, "100"};
  }
  // The marks of each row, highest bit first: "X.X" and so on.
  Texts Marks(const char* report, std::initializer_list<const char*> controls) {
    const Document document = Report.ComposeAlone(report);
    Texts rows;
    for (const char* control : controls) {
      const Texts column = ColumnOf(document, control);
      rows.resize(column.size());
      for (std::size_t row = 0; row < column.size(); ++row)
        rows[row] += column[row].empty() ? "." : column[row];
    }
    return rows;
  }
  Texts ZoneMarks() {
    return Marks("rptIdxZoneTblTable", {"txtZ4Val", "txtZ3Val", "txtZ2Val", "txtZ1Val", "txtZ0Val"});
  }
  Texts JogMarks() { return Marks("rptIdxJogTblTable", {"txtJ3Val", "txtJ2Val", "txtJ1Val", "txtJ0Val"}); }

  ReportRun Report;
};

TEST_F(BitTables, SpellOutTheBitsOfTheirId) {
  Zones({0, 21, 31, 1, -1});
  EXPECT_THAT(ZoneMarks(), ElementsAre(".....", "X.X.X", "XXXXX", "....X", "XXXXX"));
  Jogs({21, 0, 8});
  EXPECT_THAT(JogMarks(), ElementsAre(".X.X", "....", "X...")) << "bit 4 has no column here";
}

TEST_F(BitTables, PrintTheIdAsANumber) {
  Zones({7, -1});
  EXPECT_THAT(ColumnOf(Report.ComposeAlone("rptIdxZoneTblTable"), "txtIdNum"), ElementsAre("7", "-1"));
}

TEST_F(BitTables, ShowTheLegendOnceAfterTheLastRow) {
  Zones({1, 2, 3});
  const Document document = Report.ComposeAlone("rptIdxZoneTblTable");
  EXPECT_THAT(ColumnOf(document, "Label3"), ElementsAre("X:Active    Blank:Non-Active"));
  EXPECT_EQ(PrintedOf(document, "txtIdNum")[2].Box, (Rect{570, 1134 + 300 + 600, 570, 300}));
}

TEST_F(BitTables, PrintTitleUnitColumnTitlesAndLegendWithoutRows) {
  Report.Run.ZoneTbl.PosUnit = "mm";
  const Document document = Report.ComposeAlone("rptIdxZoneTblTable");
  EXPECT_THAT(ColumnOf(document, "txtUnit"), ElementsAre("mm"));
  EXPECT_THAT(ColumnOf(document, "txtZONEN"), ElementsAre("ZONEN"));
  EXPECT_EQ(ColumnOf(document, "Label3").size(), 1U);
  EXPECT_THAT(PrintedOf(document, "txtIdNum"), IsEmpty());
}

TEST_F(BitTables, ColumnsHaveTheirPlaces) {
  Zones({1});
  Jogs({1});
  const Document zone = Report.ComposeAlone("rptIdxZoneTblTable");
  EXPECT_EQ(PrintedOf(zone, "txtID")[0].Box, (Rect{570, 1134, 570, 300}));
  EXPECT_EQ(PrintedOf(zone, "txtZONEPVal")[0].Box, (Rect{6405, 1434, 2415, 300}));
  const Document jog = Report.ComposeAlone("rptIdxJogTblTable");
  EXPECT_EQ(PrintedOf(jog, "txtJSPDVal")[0].Box, (Rect{3420, 1434, 3968, 300}));
  EXPECT_EQ(jog.Contents.at(0).Text, "Jog Speed Table");
}

TEST_F(BitTables, RepeatTheirTitlesAboveALegendThatMovedAlone) {
  Jogs({1, 2});
  // Title 1134, titles 300, two rows of 300: the legend of 313 goes to the next page.
  const Document document = Report.ComposeAlone("rptIdxJogTblTable", 1134 + 300 + 600 + 100);
  ASSERT_EQ(document.Pages.size(), 2U);
  EXPECT_EQ(PrintedOf(document, "txtJSPD").size(), 2U);
}

}  // namespace
}  // namespace tarvis
