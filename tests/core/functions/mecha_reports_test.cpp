// One mechanical analysis on paper.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/golden.h"
#include "support/host_run.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct MechanicalAnalysis : HostRun {
  MechanicalAnalysis() {
    Run.Session.Mode = Mode::Mecha;
    Run.Options.MechaHeader = {1, 1, 1, 1, 1, "Mechanical Analysis"};
    Run.Options.MechaOption = {1, 1, 1, 1, 1};
  }

  void WriteAnalysis(const std::string& cursolSelect) {
    WriteLines("Mecha.tmp", {"MechaInfo,Servo pack 400 W",
                             "File,axis1.mec",
                             "MechaGraph1," + Picture("gain.bmp"),
                             "MechaGraph2," + Picture("phase.bmp"),
                             "CursolSelect," + cursolSelect,
                             "CursolName,Point A,Point B,Difference",
                             "CursolInfo1,100,250,150,Frequency [Hz]",
                             "CursolInfo2,-3.0,-20.5,-17.5,Gain [dB]",
                             "CursolInfo3,-90,-180,-90,Phase [deg]",
                             "Resonance,Resonance,Detected,",
                             "Resonance1,Resonance 1,480,Hz",
                             "Resonance2,Resonance 2,910,Hz",
                             "AntiResonance,Anti-resonance,360,Hz",
                             "Notch,Notch filter 1,480,Hz",
                             "RunMode,Run mode,Speed,",
                             "AddVibSignal,Signal,Swept sine,",
                             "CycleCount,Cycles,4,times",
                             "AddVibRange,Amplitude,5,%",
                             "MeasureCount,Measurements,3,times",
                             "SamplingCycle,Sampling cycle,125,us",
                             "AddVibTime,Excitation time,2.5,s",
                             "GetDataDate,2026/03/05 10:11",
                             "CommentCnt,1",
                             "Comment,Table clamped"});
  }
};

TEST_F(MechanicalAnalysis, KeepsTheNotchOnPageOneOfA4) {
  WriteAnalysis("3");
  const Document document = Report.ComposeMaster();
  EXPECT_THAT(EntriesOf(document),
              ElementsAre("1: Gain Graph/Phase Graph @ 855", "1: Resonance/Anti-Resonance  @ 11263",
                          "1: Notch Filters Info @ 13450", "2: Measurement Conditions @ 0",
                          "2: Acquisition Date of the Data @ 3036", "2: Comments @ 4170"));
  EXPECT_EQ(document.Contents[2].Top + 630 + 425 + 283, 720 + 14788);
  EXPECT_EQ(document.Contents[1].Text, "Resonance/Anti-Resonance ") << "the blank at its end is kept";
  ExpectGolden("mecha", Dump(document));
}

struct MechaGraph : HostRun {
  MechaGraph() {
    Data.MechaGraph1 = Picture("gain.bmp");
    Data.MechaGraph1C = Picture("gain_c.bmp");
    Data.MechaGraph2 = Picture("phase.bmp");
    Data.MechaGraph2C = Picture("phase_c.bmp");
    Data.CursolName = {"Point A", "Point B", "Difference"};
    Data.CursolInfo1 = {"100", "250", "150", "Frequency [Hz]"};
    Data.CursolInfo2 = {"-3.0", "-20.5", "-17.5", "Gain [dB]"};
    Data.CursolInfo3 = {"-90", "-180", "-91", "Phase [deg]"};
  }

  Document Compose(std::int16_t cursolSelect) {
    Data.CursolSelect = cursolSelect;
    return Report.ComposeAlone("rptMechaGraph");
  }

  MechaData& Data = Run.Mecha;
};

