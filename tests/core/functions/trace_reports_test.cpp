// One trace on paper: graph, object table, trigger table, and what was overlapped.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "report/rptBaseHeader.h"
#include "support/golden.h"
#include "support/host_run.h"
#include "support/sample_report.h"
#include "support/structure_text.h"

namespace tarvis {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct Tracing : HostRun {
  Tracing() {
    Run.Session.Mode = Mode::Trace;
    Run.Options.TraceHeader = {1, 1, 1, 1, 1, "Tracing"};
    Run.Options.TraceOption = {1, 0, 0, 0, 0, 0, 0, 0, 0};
  }

  void WriteTrace(const std::string& name = "Trace.tmp", const std::string& cursors = "2") {
    WriteLines(name, {"File-Spec,3",
                      "MechaInfo,Servo pack 400 W",
                      "File,axis1.trc",
                      "TraceGraph," + Picture("graph.bmp"),
                      "TraceGraphC," + Picture("graph_c.bmp"),
                      "TraceNote," + Picture("note.bmp"),
                      "TraceNoteC," + Picture("note_c.bmp"),
                      "TraceIONote," + Picture("io.bmp"),
                      "TraceIONoteC," + Picture("io_c.bmp"),
                      "CursolSelect," + cursors,
                      "CursolInfo1,12.5,80.0,67.5,Time [ms]",
                      "CursolInfo2,-3000,2999,5999,Feedback speed, filtered [min-1]",
                      "DataTrace1,Feedback speed,1,min-1",
                      "DataTrace2,Torque reference,0,%",
                      "DataTrace3,,1,",
                      "I/Otrace1,Servo on,-1,-",
                      "I/Otrace2,,,",
                      "I/Otrace3,,,",
                      "TriggerType,Trigger type,Data trace1",
                      "TriggerLevel,Trigger level,1,000 min-1",
                      "EdgeType,Edge type,Rising edge",
                      "PreTrigger,Pre-trigger,20 %",
                      "SamplingCycle,Sampling cycle,125 us"});
  }
};

TEST_F(Tracing, PrintsGraphAndObjectsOnPageOneAndTheTriggerOnPageTwoOfA4) {
  WriteTrace();
  const Document document = Report.ComposeMaster();
  EXPECT_THAT(EntriesOf(document), ElementsAre("1: Traced Graph @ 855", "1: Trace Object Setting @ 10846",
                                               "2: Trigger Setting @ 0"));
  EXPECT_EQ(PrintedOf(document, "txtValueUnit").back().Box.Bottom(), 720 + 13599);
  ExpectGolden("trace", Dump(document));
}

TEST_F(Tracing, TheObjectsFollowTheGraphWithoutCursors) {
  WriteTrace("Trace.tmp", "0");
  EXPECT_THAT(
      EntriesOf(Report.ComposeMaster()),
      ElementsAre("1: Traced Graph @ 855", "1: Trace Object Setting @ 9855", "2: Trigger Setting @ 0"))
      << "the trigger table would end at 15078 of 14918";
}

TEST_F(Tracing, PrintsTheColorPicturesInAnOverlappedResultWithItsTarget) {
  Run.Options.ColorType = 1;
  Run.Session.OverlapMode = 1;
  Run.Session.OverlapNum = 2;
  WriteTrace();
  const Document document = Report.ComposeMaster();
  EXPECT_THAT(EntriesOf(document), ElementsAre("1: Traced Graph @ 855", "1: Overlapping Target @ 10846"));
  EXPECT_THAT(Report.Pictures.Loaded, Each(HasSubstr("_c.bmp")));
  EXPECT_THAT(ColumnOf(document, "txtTitle"), ElementsAre("Tracing-Overlapping result"));
  ExpectGolden("trace_overlap", Dump(document));
  ExpectGolden("trace_overlap_structure", StructureOf(document));
}

TEST_F(Tracing, PrintsResultTargetAndDataOfAnOverlappedRunEachInItsGroup) {
  Run.Options.TraceOption = {0, 0, 0, 0, 0, 0, 0, 0, 1};
  Run.Session.OverlapMode = 1;
  Run.Session.OverlapNum = 3;
  for (const char* name : {"Trace.tmp", "Trace1.tmp", "Trace2.tmp", "Trace3.tmp"}) WriteTrace(name);
  const Document document = Report.ComposeMaster();
  EXPECT_THAT(EntriesOf(document),
              ElementsAre("1: Overlapping result @ 855", "1: - Traced Graph @ 855",
                          "1: - Overlapping Target @ 10846", "2: Overlapping target @ 855",
                          "2: - Traced Graph @ 855", "2: - Trace Object Setting @ 10846",
                          "3: Overlapping data 1/2 @ 855", "3: - Traced Graph @ 855",
                          "3: - Trace Object Setting @ 10846", "4: Overlapping data 2/2 @ 855",
                          "4: - Traced Graph @ 855", "4: - Trace Object Setting @ 10846"));
  EXPECT_THAT(ColumnOf(document, "txtTitle"),
              ElementsAre("Tracing-Overlapping result", "Tracing-Overlapping target",
                          "Tracing-Overlapping data", "Tracing-Overlapping data"));
}

TEST_F(Tracing, AnEmptyCompanionEndsTheRunForItsGraphWhenItsPassBegins) {
  Run.Options.TraceOption[8] = 1;
  Run.Session.OverlapMode = 1;
  Run.Session.OverlapNum = 1;
  WriteTrace();
  Folder.Write("Trace1.tmp", "");
  EXPECT_THROW(Report.ComposeMaster(), RunEnded);
  EXPECT_EQ(Report.Pictures.Loaded.size(), 3U) << "the result was composed first";
  EXPECT_THAT(Report.Desktop.Messages, ElementsAre(HasSubstr("Graph File (Black & White) is not found.")));
}

struct TraceObject : HostRun {
  TraceObject() {
    Run.Session.Mode = Mode::Trace;
    Run.Trace.DataTrace1 = {"Feedback speed", "1", "min-1"};
    Run.Trace.DataTrace2 = {"Torque reference", "0", "%"};
    Run.Trace.IOTrace3 = {"Alarm", "-1", "-"};
    Run.Sim.DataTrace1 = {"Simulated speed", "1", "min-1"};
    Run.Sim.Ref = {"Speed reference", "Trapezoid", ""};
  }

