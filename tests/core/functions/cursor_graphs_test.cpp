// What the graphs of traces, real-time traces and simulations have in common.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/golden.h"
#include "support/host_run.h"
#include "support/sample_report.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* NoGraph = "Graph File (Black & White) is not found.";
constexpr const char* NoColorGraph = "Graph File (Color) is not found.";
constexpr const char* NoLegend = "Explanatory File is not found.";

// The fields of one function's record that its graph report prints.
struct GraphFields {
  std::string& Graph;
  std::string& GraphC;
  std::string& Note;
  std::string& NoteC;
  std::string* IONote;
  std::string* IONoteC;
  std::int16_t& CursolSelect;
  CursorRow& CursolInfo1;
  CursorRow& CursolInfo2;
};

GraphFields FieldsOf(PrintRun& run, const std::string& report) {
  if (report == "rptTraceGraph") {
    TraceData& data = run.Trace;
    return {data.TraceGraph,    data.TraceGraphC,  data.TraceNote,   data.TraceNoteC, &data.TraceIONote,
            &data.TraceIONoteC, data.CursolSelect, data.CursolInfo1, data.CursolInfo2};
  }
  if (report == "rptRealTraceGraph") {
    RealTraceData& data = run.RealTrace;
    return {
        data.RealTraceGraph, data.RealTraceGraphC, data.RealTraceNote, data.RealTraceNoteC, nullptr, nullptr,
        data.CursolSelect,   data.CursolInfo1,     data.CursolInfo2};
  }
  SimData& data = run.Sim;
  return {data.SimGraph,    data.SimGraphC,    data.SimNote,     data.SimNoteC,   &data.SimIONote,
          &data.SimIONoteC, data.CursolSelect, data.CursolInfo1, data.CursolInfo2};
}

struct CursorGraph : HostRun, testing::WithParamInterface<const char*> {
  CursorGraph() {
    Fields.Graph = Picture("graph.bmp");
    Fields.GraphC = Picture("graph_c.bmp");
    Fields.CursolSelect = 2;
    Fields.CursolInfo1 = {"1.0", "2.0", "1.0", "Speed [min-1]"};
    Fields.CursolInfo2 = {"10", "20", "10", "Torque [%]"};
  }

  Document Compose() { return Report.ComposeAlone(GetParam()); }
  void ExpectNumberedFailure(const char* message) { ExpectFailure(GetParam(), message); }

  GraphFields Fields = FieldsOf(Run, GetParam());
};

INSTANTIATE_TEST_SUITE_P(Reports, CursorGraph,
                         testing::Values("rptTraceGraph", "rptRealTraceGraph", "rptSimGraph"));

TEST_P(CursorGraph, PrintsTheBlackAndWhitePicturesAndNeverLooksAtTheOthers) {
  Fields.GraphC = Fields.NoteC = PathOf("gone.bmp");
  Fields.Note = Picture("note.bmp");
  std::vector<std::string> expected{Fields.Graph, Fields.Note};
  if (Fields.IONote != nullptr) {
    *Fields.IONoteC = PathOf("gone.bmp");
    *Fields.IONote = Picture("io.bmp");
    expected.push_back(*Fields.IONote);
  }
  const Document document = Compose();
  EXPECT_EQ(Report.Pictures.Loaded, expected);
  EXPECT_EQ(PrintedOf(document, "imgGraph").size(), 1U);
  EXPECT_EQ(PrintedOf(document, "imgNote").size(), 1U);
  EXPECT_EQ(PrintedOf(document, "imgIONote").size(), Fields.IONote == nullptr ? 0U : 1U);
}

TEST_P(CursorGraph, PrintsTheColorPicturesAndNeverLooksAtTheOthers) {
  Run.Options.ColorType = 1;
  Fields.Graph = Fields.Note = PathOf("gone.bmp");
  Fields.NoteC = Picture("note_c.bmp");
  std::vector<std::string> expected{Fields.GraphC, Fields.NoteC};
  if (Fields.IONote != nullptr) {
    *Fields.IONote = PathOf("gone.bmp");
    *Fields.IONoteC = Picture("io_c.bmp");
    expected.push_back(*Fields.IONoteC);
  }
  Compose();
  EXPECT_EQ(Report.Pictures.Loaded, expected);
}

TEST_P(CursorGraph, AMissingOrUnnamedGraphEndsTheRun) {
  for (const std::string& path : {PathOf("gone.bmp"), std::string()}) {
    Run.Options.ColorType = 0;
    Fields.Graph = path;
    ExpectNumberedFailure(NoGraph);
    Run.Options.ColorType = 1;
    Fields.GraphC = path;
    ExpectNumberedFailure(NoColorGraph);
  }
  EXPECT_THAT(Report.Pictures.Loaded, IsEmpty());
}

