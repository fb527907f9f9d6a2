// The comparisons of overlapped simulations, alone and in a whole overlapped print.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "printfiles/host_files.h"
#include "support/host_run.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Comparison : testing::Test {
  Comparison() {
    for (int row = 0; row <= 10; ++row) {
      Sim.CmpTime[row] = {"sim" + std::to_string(row) + ".dat", std::to_string(row) + ".5", "Position"};
    }
    Sim.CmpUserNum = 2;
    Sim.CmpUser.Resize(2);
    for (int row = 0; row < 2; ++row) {
      Sim.CmpUser[row].No = "Pn10" + std::to_string(row);
      for (int value = 0; value <= 10; ++value) Sim.CmpUser[row].Values[value] = std::to_string(value);
    }
  }
  ReportRun Report;
  SimData& Sim = Report.Run.Sim;
  PrintSession& Session = Report.Run.Session;
};

TEST_F(Comparison, ListsFilesAsTargetAndData) {
  Session.OverlapNum = 3;
  const Document document = Report.ComposeAlone("rptSimCmpFileList");
  EXPECT_THAT(ColumnOf(document, "txtValNo"), ElementsAre("Target", "1", "2"));
  EXPECT_THAT(ColumnOf(document, "txtValueOverlap"),
              ElementsAre("Overlapping target", "Overlapping data1", "Overlapping data2"));
  EXPECT_THAT(ColumnOf(document, "txtValueFile"), ElementsAre("sim0.dat", "sim1.dat", "sim2.dat"));
  EXPECT_EQ(PrintedOf(document, "txtTitleNo")[0].Box, (Rect{138, 630 + 140, 708, 283}));
}

TEST_F(Comparison, ListsSettingTimes) {
  Session.OverlapNum = 2;
  const Document document = Report.ComposeAlone("rptSimCmpTime");
  EXPECT_THAT(ColumnOf(document, "txtValNo"), ElementsAre("Target", "1"));
  EXPECT_THAT(ColumnOf(document, "txtValueTime"), ElementsAre("0.5", "1.5"));
  EXPECT_THAT(ColumnOf(document, "txtValueControl"), ElementsAre("Position", "Position"));
}

TEST_F(Comparison, ShowsOneColumnForTheTargetAlone) {
  Session.OverlapNum = 1;
  const Document document = Report.ComposeAlone("rptSimCmpUser");
  EXPECT_THAT(ColumnOf(document, "txtTitleFile1"), ElementsAre("Target"));
  EXPECT_THAT(PrintedOf(document, "txtTitleFile2"), IsEmpty());
  EXPECT_THAT(ColumnOf(document, "txtValueVal1"), ElementsAre("0", "0"));
  EXPECT_THAT(PrintedOf(document, "txtValueVal2"), IsEmpty());
}

TEST_F(Comparison, FillsTheNarrowTableWithSeven) {
  Session.OverlapNum = 7;
  const Document document = Report.ComposeAlone("rptSimCmpUser");
  EXPECT_EQ(PrintedOf(document, "txtTitleFile7")[0].Box, (Rect{7654, 630 + 142, 1133, 283}));
  EXPECT_THAT(ColumnOf(document, "txtValueVal7"), ElementsAre("6", "6"));
}

TEST_F(Comparison, ShowsEightColumnsOfTheWideTableWithEight) {
  Session.OverlapNum = 8;
  const Document document = Report.ComposeAlone("rptSimCmpUserEx");
  EXPECT_THAT(ColumnOf(document, "txtTitleFile8"), ElementsAre("7"));
  EXPECT_THAT(PrintedOf(document, "txtTitleFile9"), IsEmpty());
  EXPECT_THAT(PrintedOf(document, "txtValueVal9"), IsEmpty());
}

TEST_F(Comparison, ALongValueMakesItsWholeRowOfTheWideTableHigh) {
  Session.OverlapNum = 11;
  Sim.CmpUser[0].Values[3] = "1234567890";
  Sim.CmpUser[0].Values[10] = "123456789012345678";
  const Document document = Report.ComposeAlone("rptSimCmpUserEx");
  for (const char* control : {"txtValueNo", "txtValueVal1", "txtValueVal4", "txtValueVal11"}) {
    const auto printed = PrintedOf(document, control);
    EXPECT_EQ(printed[0].Box.Height, 570) << control;
    EXPECT_EQ(printed[1].Box.Height, 283) << control;
  }
}

TEST_F(Comparison, ColumnsOutOfUseDoNotRaiseTheRow) {
  Session.OverlapNum = 8;
  Sim.CmpUser[0].Values[9] = "123456789012345678";
  EXPECT_EQ(PrintedOf(Report.ComposeAlone("rptSimCmpUserEx"), "txtValueVal1")[0].Box.Height, 283);
}

TEST_F(Comparison, TheNarrowTableLevelsNoRow) {
  Session.OverlapNum = 7;
  Sim.CmpUser[0].Values[3] = "123456789012345678";
  const Document document = Report.ComposeAlone("rptSimCmpUser");
  EXPECT_EQ(PrintedOf(document, "txtValueVal4")[0].Box.Height, 380);
  EXPECT_EQ(PrintedOf(document, "txtValueVal1")[0].Box.Height, 283);
}