  Document Compose() { return Report.ComposeAlone("rptTraceObject"); }
};

TEST_F(TraceObject, LabelsItsSixRowsInTracing) {
  const Document document = Compose();
  EXPECT_THAT(ColumnOf(document, "Label1"), ElementsAre("Trace Object Setting"));
  EXPECT_THAT(ColumnOf(document, "txtTitleTrace"), ElementsAre(""));
  EXPECT_THAT(ColumnOf(document, "txtValueTrace"), ElementsAre("Data trace1", "Data trace2", "Data trace3",
                                                               "I/O trace1", "I/O trace2", "I/O trace3"));
  EXPECT_THAT(ColumnOf(document, "txtValueName"),
              ElementsAre("Feedback speed", "Torque reference", "", "", "", "Alarm"));
  EXPECT_THAT(ColumnOf(document, "txtValueUnit"), ElementsAre("min-1", "%", "", "", "", "-"));
  EXPECT_THAT(ColumnOf(document, "txtValueVal"),
              ElementsAre("Display", "non-display", "", "", "", "Display"));
}

TEST_F(TraceObject, LabelsItsSixRowsInDynamicsSimulation) {
  Run.Session.Mode = Mode::Sim;
  const Document document = Compose();
  EXPECT_THAT(ColumnOf(document, "Label1"), ElementsAre("Simulation Object Setting"));
  EXPECT_THAT(
      ColumnOf(document, "txtValueTrace"),
      ElementsAre("Simulation1", "Simulation2", "Speed reference", "IO Data1", "IO Data2", "IO Data3"));
  EXPECT_THAT(ColumnOf(document, "txtValueName"), ElementsAre("Simulated speed", "", "", "", "", ""));
}

TEST_F(TraceObject, AReferenceWithoutNameLeavesItsLabelEmpty) {
  Run.Session.Mode = Mode::Sim;
  Run.Sim.Ref.Name.clear();
  EXPECT_EQ(ColumnOf(Compose(), "txtValueTrace").at(2), "");
}

TEST_F(TraceObject, AnyOtherModeCountsAsTracing) {
  Run.Session.Mode = ModeOf("sim");
  EXPECT_THAT(ColumnOf(Compose(), "Label1"), ElementsAre("Trace Object Setting"));
}

TEST_F(TraceObject, UnusedChannelsPrintTheirLabelOnly) {
  Run.Trace = {};
  const Document document = Compose();
  EXPECT_EQ(PrintedOf(document, "txtValueTrace").size(), 6U);
  for (const char* control : {"txtValueName", "txtValueUnit", "txtValueVal"}) {
    EXPECT_THAT(ColumnOf(document, control), ElementsAre("", "", "", "", "", "")) << control;
  }
}

TEST_F(TraceObject, ADisplayOfAnUnusedChannelIsNotLookedAt) {
  Run.Trace.DataTrace3 = {"", "x", "%"};
  const Document document = Compose();
  EXPECT_EQ(ColumnOf(document, "txtValueVal").at(2), "");
  EXPECT_EQ(ColumnOf(document, "txtValueUnit").at(2), "%");
}

TEST_F(TraceObject, TakesDisplayAsAWholeNumber) {
  Run.Trace.DataTrace1.Display = " 0 ";
  Run.Trace.DataTrace2.Display = "0.5";
  EXPECT_EQ(ColumnOf(Compose(), "txtValueVal").at(0), "non-display");
  EXPECT_EQ(ColumnOf(Compose(), "txtValueVal").at(1), "non-display") << "halves go to the even number";
  Run.Trace.DataTrace2.Display = "1.5";
  EXPECT_EQ(ColumnOf(Compose(), "txtValueVal").at(1), "Display");
}

TEST_F(TraceObject, ANamedChannelWhoseDisplayIsNoNumberIsARunTimeFailureThatNamesItsKey) {
  for (const char* report : {"rptTraceObject", "rptTraceObjrctOverlap"}) {
    for (const char* display : {"", "x", "40000"}) {
      Run.Trace.DataTrace2 = {"Torque", display, "%"};
      try {
        Report.ComposeAlone(report);
        ADD_FAILURE() << report << " took '" << display << "'";
      } catch (const RunTimeFailure& failure) {
        EXPECT_THAT(failure.what(), HasSubstr("DataTrace2: element 2: n"));
      }
    }
  }
  EXPECT_THAT(Report.Desktop.Messages, IsEmpty());
}

// What is read in place of the graph.
std::string ReadGraph(ReportRun& report) {
  return report.ComposeAlone("rptTraceGraph").Structure.Figures.at(0).Text;
}

TEST_F(TraceObject, ItsGraphIsReadWithTheChannelsThatAreDisplayed) {
  Run.Trace.TraceGraph = Picture("graph.bmp");
  for (const char* display : {"1", "-1", "1.5", "0", " 0 ", "0.5", "-0.5"}) {
    Run.Trace.DataTrace1.Display = display;
    const bool isShown = ColumnOf(Compose(), "txtValueVal").at(0) == "Display";
    EXPECT_EQ(ReadGraph(Report),
              isShown ? "Traced Graph: Feedback speed [min-1], Alarm [-]" : "Traced Graph: Alarm [-]")
        << display;
  }
}

TEST_F(TraceObject, ItsGraphDoesNotDependOnWhetherDisplayIsANumber) {
  Run.Trace.TraceGraph = Picture("graph.bmp");
  for (const char* display : {"", "x"}) {
    Run.Trace.DataTrace1.Display = display;
    EXPECT_EQ(ReadGraph(Report), "Traced Graph: Alarm [-]");
  }
}

// Composes the table below `above` twips of other content on a page of A4.
Document ComposeBelow(ReportRun& report, float above) {
  report.Run.Session.ModuleNames.Resize(1);
  report.Run.Session.ModuleLast = 1;
  report.Run.Session.ModuleNames[0] = "above";
  report.Run.Session.ModuleNames[1] = "rptTraceObject";
  rptBaseHeader header(report.Context(), [&](const std::string& name, ReportContext context) {
    if (name != "above") return CreateFunctionReport(name, context);
    auto filler = std::make_shared<SampleReport>();
    filler->Growing(SectionKind::Detail, "d").AddShape("filler", {0, 0, 100, above});
    return std::static_pointer_cast<ActiveReport>(filler);
  });
  return ComposeSample(header, 14918);
}

TEST_F(TraceObject, IsSplitOverTwoPagesInTracingAndItsTitlesPrintOnce) {
  const Document document = ComposeBelow(Report, 14918 - 855 - 1055 - 3 * 283);
  ASSERT_EQ(document.Pages.size(), 2U);
  const auto labels = PrintedOf(document, "txtValueTrace");
  EXPECT_EQ(labels.at(2).Box.Bottom(), 14918);
  EXPECT_EQ(labels.at(3).Box.Top, 0) << "no titles above the rest";
  EXPECT_EQ(PrintedOf(document, "txtTitleName").size(), 1U);
}

TEST_F(TraceObject, StaysOnOnePageInDynamicsSimulation) {
  Run.Session.Mode = Mode::Sim;
  const Document document = ComposeBelow(Report, 14918 - 855 - 1055 - 3 * 283);
  ASSERT_EQ(document.Pages.size(), 2U);
  EXPECT_EQ(PrintedOf(document, "Image1").at(0).Box.Top, 210) << "the whole table is on page 2";
  EXPECT_EQ(PrintedOf(document, "txtValueTrace").at(5).Box.Bottom(), 1055 + 6 * 283);
}

struct OverlapTarget : TraceObject {
  Document Compose() { return Report.ComposeAlone("rptTraceObjrctOverlap"); }
  std::vector<bool> Ticks() {
    const Document document = Compose();
    std::vector<bool> ticks;
    for (const Item& item : document.Items) {
      if (item.Kind == ItemKind::Tick) ticks.push_back(item.Ticked);
    }
    return ticks;
  }
};

TEST_F(OverlapTarget, TicksTheChannelsWhoseGraphIsDisplayed) {
  EXPECT_THAT(Ticks(), ElementsAre(true, false, false, false, false, true));
  EXPECT_THAT(ColumnOf(Compose(), "txtValueName"),
              ElementsAre("Feedback speed", "Torque reference", "", "", "", "Alarm"));
}

TEST_F(OverlapTarget, AnUnnamedChannelShowsAnEmptyBoxWhateverItsDisplay) {
  Run.Trace.DataTrace1.Name.clear();
  Run.Trace.DataTrace2 = {"", "x", "%"};
  EXPECT_THAT(Ticks(), ElementsAre(false, false, false, false, false, true));
}

TEST_F(OverlapTarget, ReadsTheChannelsOfTheSimulationInThatFunction) {
  Run.Session.Mode = Mode::Sim;
  EXPECT_THAT(Ticks(), ElementsAre(true, false, false, false, false, false));
  EXPECT_EQ(ColumnOf(Compose(), "txtValueName").at(0), "Simulated speed");
}

TEST_F(OverlapTarget, TheListKnowsItByItsOwnSpellingOnly) {
  EXPECT_STREQ(CreateFunctionReport("rptTraceObjrctOverlap", Report.Context())->Name,
               "rptTraceObjectOverlap");
  EXPECT_EQ(CreateFunctionReport("rptTraceObjectOverlap", Report.Context()), nullptr);
}

struct TriggerSetting : HostRun {};

TEST_F(TriggerSetting, PrintsFiveRowsAlsoWithoutAnyData) {
  const Document document = Report.ComposeAlone("rptTraceTrigger");
  EXPECT_THAT(ColumnOf(document, "txtTitleName"), ElementsAre("Items"));
  EXPECT_THAT(ColumnOf(document, "txtTitleValue"), ElementsAre("Setting Value"));
  EXPECT_THAT(ColumnOf(document, "txtValueName"), ElementsAre("", "", "", "", ""));
}

TEST_F(TriggerSetting, TitlesComeAgainWhereTheTableIsLongerThanThePaper) {
  const Document document = Report.ComposeAlone("rptTraceTrigger", 630 + 425 + 2 * 283);
  ASSERT_EQ(document.Pages.size(), 2U);
  EXPECT_EQ(PrintedOf(document, "txtTitleName").size(), 2U);
  EXPECT_EQ(PrintedOf(document, "txtValueName").at(2).Box.Top, 425);
}

TEST_F(TriggerSetting, ARowGrowsWithItsValueAndLeavesTheCellBesideItAlone) {
  Run.Trace.TriggerLevel = {"Trigger level", "one\r\ntwo\r\nthree"};
  const Document document = Report.ComposeAlone("rptTraceTrigger");
  const auto values = PrintedOf(document, "txtValueVal");
  EXPECT_EQ(values.at(1).Box.Height, 570);
  EXPECT_EQ(PrintedOf(document, "txtValueName").at(1).Box.Height, 283);
  EXPECT_EQ(values.at(2).Box.Top - values.at(1).Box.Top, 570);
}

}  // namespace
}  // namespace tarvis