TEST_P(CursorGraph, AFolderIsNoGraph) {
  std::filesystem::create_directory(Folder.Path() / "folder.bmp");
  Fields.Graph = PathOf("folder.bmp");
  ExpectNumberedFailure(NoGraph);
}

TEST_P(CursorGraph, AnUnnamedLegendLeavesItsBoxEmpty) {
  for (const std::int16_t color : std::initializer_list<std::int16_t>{0, 1}) {
    Run.Options.ColorType = color;
    const Document document = Compose();
    EXPECT_EQ(PrintedOf(document, "imgGraph").size(), 1U);
    EXPECT_THAT(PrintedOf(document, "imgNote"), IsEmpty());
    EXPECT_THAT(PrintedOf(document, "imgIONote"), IsEmpty());
  }
}

TEST_P(CursorGraph, AMissingLegendEndsTheRunOnceTheGraphIsLoaded) {
  Fields.Note = Fields.NoteC = PathOf("gone.bmp");
  ExpectNumberedFailure(NoLegend);
  Run.Options.ColorType = 1;
  ExpectNumberedFailure(NoLegend);
  EXPECT_THAT(Report.Pictures.Loaded, ElementsAre(Fields.Graph, Fields.GraphC));
}

TEST_P(CursorGraph, AnUnknownColorTypePrintsEmptyBoxesHoweverWrongThePathsAre) {
  Fields.Graph = Fields.GraphC = Fields.Note = Fields.NoteC = PathOf("gone.bmp");
  for (const std::int16_t color : std::initializer_list<std::int16_t>{2, -1}) {
    Run.Options.ColorType = color;
    const Document document = Compose();
    EXPECT_THAT(Report.Pictures.Loaded, IsEmpty());
    EXPECT_THAT(PrintedOf(document, "imgGraph"), IsEmpty());
    EXPECT_EQ(ColumnOf(document, "Label2"), std::vector<std::string>{"[Cursor Data]"});
    EXPECT_GT(PrintedOf(document, "txtTitleName").at(0).Box.Top, 630 + 8300) << "the boxes keep their room";
  }
}

TEST_P(CursorGraph, APictureThatCannotBeShownIsARunTimeFailure) {
  struct RefusingLoader : FakePictureLoader {
    PicturePtr Load(const std::string& path) override {
      throw RunTimeFailure("not a picture", {.File = path, .Line = 0, .Key = {}, .Text = {}});
    }
  } loader;
  const auto report = CreateFunctionReport(GetParam(), {Run, loader});
  EXPECT_THROW(ComposeSample(*report, 14918), RunTimeFailure);
  EXPECT_THAT(Report.Desktop.Messages, IsEmpty());
}

TEST_P(CursorGraph, TheNameComesFirstAndTheDifferenceLast) {
  const Document document = Compose();
  EXPECT_THAT(ColumnOf(document, "txtTitleName"), ElementsAre("Name/Unit"));
  EXPECT_THAT(ColumnOf(document, "txtTitleCurA"), ElementsAre("Cursor A"));
  EXPECT_THAT(ColumnOf(document, "txtTitleCurB"), ElementsAre("Cursor B"));
  EXPECT_THAT(ColumnOf(document, "txtTitleCurB_A"), ElementsAre("B-A"));
  EXPECT_THAT(ColumnOf(document, "txtValueName"), ElementsAre("Speed [min-1]", "Torque [%]"));
  EXPECT_THAT(ColumnOf(document, "txtValueCurA"), ElementsAre("1.0", "10"));
  EXPECT_THAT(ColumnOf(document, "txtValueCurB"), ElementsAre("2.0", "20"));
  EXPECT_THAT(ColumnOf(document, "txtValueCurB_A"), ElementsAre("1.0", "10"));
}

TEST_P(CursorGraph, OneCursorRowIsTheFirst) {
  Fields.CursolSelect = 1;
  EXPECT_THAT(ColumnOf(Compose(), "txtValueName"), ElementsAre("Speed [min-1]"));
}

TEST_P(CursorGraph, EveryFurtherRowIsTheSecondOneAgain) {
  Fields.CursolSelect = 4;
  EXPECT_THAT(ColumnOf(Compose(), "txtValueName"),
              ElementsAre("Speed [min-1]", "Torque [%]", "Torque [%]", "Torque [%]"));
}