TEST_F(Comparison, PrintsTitlesOnlyWithoutParameters) {
  Session.OverlapNum = 2;
  Sim.CmpUserNum = 0;
  const Document document = Report.ComposeAlone("rptSimCmpUser");
  EXPECT_EQ(PrintedOf(document, "txtTitleNo").size(), 1U);
  EXPECT_THAT(PrintedOf(document, "txtValueNo"), IsEmpty());
}

TEST_F(Comparison, UnloadsItselfWithoutSimulations) {
  Session.OverlapNum = 0;
  for (const char* name : {"rptSimCmpFileList", "rptSimCmpTime", "rptSimCmpUser", "rptSimCmpUserEx"}) {
    const Document document = Report.ComposeAlone(name);
    EXPECT_EQ(document.Contents.size(), 1U) << name;
    EXPECT_THAT(PrintedOf(document, "txtTitleNo"), IsEmpty()) << name;
  }
}

TEST_F(Comparison, TwelveSimulationsAreARunTimeFailure) {
  Session.OverlapNum = 12;
  LoadBytes(Report.Run, "Sim.tmp", "File-Spec,3\r\nOverlapNum,12\r\n");
  for (const char* report : {"rptSimCmpFileList", "rptSimCmpTime"}) {
    try {
      Report.ComposeAlone(report);
      ADD_FAILURE() << report;
    } catch (const RunTimeFailure& failure) {
      EXPECT_STREQ(failure.what(), "Sim.tmp:2: OverlapNum: only 11 simulations have room: '12'");
    }
  }
}

// A Sim.tmp of an overlapped run; its pictures are in `folder`.
std::string SimFile(const TempFolder& folder, int simulations, const std::string& name) {
  std::string file = "File-Spec,3\r\nMechaInfo,Servo pack\r\nFile," + name + "\r\n";
  file += "SimGraph," + folder.SystemPath() + "graph.bmp\r\n";
  file +=
      "PatternSetting,Pattern,0,Trapezoid,2\r\nMechaType,Model,One," + folder.SystemPath() + "graph.bmp\r\n";
  file += "DataTrace1,Speed,1,min-1\r\n";
  for (int row = 0; row < simulations; ++row) {
    file += "CmpTime,sim" + std::to_string(row) + "," + std::to_string(row) + ",Position\r\n";
  }
  return file;
}

struct OverlappedSim : HostRun {
  Document Compose(int simulations) {
    Folder.Write("graph.bmp", "x");
    Folder.Write("Sim.tmp", SimFile(Folder, simulations, "all.sim"));
    for (int number = 1; number <= simulations; ++number) {
      Folder.Write("Sim" + std::to_string(number) + ".tmp",
                   SimFile(Folder, 0, std::to_string(number) + ".sim"));
    }
    Session.Mode = Mode::Sim;
    Session.OverlapMode = 1;
    Session.OverlapNum = static_cast<std::int16_t>(simulations);
    Report.Run.Options.SimHeader = {1, 1, 1, 1, 1, "Dynamics Simulation"};
    Report.Run.Options.SimOption = {1, 1, 1, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1};
    return Report.ComposeMaster();
  }

  PrintSession& Session = Report.Run.Session;
};

TEST_F(OverlappedSim, PrintsResultTargetAndDataUnderTheirTitlesAndGroups) {
  const Document document = Compose(3);
  EXPECT_THAT(ColumnOf(document, "txtTitle"),
              ElementsAre("Dynamics Simulation-Overlapping result", "Dynamics Simulation-Overlapping target",
                          "Dynamics Simulation-Overlapping data", "Dynamics Simulation-Overlapping data"));
  Texts groups;
  for (const ContentsEntry& entry : document.Contents) {
    if (entry.Level == 0) groups.push_back(entry.Text);
  }
  EXPECT_THAT(groups, ElementsAre("Overlapping result", "Overlapping target", "Overlapping data 1/2",
                                  "Overlapping data 2/2"));
  EXPECT_EQ(document.Contents[1].Text, "Simulated Graph");
  EXPECT_THAT(ColumnOf(document, "txtFileName"), ElementsAre("File Name : all.sim", "File Name : 1.sim",
                                                             "File Name : 2.sim", "File Name : 3.sim"));
}

TEST_F(OverlappedSim, UsesTheWideTableForEleven) {
  const Document document = Compose(11);
  EXPECT_EQ(PrintedOf(document, "txtTitle").size(), 12U);
  EXPECT_THAT(ColumnOf(document, "txtTitleFile11"), ElementsAre("10"));
}

TEST_F(OverlappedSim, IsARunTimeFailureForTwelve) {
  EXPECT_THROW(Compose(12), RunTimeFailure);
}

TEST_F(OverlappedSim, AMissingCompanionIsFailureFive) {
  Compose(2);
  std::filesystem::remove(Folder.Path() / "Sim2.tmp");
  EXPECT_THROW(Report.ComposeMaster(), RunEnded);
  EXPECT_THAT(Report.Desktop.Messages.back(), testing::HasSubstr("Dynamics Simulation File is wrong."));
}

}  // namespace
}  // namespace tarvis
