// The reports of one simulation: info, reference settings, servo drive and mechanical settings.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/host_run.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<float> HeightsOf(const Document& document, const std::string& control) {
  std::vector<float> heights;
  for (const Printed& printed : PrintedOf(document, control)) heights.push_back(printed.Box.Height);
  return heights;
}

struct SimReports : HostRun {
  SimData& Sim = Report.Run.Sim;
};

TEST_F(SimReports, InfoListsControlReferenceAndSettingTime) {
  Sim.Control = {"Control Mode", "Position", "-"};
  Sim.Ref = {"Reference", "Speed", "min-1"};
  Sim.SettingTime = {"Setting Time", "12.5", "ms"};
  const Document document = Report.ComposeAlone("rptSimInfo");
  EXPECT_THAT(ColumnOf(document, "txtValueName"), ElementsAre("Control Mode", "Reference", "Setting Time"));
  EXPECT_THAT(ColumnOf(document, "txtValueUnit"), ElementsAre("-", "min-1", "ms"));
  EXPECT_EQ(PrintedOf(document, "txtTitleUnit")[0].Box, (Rect{7228, 630 + 142, 1701, 283}));
}

struct RegularPattern : SimReports {
  RegularPattern() {
    Sim.PatternSetting.PatternName = "Trapezoid";
    Sim.PatternSetting.PatternCount = 3;
    Sim.SamplingCycle = {"Sampling", "0.5", "ms"};
    Sim.SimTime = {"Time", "100", "ms"};
    Sim.StartTime.Name = "Start Time";
    Sim.StartTime.Unit = "ms";
    for (int value = 0; value <= 10; ++value) Sim.StartTime.Values[value] = std::to_string(value);
    Sim.FilType = {"Filter", "Average", "-"};
    Sim.FilTime = {"Filter Time", "2", "ms"};
  }
};

TEST_F(RegularPattern, ShowsItsHeadingLines) {
  const Document document = Report.ComposeAlone("rptSimRef1");
  EXPECT_THAT(ColumnOf(document, "txtValuePattern"), ElementsAre(": Trapezoid"));
  EXPECT_THAT(ColumnOf(document, "txtValueSampleTime"), ElementsAre(": 0.5 [ms]"));
  EXPECT_THAT(ColumnOf(document, "txtValueSimTime"), ElementsAre(": 100 [ms]"));
  EXPECT_THAT(ColumnOf(document, "Label3"), ElementsAre("Reference Sampling Time"));
}

TEST_F(RegularPattern, ALongHeadingRunsOnToTheRightInOneLine) {
  Sim.PatternSetting.PatternName =
      "a name of a pattern that is much longer than the room that its design gives it";
  const Document document = Report.ComposeAlone("rptSimRef1");
  for (const Item& item : document.Items) {
    if (document.Names[item.Control] != "txtValuePattern") continue;
    EXPECT_GT(item.Box.Width, 2551);
    EXPECT_EQ(item.Box.Width, document.Texts[item.Source].Advance);
  }
}

TEST_F(RegularPattern, ShowsAsManyColumnsAsThePatternCounts) {
  const Document document = Report.ComposeAlone("rptSimRef1");
  EXPECT_EQ(PrintedOf(document, "txtValueName").size(), 8U);
  EXPECT_THAT(ColumnOf(document, "txtTitleValue3"), ElementsAre("3"));
  EXPECT_THAT(PrintedOf(document, "txtTitleValue4"), IsEmpty());
  EXPECT_EQ(PrintedOf(document, "txtValueVal3").size(), 8U);
  EXPECT_THAT(PrintedOf(document, "txtValueVal4"), IsEmpty());
}

TEST_F(RegularPattern, ShowsNamesAndUnitsOnlyWithoutCount) {
  Sim.PatternSetting.PatternCount = 0;
  const Document document = Report.ComposeAlone("rptSimRef1");
  EXPECT_THAT(PrintedOf(document, "txtTitleValue1"), IsEmpty());
  EXPECT_THAT(PrintedOf(document, "txtValueVal1"), IsEmpty());
  EXPECT_EQ(PrintedOf(document, "txtValueUnit").size(), 8U);
}