TEST_F(MechaGraph, PrintsThreeRowsInFourColumnsForMostSelections) {
  for (const std::int16_t select : std::initializer_list<std::int16_t>{1, 3, -1, 4}) {
    const Document document = Compose(select);
    EXPECT_THAT(ColumnOf(document, "Label4"), ElementsAre("[Cursor Data]"));
    EXPECT_THAT(ColumnOf(document, "txtTitleName"), ElementsAre("Name/Unit"));
    EXPECT_THAT(ColumnOf(document, "txtTitleCurA"), ElementsAre("Point A"));
    EXPECT_THAT(ColumnOf(document, "txtTitleCurB"), ElementsAre("Point B"));
    EXPECT_THAT(ColumnOf(document, "txtTitleCurB_A"), ElementsAre("Difference"));
    EXPECT_THAT(ColumnOf(document, "txtValueName"),
                ElementsAre("Frequency [Hz]", "Gain [dB]", "Phase [deg]"));
    EXPECT_THAT(ColumnOf(document, "txtValueCurA"), ElementsAre("100", "-3.0", "-90"));
    EXPECT_THAT(ColumnOf(document, "txtValueCurB"), ElementsAre("250", "-20.5", "-180"));
    EXPECT_THAT(ColumnOf(document, "txtValueCurB_A"), ElementsAre("150", "-17.5", "-91"));
  }
}

TEST_F(MechaGraph, SelectionTwoHidesTheColumnOfCursorB) {
  const Document document = Compose(2);
  EXPECT_THAT(PrintedOf(document, "txtTitleCurB"), IsEmpty());
  EXPECT_THAT(PrintedOf(document, "txtValueCurB"), IsEmpty());
  EXPECT_EQ(PrintedOf(document, "txtValueCurA").size(), 3U);
  EXPECT_EQ(PrintedOf(document, "txtValueCurB_A").at(0).Box.Left, 6945)
      << "the last column stays in its place";
}

TEST_F(MechaGraph, TheColumnOfTheDifferenceStaysWithoutCursors) {
  const Document document = Compose(0);
  for (const char* control : {"Label4", "txtTitleName", "txtTitleCurA", "txtTitleCurB", "txtValueName",
                              "txtValueCurA", "txtValueCurB"}) {
    EXPECT_THAT(PrintedOf(document, control), IsEmpty()) << control;
  }
  EXPECT_THAT(ColumnOf(document, "txtTitleCurB_A"), ElementsAre("Difference"));
  EXPECT_THAT(ColumnOf(document, "txtValueCurB_A"), ElementsAre("150", "-17.5", "-91"));
  EXPECT_EQ(PrintedOf(document, "txtTitleCurB_A").at(0).Box.Top, 630 + 7938 + 142)
      << "the graphs' section ends with the phase graph";
}

TEST_F(MechaGraph, MissingCursorNamesLeaveTheTitlesEmpty) {
  Data.CursolName = {};
  const Document document = Compose(3);
  EXPECT_THAT(ColumnOf(document, "txtTitleCurA"), ElementsAre(""));
  EXPECT_THAT(ColumnOf(document, "txtTitleCurB_A"), ElementsAre(""));
}

TEST_F(MechaGraph, TheFirstTitleIsOffTheLineOfItsNeighbours) {
  const Document document = Compose(3);
  const float guide = 630 + 8504;
  EXPECT_EQ(PrintedOf(document, "txtTitleName").at(0).Box, (Rect{135, guide + 135, 2834, 285}));
  EXPECT_EQ(PrintedOf(document, "txtTitleCurA").at(0).Box, (Rect{2976, guide + 142, 1985, 283}));
  EXPECT_EQ(PrintedOf(document, "txtValueName").at(0).Box, (Rect{142, guide + 425, 2834, 283}));
}

TEST_F(MechaGraph, TitlesComeAgainWhereTheTableGoesOnOnTheNextPage) {
  const Document document = Report.ComposeAlone("rptMechaGraph", 630 + 7938 + 425 + 283);
  ASSERT_EQ(document.Pages.size(), 2U);
  EXPECT_EQ(PrintedOf(document, "txtTitleCurB_A").size(), 2U);
  EXPECT_EQ(PrintedOf(document, "txtValueCurB_A").at(1).Box.Top, 425);
}

