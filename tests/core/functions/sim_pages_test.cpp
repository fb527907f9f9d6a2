// Whole prints of simulations, plain and overlapped, from the files that the host writes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <tuple>

#include "support/golden.h"
#include "support/host_run.h"
#include "support/structure_text.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Lines = std::vector<std::string>;

Lines operator+(Lines lines, const Lines& more) {
  lines.insert(lines.end(), more.begin(), more.end());
  return lines;
}

// "0,1,2" and on, as the values of a line.
std::string ValuesUpTo(int count, int step = 1) {
  std::string values;
  for (int index = 0; index < count; ++index) values += "," + std::to_string(index * step);
  return values;
}

Lines PatternLines(const std::string& kind, int count) {
  Lines lines{"PatternSetting,Pattern," + kind + ",Trapezoid," + std::to_string(count),
              "SamplingCycle,Sampling,0.5,ms", "SimTime,Time,100,ms"};
  for (const char* key : {"StartTime", "AccTime", "RunTime", "DecTime", "EndRefTime", "AccOffsetSpd",
                          "DecOffsetSpd", "MaxSpd"}) {
    lines.push_back(std::string(key) + "," + key + ",ms" + ValuesUpTo(count));
  }
  return lines + Lines{"FilType,Filter,Average,-", "FilTime,Filter Time,2,ms"};
}

Lines PointLines(int count) {
  return {"PatternSetting,Pattern,1,Free," + std::to_string(count),
          "SamplingCycle,Sampling,0.5,ms",
          "SimTime,Time,100,s",
          "StartPointTime,Start Time,[ms]" + ValuesUpTo(count, 10),
          "EndTime,End Time,[ms]" + ValuesUpTo(count, 20),
          "ArrivalSpeed,Arrival Speed,[min-1]" + ValuesUpTo(count, 30)};
}

const Lines MotorLines{"MtRatedOutput,Rated Output,400,W",
                       "MtRatedTorque,Rated Torque,1.27,N m",
                       "MtPeakTorque,Peak Torque,3.82,N m",
                       "MtMaxCurrent,Max Current,8.5,A",
                       "MtRatedCurrent,Rated Current,2.8,A",
                       "MtRatedSpeed,Rated Speed,3000,min-1",
                       "MtMaxSpeed,Max Speed,5000,min-1",
                       "MtTorqueConstant,Torque Constant,0.498,N m/A",
                       "MtRoterMoment,Rotor Moment,0.17,kg cm2",
                       "MtRatedPowerRate,Power Rate,93.7,kW/s",
                       "MtRatedAnglulerAcc,Angular Acceleration,73800,rad/s2",
                       "MtInertiaTimeConstant,Inertia Time,0.36,ms",
                       "MtInductionTimeConstant,Induction Time,3.4,ms",
                       "MtBrakeCompensation,Brake,0.02,kg cm2",
                       "MtOilSealCompensation,Oil Seal,0.07,kg cm2",
                       "PgType,Encoder,17 bit,-",
                       "MtOpType,Option,None,-",
                       "FcType,Cooling,Self,-"};

struct SimPages : HostRun {
  SimPages() {
    Run.Session.Mode = Mode::Sim;
    Run.Options.SimHeader = {1, 1, 1, 1, 1, "Dynamics Simulation"};
    Picture("graph.bmp");
    Picture("model.bmp");
  }

  // What each simulation's file begins with; `name` is its file as the common header prints it.
  Lines Start(const std::string& name) const {
    return {"File-Spec,3",
            "MechaInfo,Servo pack",
            "File," + name,
            "SimGraph," + PathOf("graph.bmp"),
            "CursolSelect,2",
            "CursolInfo1,1.0,2.0,1.0,Speed [min-1]",
            "CursolInfo2,10,20,10,Torque [%]",
            "DataTrace1,Speed,1,min-1",
            "DataTrace2,Torque,0,%",
            "Control,Control Mode,Position,-",
            "Ref,Reference,Speed,min-1",
            "SettingTime,Setting Time,12.5,ms"};
  }
  Lines MechanicsLines() const {
    return {"MechaType,Model,Two inertias," + PathOf("model.bmp"), R"(Inertia,Inertia,1.0\r\n2.0,kg\r\nkg)",
            "ResPoint,Resonance,400,Hz", "AntiResPoint,Anti-Resonance,300,Hz"};
  }
  Lines Whole(const std::string& name) const {
    return Start(name) + PatternLines("0", 3) + MotorLines + MechanicsLines();
  }
  // Turns these elements of the simulation's options on, counted from 1, and all others off.
  void TurnOn(std::initializer_list<int> elements) {
    Run.Options.SimOption = {};
    for (const int element : elements) Run.Options.SimOption[static_cast<std::size_t>(element - 1)] = 1;
  }
  Document Print() { return Report.ComposeMaster(); }
};