TEST_F(RegularPattern, ANegativeCountHidesAllButTheFirstColumn) {
  Sim.PatternSetting.PatternCount = -1;
  const Document document = Report.ComposeAlone("rptSimRef1");
  EXPECT_EQ(PrintedOf(document, "txtTitleValue1").size(), 1U);
  EXPECT_THAT(PrintedOf(document, "txtTitleValue2"), IsEmpty());
}

TEST_F(RegularPattern, AnEleventhValueStaysUnseen) {
  Sim.PatternSetting.PatternCount = 11;
  const Document document = Report.ComposeAlone("rptSimRef1");
  EXPECT_EQ(ColumnOf(document, "txtValueVal10")[0], "9");
  EXPECT_EQ(PrintedOf(document, "txtTitleValue10")[0].Box, (Rect{9071, 1701 + 142, 709, 283}));
}

TEST_F(RegularPattern, ShowsTheFilterBelow) {
  const Document document = Report.ComposeAlone("rptSimRef1");
  EXPECT_THAT(ColumnOf(document, "txtValueNameG1"), ElementsAre("Filter"));
  EXPECT_THAT(ColumnOf(document, "txtValueValG1"), ElementsAre("Average"));
  EXPECT_THAT(ColumnOf(document, "txtValueUnitG2"), ElementsAre("ms"));
  const float rows = 1701 + 425 + 8 * 283;
  EXPECT_EQ(PrintedOf(document, "txtValueNameG2")[0].Box, (Rect{142, rows + 850, 3685, 284}));
}

struct FreePattern : SimReports {
  FreePattern() {
    Sim.PatternSetting.PatternName = "Free";
    Sim.PatternSetting.PatternCount = 41;
    Sim.StartPointTime.Name = "Start Time";
    Sim.StartPointTime.Unit = "[ms]";
    Sim.EndTime.Name = "End Time";
    Sim.EndTime.Unit = "[ms]";
    Sim.ArrivalSpeed.Name = "Arrival Speed";
    Sim.ArrivalSpeed.Unit = "[min-1]";
    Sim.SimTime = {"Time", "100", "s"};
    for (int point = 0; point <= 40; ++point) Sim.EndTime.Values[point] = std::to_string(point * 10);
  }
};

TEST_F(FreePattern, ListsItsPoints) {
  const Document document = Report.ComposeAlone("rptSimRef2");
  const Texts numbers = ColumnOf(document, "txtValNo");
  ASSERT_EQ(numbers.size(), 41U);
  EXPECT_EQ(numbers[0], "1");
  EXPECT_EQ(ColumnOf(document, "txtValEndTime")[40], "400");
}

TEST_F(FreePattern, TakesTitlesAndTheTimeUnitFromThePointLists) {
  const Document document = Report.ComposeAlone("rptSimRef2");
  EXPECT_THAT(ColumnOf(document, "txtTitleStartTime"), ElementsAre("Start Time [ms]"));
  EXPECT_THAT(ColumnOf(document, "txtTitleArrivalSpeed"), ElementsAre("Arrival Speed [min-1]"));
  EXPECT_THAT(ColumnOf(document, "txtValueSimTime"), ElementsAre(": 100 [ms]"));
  EXPECT_THAT(ColumnOf(document, "Label3"), ElementsAre("Simulation Time")) << "the two labels changed roles";
}

TEST_F(FreePattern, PrintsItsTitlesAndNoRowWithoutPoints) {
  Sim.PatternSetting.PatternCount = 0;
  const Document document = Report.ComposeAlone("rptSimRef2");
  EXPECT_EQ(PrintedOf(document, "txtTitleNo").size(), 1U);
  EXPECT_THAT(PrintedOf(document, "txtValNo"), IsEmpty());
}

TEST_F(FreePattern, MorePointsThanThereAreIsARunTimeFailure) {
  Sim.PatternSetting.PatternCount = 42;
  EXPECT_THROW(Report.ComposeAlone("rptSimRef2"), RunTimeFailure);
}

struct ServoSettings : SimReports {
  ServoSettings() {
    Sim.MtRatedOutput.Name = "never";
    Sim.MtRatedTorque.Name = "Rated Torque";
    Sim.MtRatedCurrent.Name = "Rated Current";
    Sim.MtMaxCurrent.Name = "Max Current";
    Sim.MtRatedPowerRate.Name = "Power Rate";
    Sim.MtRatedAnglulerAcc.Name = "Angular Acc";
    Sim.MtBrakeCompensation.Name = "Brake";
    Sim.MtOilSealCompensation.Name = "Oil Seal";
    Sim.PgType.Name = "Encoder";
    Sim.FcType.Name = "Cooling";
  }
};