TEST_F(MechaGraph, PrintsThePicturesOfTheChosenLook) {
  Data.MechaGraph1C = Data.MechaGraph2C = PathOf("gone.bmp");
  Compose(0);
  EXPECT_THAT(Report.Pictures.Loaded, ElementsAre(Data.MechaGraph1, Data.MechaGraph2));
}

TEST_F(MechaGraph, BothBlackAndWhiteGraphsAreRequired) {
  Data.MechaGraph2.clear();
  ExpectFailure("rptMechaGraph", "Graph File (Black & White) is not found.");
  Data.MechaGraph1 = PathOf("gone.bmp");
  ExpectFailure("rptMechaGraph", "Graph File (Black & White) is not found.");
  EXPECT_THAT(Report.Pictures.Loaded, ElementsAre(HasSubstr("gain.bmp"))) << "the gain graph comes first";
}

TEST_F(MechaGraph, AMissingColorPhaseGraphEndsTheRunOnceTheGainGraphIsLoaded) {
  Run.Options.ColorType = 1;
  Data.MechaGraph1 = Data.MechaGraph2 = PathOf("gone.bmp");
  Data.MechaGraph2C = PathOf("gone.bmp");
  ExpectFailure("rptMechaGraph", "Graph File (Color) is not found.");
  EXPECT_THAT(Report.Pictures.Loaded, ElementsAre(HasSubstr("gain_c.bmp")));
}

TEST_F(MechaGraph, LegendsAreNotLookedAt) {
  Data.MechaNote = Data.MechaNoteC = PathOf("gone.bmp");
  EXPECT_EQ(Compose(3).Pages.size(), 1U);
  EXPECT_THAT(Report.Pictures.Loaded, ElementsAre(Data.MechaGraph1, Data.MechaGraph2));
}

TEST_F(MechaGraph, AnUnknownColorTypePrintsEmptyBoxes) {
  Run.Options.ColorType = 2;
  Data.MechaGraph1.clear();
  const Document document = Compose(3);
  EXPECT_THAT(PrintedOf(document, "imgGraph1"), IsEmpty());
  EXPECT_THAT(ColumnOf(document, "Label2"), ElementsAre("[Gain Graph]"));
  EXPECT_THAT(ColumnOf(document, "Label5"), ElementsAre("[Phase Graph]"));
}

struct MechaTables : HostRun {};

TEST_F(MechaTables, PrintAllTheirRowsAlsoWhenTheFileHasNone) {
  const std::vector<std::pair<const char*, std::size_t>> tables{
      {"rptMechaResonance", 4}, {"rptMechaNotch", 1}, {"rptMechaMeasure", 7}};
  for (const auto& [report, rows] : tables) {
    const Document document = Report.ComposeAlone(report);
    EXPECT_EQ(PrintedOf(document, "txtValueName").size(), rows) << report;
    for (const char* control : {"txtValueName", "txtValueVal", "txtValueUnit"}) {
      EXPECT_EQ(ColumnOf(document, control), std::vector<std::string>(rows)) << report;
    }
  }
}

TEST_F(MechaTables, EnterTheContentsAtTopLevelAlsoWithAGroup) {
  Run.Session.TocGroup = "left over";
  for (const char* report : {"rptMechaResonance", "rptMechaNotch", "rptMechaMeasure"}) {
    const Document document = Report.ComposeAlone(report);
    ASSERT_EQ(document.Contents.size(), 1U);
    EXPECT_EQ(document.Contents[0].Level, 0);
  }
}

TEST_F(MechaTables, UnitsAreAtTheRight) {
  Run.Mecha.Notch = {"Notch filter 1", "480", "Hz"};
  const Document document = Report.ComposeAlone("rptMechaNotch");
  for (const Item& item : document.Items) {
    if (item.Kind != ItemKind::Text || document.Names[item.Control] != "txtValueUnit") continue;
    EXPECT_NEAR(item.Box.Right(), 6661 + 2268 - 30, 0.01);
  }
}

}  // namespace
}  // namespace tarvis