TEST_F(SimPages, PrintAllThereIsOfOneSimulation) {
  TurnOn({1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
  WriteLines("Sim.tmp", Whole("one.sim") + Lines{"GetDataDate,2026/03/05 10:00", "UserNum,2",
                                                 "UserName,Pn100,Speed Loop Gain", "UserValue,62.0,40.0,Hz",
                                                 "UserName,Pn101,Integral Time", "UserValue,15.00,20.00,ms",
                                                 R"(Comment,as simulated\r\nchecked twice)"});
  const Document document = Print();
  EXPECT_THAT(EntriesOf(document),
              ElementsAre("1: Simulated Graph @ 855", "1: Simulation Information @ 10697",
                          "2: Simulation Object Setting @ 0", "2: Reference Setting @ 2753",
                          "2: Servo Drive Setting @ 8277", "3: Mechanical Setting @ 0",
                          "3: Acquisition Date of the Data @ 3322", "3: Parameters List @ 4456",
                          "3: Comments @ 6103"));
  ExpectGolden("sim", Dump(document));
  ExpectGolden("sim_structure", StructureOf(document));
}

TEST_F(SimPages, RepeatTheTitlesOfThePointsOfAFreePattern) {
  TurnOn({1});
  WriteLines("Sim.tmp", Start("free.sim") + PointLines(41));
  const Document document = Print();
  EXPECT_EQ(PrintedOf(document, "txtTitleStartTime").size(), 1U) << "the list fits a page";
  const Document small = Report.ComposeAlone("rptSimRef2", 5000);
  EXPECT_EQ(small.Pages.size(), 3U);
  EXPECT_EQ(PrintedOf(small, "txtTitleStartTime").size(), 3U);
  EXPECT_EQ(PrintedOf(small, "Label3").size(), 1U);
  ExpectGolden("sim_free_pattern", Dump(small));
}

// The group goes on in its footer, so its titles come again above it.
TEST_F(SimPages, RepeatTheTitlesAboveAFilterOnAPageOfItsOwn) {
  WriteLines("Sim.tmp", Start("one.sim") + PatternLines("0", 3));
  TurnOn({1});
  Print();
  const Document small = Report.ComposeAlone("rptSimRef1", 5000);
  ASSERT_EQ(small.Pages.size(), 2U);
  EXPECT_EQ(PrintedOf(small, "txtTitleName").size(), 2U);
  EXPECT_EQ(PrintedOf(small, "txtTitleNameG").at(0).Box, (Rect{142, 425 + 283, 3685, 284}));
}

TEST_F(SimPages, TakeTheKindOfThePatternAsANumber) {
  TurnOn({1});
  for (const auto& [kind, label] : {std::pair("0", "Label3"),
                                    {"0.0", "Label3"},
                                    {"0E5", "Label3"},
                                    {"1E0", "Label4"},
                                    {"-1", "Label4"}}) {
    WriteLines("Sim.tmp", Start("one.sim") + PatternLines(kind, 2));
    const std::string control(label);
    EXPECT_THAT(ColumnOf(Print(), control), ElementsAre("Reference Sampling Time")) << kind;
  }
}

TEST_F(SimPages, StopAtAKindThatIsNoNumberOnlyWhereTheReferencePrints) {
  for (const char* kind : {"", "regular"}) {
    WriteLines("Sim.tmp", Start("one.sim") + PatternLines(kind, 2));
    TurnOn({1});
    EXPECT_THROW(Print(), RunTimeFailure) << kind;
    TurnOn({});
    EXPECT_EQ(Print().Contents.size(), 3U) << kind;
  }
  EXPECT_THAT(Report.Desktop.Messages, IsEmpty());
}

TEST_F(SimPages, ShowOneColumnForEachValueOfThePatternUpToTen) {
  TurnOn({1});
  for (const int count : {1, 2, 9, 10, 11}) {
    WriteLines("Sim.tmp", Start("one.sim") + PatternLines("0", count));
    const Document document = Print();
    for (int column = 1; column <= 11; ++column) {
      const bool shown = column <= std::min(count, 10);
      EXPECT_EQ(PrintedOf(document, "txtTitleValue" + std::to_string(column)).size(), shown ? 1U : 0U)
          << count;
      EXPECT_EQ(PrintedOf(document, "txtValueVal" + std::to_string(column)).size(), shown ? 8U : 0U) << count;
    }
  }
}

TEST_F(SimPages, StopAtMoreValuesThanTheReferenceTableHolds) {
  TurnOn({});
  WriteLines("Sim.tmp", Start("one.sim") + PatternLines("1", 12));
  EXPECT_THROW(Print(), RunTimeFailure)
      << "also for a free pattern, as the file has the keys of a regular one";
}

TEST_F(SimPages, LabelTheThirdChannelRowByTheReference) {
  TurnOn({});
  for (const std::string name : {"Command", ""}) {
    WriteLines("Sim.tmp", Start("one.sim") + Lines{"Ref," + name + ",Speed,min-1"});
    const Texts labels = ColumnOf(Print(), "txtValueTrace");
    ASSERT_EQ(labels.size(), 6U);
    EXPECT_EQ(labels[2], name);
    EXPECT_EQ(labels[3], "IO Data1") << "a reference without name keeps its row";
  }
}

TEST_F(SimPages, PassAnOldFileSpecThoughThereAreParameters) {
  TurnOn({5, 6, 7, 8, 9});
  WriteLines("Sim.tmp",
             Start("one.sim") + Lines{"File-Spec,1", "UserNum,1", "UserName,Pn100,Gain", "UserValue,1,2,-"});
  EXPECT_EQ(Print().Contents.back().Text, "Parameters List");
  EXPECT_THAT(Report.Desktop.Messages, IsEmpty());
}

TEST_F(SimPages, ListTheRowsOfTheShortTableInOrderForMotorTypeOne) {
  TurnOn({});
  WriteLines("Sim.tmp", Whole("one.sim") + Lines{"MotorType,1"});
  Print();
  EXPECT_THAT(ColumnOf(Report.ComposeAlone("rptSimSettingSvMt"), "txtValueName"),
              ElementsAre("Rated Torque", "Peak Torque", "Rated Current", "Max Current", "Rated Speed",
                          "Max Speed", "Torque Constant", "Rotor Moment", "Inertia Time", "Induction Time",
                          "", "Encoder", "Option", "Cooling"));
}

TEST_F(SimPages, EndAtTheMechanicalSettingWhoseModelIsMissing) {
  WriteLines("Sim.tmp", Whole("one.sim"));
  std::filesystem::remove(Folder.Path() / "model.bmp");
  TurnOn({2});
  EXPECT_EQ(Print().Contents.back().Text, "Servo Drive Setting") << "nobody asks for the model";
  TurnOn({2, 3});
  Report.Pictures.Loaded.clear();
  EXPECT_THROW(Print(), RunEnded);
  EXPECT_THAT(Report.Pictures.Loaded, ElementsAre(PathOf("graph.bmp"))) << "the pages before were composed";
  EXPECT_THAT(Report.Desktop.Messages,
              ElementsAre("Printing Error|Mechanical Setting Model BMP File is not found.\n"
                          "Printing Process is canceled."));
}

TEST_F(SimPages, KeepARowHighWhoseNameNeedsMoreThanItsPicture) {
  TurnOn({3});
  WriteLines("Sim.tmp", Start("one.sim") + MechanicsLines());
  Print();
  Run.Sim.MechaType.Name = "one\r\ntwo\r\nthree\r\nfour";
  const auto names = PrintedOf(Report.ComposeAlone("rptSimSettingMecha"), "txtValueName");
  ASSERT_EQ(names.size(), 4U);
  EXPECT_EQ(names[0].Box.Height, 760);
  EXPECT_EQ(names[1].Box, (Rect{142, 630 + 425 + 760, 3685, 1134}));
  EXPECT_EQ(names[2].Box.Height, 283);
}

// Sim.tmp is the result, Sim1.tmp the target, Sim2.tmp and on the overlapping data.
struct OverlappedSimPages : SimPages {
  Lines Result(int comparisonTimes) const {
    Lines lines = Start("result.sim");
    for (int row = 0; row < comparisonTimes; ++row) {
      const std::string number = std::to_string(row);
      lines.push_back("CmpTime,sim" + number + ".sim," + number + ".5,Position");
    }
    return lines +
           Lines{"CmpUserNum,2", "CmpUser,Pn100,40.0,41.0,42.0,43.0,44.0,45.0,46.0,47.0,48.0,49.0,50.0",
                 "CmpUser,Pn101,20.00,20.01,123456789.01,20.03,20.04,20.05,20.06,20.07,20.08,20.09,20.10"};
  }
  void Write(int simulations, int comparisonTimes) {
    Run.Session.OverlapMode = 1;
    Run.Session.OverlapNum = static_cast<std::int16_t>(simulations);
    WriteLines("Sim.tmp", Result(comparisonTimes));
    for (int number = 1; number <= simulations; ++number) WriteLines(FileOf(number), Whole(NameOf(number)));
  }
  static std::string FileOf(int number) { return "Sim" + std::to_string(number) + ".tmp"; }
  static std::string NameOf(int number) { return "sim" + std::to_string(number - 1) + ".sim"; }
  void ExpectEnd(const std::string& message) {
    EXPECT_THROW(Print(), RunEnded);
    EXPECT_THAT(Report.Desktop.Messages,
                ElementsAre("Printing Error|" + message + "\nPrinting Process is canceled."));
  }
};

TEST_F(OverlappedSimPages, ShowThreeSimulations) {
  Write(3, 3);
  TurnOn({11, 12, 13});
  const Document document = Print();
  EXPECT_THAT(
      EntriesOf(document),
      ElementsAre("1: Overlapping result @ 855", "1: - Simulated Graph @ 855",
                  "1: - Overlapping Target @ 10697", "2: - List of File Name @ 0", "2: - Setting Time @ 1904",
                  "2: - Parameter @ 3808", "3: Overlapping target @ 855", "3: - Simulated Graph @ 855",
                  "3: - Simulation Information @ 10697", "4: - Simulation Object Setting @ 0",
                  "5: Overlapping data 1/2 @ 855", "5: - Simulated Graph @ 855",
                  "5: - Simulation Information @ 10697", "6: - Simulation Object Setting @ 0",
                  "7: Overlapping data 2/2 @ 855", "7: - Simulated Graph @ 855",
                  "7: - Simulation Information @ 10697", "8: - Simulation Object Setting @ 0"));
  ExpectGolden("sim_overlap", Dump(document));
  ExpectGolden("sim_overlap_structure", StructureOf(document));
}

TEST_F(OverlappedSimPages, UseTheWideTableForElevenSimulations) {
  Write(11, 11);
  TurnOn({11, 12});
  const Document document = Print();
  EXPECT_EQ(document.Contents[0].Text, "Simulated Graph") << "one pass alone has no group";
  EXPECT_EQ(PrintedOf(document, "txtTitle").size(), 1U);
  ExpectGolden("sim_overlap_wide", Dump(document));
}

TEST_F(OverlappedSimPages, BringTheFileListAlongWithParametersAlone) {
  Write(2, 2);
  TurnOn({12});
  EXPECT_THAT(EntriesOf(Print()), ElementsAre("1: Simulated Graph @ 855", HasSubstr("Overlapping Target"),
                                              HasSubstr("List of File Name"), HasSubstr("Parameter")));
}

TEST_F(OverlappedSimPages, HaveNoFileListWithoutComparison) {
  Write(2, 2);
  TurnOn({});
  EXPECT_THAT(EntriesOf(Print()), ElementsAre("1: Simulated Graph @ 855", HasSubstr("Overlapping Target")));
}

TEST_F(OverlappedSimPages, ListAsManyFilesAsTheRunOverlaps) {
  TurnOn({11});
  Write(3, 5);
  EXPECT_THAT(ColumnOf(Print(), "txtValueFile"), ElementsAre("sim0.sim", "sim1.sim", "sim2.sim"));
}

TEST_F(OverlappedSimPages, KeepFilesEmptyThatTheResultDoesNotName) {
  TurnOn({11});
  Write(3, 1);
  const Document document = Print();
  EXPECT_THAT(ColumnOf(document, "txtValueFile"), ElementsAre("sim0.sim", "", ""));
  EXPECT_THAT(ColumnOf(document, "txtValueTime"), ElementsAre("0.5", "", ""));
}

TEST_F(OverlappedSimPages, TakeTheMotorTypeOfTheSetBeforeWhereAFileHasNone) {
  Write(3, 3);
  TurnOn({2, 13});
  WriteLines("Sim.tmp", Result(3) + Lines{"MotorType,1"});
  WriteLines("Sim2.tmp", Whole("two.sim") + Lines{"MotorType,2"});
  const Texts names = ColumnOf(Print(), "txtValueName");
  EXPECT_EQ(std::count(names.begin(), names.end(), "Rated Torque"), 3);
  EXPECT_EQ(std::count(names.begin(), names.end(), "Power Rate"), 2)
      << "the target has the result's short table";
}

TEST_F(OverlappedSimPages, KeepTheFileNameOfTheSetBeforeWhereAFileHasNone) {
  Write(2, 2);
  TurnOn({13});
  WriteLines("Sim2.tmp", {"SimGraph," + PathOf("graph.bmp")});
  EXPECT_THAT(ColumnOf(Print(), "txtFileName"),
              ElementsAre("File Name : result.sim", "File Name : sim0.sim", "File Name : sim0.sim"));
}

TEST_F(OverlappedSimPages, EndAtTheSetWhoseFileHasAnUnknownKey) {
  Write(3, 3);
  TurnOn({13});
  WriteLines("Sim2.tmp", Start("two.sim") + Lines{"MtRotorMoment,Rotor Moment,1,kg"});
  ExpectEnd("Dynamics Simulation File is wrong.");
  EXPECT_EQ(Report.Pictures.Loaded.size(), 2U) << "result and target were composed";
}

TEST_F(OverlappedSimPages, EndAtTheSetWhosePicturesAreMissing) {
  const std::string gone = PathOf("gone.bmp");
  Write(2, 2);
  TurnOn({13});
  for (const auto& [color, line, message] :
       {std::tuple(0, "SimGraph," + gone, "Graph File (Black & White) is not found."),
        {1, "SimGraphC," + gone, "Graph File (Color) is not found."},
        {0, "SimNote," + gone, "Explanatory File is not found."}}) {
    Report.Desktop = {};
    Report.Pictures.Loaded.clear();
    Run.Options.ColorType = static_cast<std::int16_t>(color);
    WriteLines("Sim.tmp", Result(2) + Lines{"SimGraphC," + Picture("graph_c.bmp")});
    WriteLines("Sim1.tmp", Start("one.sim") + Lines{line});
    ExpectEnd(message);
    EXPECT_FALSE(Report.Pictures.Loaded.empty()) << "the result was composed";
  }
}

TEST_F(OverlappedSimPages, LevelARowOfTheWideTableByItsValuesOnly) {
  Write(11, 11);
  TurnOn({12});
  Print();
  Run.Sim.CmpUser[0].No = "Pn100.12345678901234";
  const auto numbers = PrintedOf(Report.ComposeAlone("rptSimCmpUserEx"), "txtValueNo");
  EXPECT_EQ(numbers.at(0).Box.Height, 283) << "the number's own growth isn't looked at";
  EXPECT_GT(numbers.at(1).Box.Height, 283);
}

// The list of files moves whole to the next page; the table of parameters starts below it, though it would
// fit a page of its own.
TEST_F(OverlappedSimPages, BreakTheTableOfParametersAndRepeatItsTitles) {
  Write(2, 2);
  TurnOn({12});
  Lines lines = Start("result.sim") + Lines{"CmpUserNum,45"};
  for (int row = 0; row < 45; ++row) lines.push_back("CmpUser,Pn" + std::to_string(row) + ",1,2");
  WriteLines("Sim.tmp", lines);
  const Document document = Print();
  EXPECT_THAT(ColumnOf(document, "txtTitleFile1"), ElementsAre("Target", "Target"));
  EXPECT_EQ(EntriesOf(document).back(), "2: Parameter @ 1621");
}

}  // namespace
}  // namespace tarvis