TEST_F(ServoSettings, ListEighteenRowsWithABlankOneAheadOfTheTypes) {
  const Texts names = ColumnOf(Report.ComposeAlone("rptSimSettingSvMt"), "txtValueName");
  ASSERT_EQ(names.size(), 18U);
  EXPECT_EQ(names[2], "Rated Current");
  EXPECT_EQ(names[3], "Max Current");
  EXPECT_EQ(names[8], "Power Rate");
  EXPECT_EQ(names[14], "");
  EXPECT_EQ(names[15], "Encoder");
  EXPECT_THAT(names, testing::Not(testing::Contains("never")));
}

TEST_F(ServoSettings, OmitFourRowsForMotorTypeOne) {
  Sim.MotorType = 1;
  const Texts names = ColumnOf(Report.ComposeAlone("rptSimSettingSvMt"), "txtValueName");
  ASSERT_EQ(names.size(), 14U);
  for (const char* left : {"Power Rate", "Angular Acc", "Brake", "Oil Seal"}) {
    EXPECT_THAT(names, testing::Not(testing::Contains(left)));
  }
  EXPECT_EQ(names[10], "");
  EXPECT_EQ(names[13], "Cooling");
}

struct MechanicalSettings : SimReports {
  MechanicalSettings() {
    Folder.Write("model.bmp", "x");
    Sim.MechaType = {"Mechanical Model", "Two inertias", Folder.SystemPath() + "model.bmp"};
    Sim.Inertia = {"Inertia", "1.0\r\n2.0", "kg\r\nkg"};
    Sim.ResPoint = {"Resonance", "400", "Hz"};
    Sim.AntiResPoint = {"Anti-Resonance", "300", "Hz"};
  }
};

TEST_F(MechanicalSettings, GiveEachRowItsHeight) {
  const Document document = Report.ComposeAlone("rptSimSettingMecha");
  EXPECT_THAT(HeightsOf(document, "txtValueVal"), ElementsAre(567, 1134, 283, 283));
  EXPECT_THAT(HeightsOf(document, "txtValueName"), ElementsAre(567, 1134, 283, 283));
}

TEST_F(MechanicalSettings, ShowTheModelInTheFirstRowOnlyWithADashForItsUnit) {
  const Document document = Report.ComposeAlone("rptSimSettingMecha");
  const auto models = PrintedOf(document, "imgModel");
  ASSERT_EQ(models.size(), 1U);
  EXPECT_LE(models[0].Box.Height, 567);
  EXPECT_THAT(ColumnOf(document, "txtValueUnit"), ElementsAre("-", "kg", "Hz", "Hz"));
}

TEST_F(MechanicalSettings, AGrownNameChangesNoLaterRow) {
  Sim.MechaType.Name =
      "a name of a mechanical model that is so long that it needs four lines of the column in which "
      "it stands, because it tells everything that there is to tell about it";
  const Document document = Report.ComposeAlone("rptSimSettingMecha");
  EXPECT_THAT(HeightsOf(document, "txtValueVal"), ElementsAre(567, 1134, 283, 283));
}

TEST_F(MechanicalSettings, AMissingModelIsFailureNine) {
  for (const std::string& path : {std::string(), std::string("C:\\missing.bmp")}) {
    Sim.MechaType.ModelFile = path;
    EXPECT_THROW(Report.ComposeAlone("rptSimSettingMecha"), RunEnded);
    EXPECT_EQ(
        Report.Desktop.Messages.back(),
        "Printing Error|Mechanical Setting Model BMP File is not found.\nPrinting Process is canceled.");
  }
}

TEST_F(SimReports, EnterTheContentsBelowTheirGroup) {
  Report.Run.Session.TocGroup = "Overlapping data 1/2";
  for (const char* name : {"rptSimInfo", "rptSimRef1", "rptSimRef2", "rptSimSettingSvMt"}) {
    const Document document = Report.ComposeAlone(name);
    ASSERT_EQ(document.Contents.size(), 2U) << name;
    EXPECT_EQ(document.Contents[0].Text, "Overlapping data 1/2");
  }
}

}  // namespace
}  // namespace tarvis