TEST_P(CursorGraph, TheGraphIsAloneWithoutCursors) {
  Fields.CursolSelect = 0;
  const Document document = Compose();
  for (const char* control : {"Label2", "txtTitleName", "txtTitleCurA", "txtTitleCurB", "txtTitleCurB_A",
                              "txtValueName", "txtValueCurA", "txtValueCurB", "txtValueCurB_A"}) {
    EXPECT_THAT(PrintedOf(document, control), IsEmpty()) << control;
  }
  EXPECT_EQ(PrintedOf(document, "imgGraph").size(), 1U);
}

TEST_P(CursorGraph, ANegativeCursorCountPrintsTitlesWithoutRows) {
  Fields.CursolSelect = -1;
  const Document document = Compose();
  EXPECT_THAT(ColumnOf(document, "Label2"), ElementsAre("[Cursor Data]"));
  EXPECT_EQ(PrintedOf(document, "txtTitleName").size(), 1U);
  EXPECT_THAT(PrintedOf(document, "txtValueName"), IsEmpty());
}

TEST_P(CursorGraph, TitlesComeAgainOnEachPageOfALongCursorTable) {
  Fields.CursolSelect = 60;
  const Document document = Compose();
  ASSERT_EQ(document.Pages.size(), 2U);
  EXPECT_EQ(PrintedOf(document, "txtTitleName").size(), 2U);
  EXPECT_EQ(PrintedOf(document, "txtValueName").size(), 60U);
  EXPECT_EQ(PrintedOf(document, "Image1").size(), 1U) << "the title does not repeat";
}

TEST_P(CursorGraph, APictureKeepsItsProportionInTheMiddleOfItsBox) {
  Report.Pictures.NextWidth = Report.Pictures.NextHeight = 100;
  const Rect box = PrintedOf(Compose(), "imgGraph").at(0).Box;
  EXPECT_EQ(box.Width, 7228);
  EXPECT_EQ(box.Height, 7228);
  EXPECT_NEAR(box.Left, 142 + (8787 - 7228) / 2.0, 0.01);
}

// Contents below the group of an overlapped data set, or at top level where there are no groups.
TEST_P(CursorGraph, EntersItsCaptionBelowTheGroupUnlessItHasNone) {
  Run.Session.TocGroup = "Overlapping target";
  const Document document = Compose();
  const bool grouped = std::string(GetParam()) != "rptRealTraceGraph";
  ASSERT_EQ(document.Contents.size(), grouped ? 2U : 1U);
  EXPECT_EQ(document.Contents.back().Level, grouped ? 1 : 0);
  EXPECT_EQ(document.Contents.back().Text, ColumnOf(document, "Label1").at(0));
}

struct InputOutputLegend : CursorGraph {};

INSTANTIATE_TEST_SUITE_P(Reports, InputOutputLegend, testing::Values("rptTraceGraph", "rptSimGraph"));

TEST_P(InputOutputLegend, EndsTheRunWhereItIsMissing) {
  *Fields.IONote = *Fields.IONoteC = PathOf("gone.bmp");
  ExpectNumberedFailure(NoLegend);
  Run.Options.ColorType = 1;
  ExpectNumberedFailure(NoLegend);
}

TEST_P(InputOutputLegend, PrintsAlsoBesideAnEmptyLegend) {
  *Fields.IONote = Picture("io.bmp");
  const Document document = Compose();
  EXPECT_THAT(PrintedOf(document, "imgNote"), IsEmpty());
  EXPECT_EQ(PrintedOf(document, "imgIONote").size(), 1U);
}

struct SimulatedGraph : HostRun {};

TEST_F(SimulatedGraph, EndsAtItsPlacesWithTheGuideRightBelowTheGraph) {
  Run.Sim.SimGraph = Picture("graph.bmp");
  Run.Sim.SimNote = Picture("note.bmp");
  Run.Sim.SimIONote = Picture("io.bmp");
  Run.Sim.CursolSelect = 2;
  Run.Sim.CursolInfo1 = {"1.0", "2.0", "1.0", "Speed [min-1]"};
  Run.Sim.CursolInfo2 = {"10", "20", "10", "Torque [%]"};
  Run.Session.TocGroup = "Overlapping result";
  const Document document = Report.ComposeAlone("rptSimGraph");
  EXPECT_EQ(PrintedOf(document, "txtTitleName").at(0).Box, (Rect{142, 630 + 8363, 4960, 283}));
  EXPECT_EQ(PrintedOf(document, "txtValueCurB_A").at(1).Box.Bottom(), 10697 - 855);
  ExpectGolden("sim_graph", Dump(document));
}

}  // namespace
}  // namespace tarvis
