// One real-time trace on paper.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/golden.h"
#include "support/host_run.h"

namespace tarvis {
namespace {

using testing::ElementsAre;

struct RealTimeTracing : HostRun {};

TEST_F(RealTimeTracing, PrintsGraphAndInfoOnOnePage) {
  Run.Session.Mode = Mode::RealTrace;
  Run.Options.RealTraceHeader = {1, 1, 1, 1, 1, "Real-Time Tracing"};
  Run.Options.RealTraceOption = {1, 0, 0, 0, 0, 0, 1};
  WriteLines("RealTrace.tmp",
             {"File-Spec,3", "MechaInfo,Servo pack 400 W", "File,axis1.rtt",
              "RealTraceGraph," + Picture("graph.bmp"), "RealTraceNote," + Picture("note.bmp"),
              "CursolSelect,2", "CursolInfo1,0.1,0.9,0.8,Time [s]", "CursolInfo2,100,900,800,Speed [min-1]",
              "StartTime,Start time,2026/03/05 10:11", "SamplingCycle,Sampling cycle,10 ms, averaged",
              "DispData,Displayed data,1000 points", "CommentCnt,1", "Comment,Axis 1\\r\\nafter tuning"});
  const Document document = Report.ComposeMaster();
  EXPECT_THAT(EntriesOf(document), ElementsAre("1: Real-Time Tracing Graph @ 855", "1: Tracing Info @ 10838",
                                               "1: Comments @ 12742"));
  ExpectGolden("real_trace", Dump(document));
}

TEST_F(RealTimeTracing, TheLineBreakAfterItemsMakesNoSecondLine) {
  const Document document = Report.ComposeAlone("rptRealTraceInfo");
  EXPECT_THAT(PrintedOf(document, "txtTitleName").at(0).Texts, ElementsAre("Items"));
  EXPECT_EQ(PrintedOf(document, "txtTitleName").at(0).Box.Height, 283);
  EXPECT_THAT(ColumnOf(document, "txtTitleValue"), ElementsAre("Value"));
  EXPECT_EQ(PrintedOf(document, "txtValueName").size(), 3U);
}

TEST_F(RealTimeTracing, EntersItsInfoAtTopLevelAlsoWithAGroup) {
  Run.Session.TocGroup = "left over";
  const Document document = Report.ComposeAlone("rptRealTraceInfo");
  ASSERT_EQ(document.Contents.size(), 1U);
  EXPECT_EQ(document.Contents[0].Text, "Tracing Info");
}

}  // namespace
}  // namespace tarvis
