// The reader of Trace.tmp and of its companions, key by key.
#include "printfiles/trace_file.h"

#include <gtest/gtest.h>

#include "core/support/reader_run.h"
#include "printfiles/host_files.h"

namespace tarvis {
namespace {

using enum LastPart;

const HostFile kTraceFile = {"Trace.tmp", ReadTraceFile, {"CursolSelect,2"}};

class TraceFile : public ReaderRun {
 protected:
  TraceFile() : ReaderRun(kTraceFile) {}

  TraceData& Trace = Run.Trace;
};

TEST_F(TraceFile, FillsWhatEachKeyNames) {
  ExpectHeaderLines(*this, kTraceFile);
  ExpectTextLines(*this, kTraceFile,
                  {{"TraceGraphC", kRest, {Trace.TraceGraphC}},
                   {"TraceGraph", kRest, {Trace.TraceGraph}},
                   {"TraceNoteC", kRest, {Trace.TraceNoteC}},
                   {"TraceNote", kRest, {Trace.TraceNote}},
                   {"TraceIONoteC", kRest, {Trace.TraceIONoteC}},
                   {"TraceIONote", kRest, {Trace.TraceIONote}},
                   CursorLineOf("CursolInfo1", Trace.CursolInfo1),
                   CursorLineOf("CursolInfo2", Trace.CursolInfo2),
                   ItemLineOf("DataTrace1", Trace.DataTrace1),
                   ItemLineOf("DataTrace2", Trace.DataTrace2),
                   ItemLineOf("DataTrace3", Trace.DataTrace3),
                   ItemLineOf("I/Otrace1", Trace.IOTrace1),
                   ItemLineOf("I/Otrace2", Trace.IOTrace2),
                   ItemLineOf("I/Otrace3", Trace.IOTrace3),
                   {"TriggerType", kRest, {Trace.TriggerType.Name, Trace.TriggerType.Value}},
                   {"TriggerLevel", kRest, {Trace.TriggerLevel.Name, Trace.TriggerLevel.Value}},
                   {"EdgeType", kField, {Trace.EdgeType.Name, Trace.EdgeType.Value}},
                   {"PreTrigger", kField, {Trace.PreTrigger.Name, Trace.PreTrigger.Value}},
                   {"SamplingCycle", kField, {Trace.SamplingCycle.Name, Trace.SamplingCycle.Value}},
                   {"GetDataDate", kRest, {Run.Session.DataDate}},
                   {"Comment", kRest, {Unescaped(Run.User.Comment)}}});
}

TEST_F(TraceFile, ReadsItsNumbers) {
  const HostFile plain = {"Trace.tmp", ReadTraceFile, {}};
  ExpectNumberLines(*this, plain,
                    {{"CursolSelect", &Trace.CursolSelect},
                     {"OverlapMode", &Trace.OverlapMode},
                     {"OverlapNum", &Trace.OverlapNum},
                     {"CommentCnt", &Run.User.CommentCnt},
                     {"UserNum", &Run.User.UserNum},
                     {"SwitchNum", &Run.User.SwitchNum}});
}

TEST_F(TraceFile, DoesNotKnowTheKeysOfOtherFiles) {
  ExpectUnknownKeys(*this, kTraceFile,
                    {"I/OTrace1", "IOTrace1", "DispData", "CursolInfo3", "CursolName", "CursorSelect",
                     "StartTime", "RealTraceGraph", "SimGraph", "Resonance", ""});
}

TEST_F(TraceFile, IsRefusedBelowFileSpec3) {
  EXPECT_FALSE(Read({"File-Spec,2"}));
  EXPECT_EQ(Run.Session.Diagnosis, "Trace.tmp:1: File-Spec: below 3");
  EXPECT_TRUE(Read({"File-Spec,3"}));
  EXPECT_TRUE(Read({"File-Spec,4"}));
  EXPECT_TRUE(Read({"OverlapMode,1"})) << "a file without File-Spec passes";
}

TEST_F(TraceFile, PassesOverCursorRowsThatCursolSelectDoesNotCount) {
  ASSERT_TRUE(Read({"CursolInfo1,1,2,3,a", "CursolInfo2,1,2,3,b"}));
  EXPECT_EQ(Trace.CursolInfo1.NameUnit, "");
  EXPECT_EQ(Trace.CursolInfo2.NameUnit, "");
  ASSERT_TRUE(Read({"CursolSelect,1", "CursolInfo1,1,2,3,a", "CursolInfo2,1,2,3,b"}));
  EXPECT_EQ(Trace.CursolInfo1.NameUnit, "a");
  EXPECT_EQ(Trace.CursolInfo2.NameUnit, "");
  ASSERT_TRUE(Read({"CursolInfo1,1,2,3,a", "CursolSelect,2", "CursolInfo2,1,2,3,b"}));
  EXPECT_EQ(Trace.CursolInfo1.NameUnit, "") << "comes before CursolSelect";
  EXPECT_EQ(Trace.CursolInfo2.NameUnit, "b");
}

TEST_F(TraceFile, KeepsTheCursorsNameLastAndWhole) {
  ASSERT_TRUE(Read({"CursolSelect,1", "CursolInfo1,10,20,-10,Speed, actual [r/min]"}));
  EXPECT_EQ(Trace.CursolInfo1.ValueA, "10");
  EXPECT_EQ(Trace.CursolInfo1.ValueB, "20");
  EXPECT_EQ(Trace.CursolInfo1.ValueDiff, "-10");
  EXPECT_EQ(Trace.CursolInfo1.NameUnit, "Speed, actual [r/min]");
}

TEST_F(TraceFile, IsEmptiedByEachReadButTheDateIsNot) {
  ASSERT_TRUE(Read({"MechaInfo,A", "TraceGraph,g", "CursolSelect,2", "CursolInfo1,1,2,3,a", "OverlapMode,1",
                    "OverlapNum,2", "DataTrace1,n,1,u", "TriggerLevel,n,v", "GetDataDate,today", "UserNum,1",
                    "UserName,1,a", "UserValue,1,2,u", "Comment,c"},
                   "Trace1.tmp"));
  ASSERT_TRUE(Read({"TraceGraphC,h"}, "Trace2.tmp"));
  EXPECT_EQ(Trace.TraceGraph, "");
  EXPECT_EQ(Trace.TraceGraphC, "h");
  EXPECT_EQ(Trace.CursolSelect, 0);
  EXPECT_EQ(Trace.CursolInfo1.NameUnit, "");
  EXPECT_EQ(Trace.OverlapMode, 0);
  EXPECT_EQ(Trace.OverlapNum, 0);
  EXPECT_EQ(Trace.DataTrace1.Name, "");
  EXPECT_EQ(Trace.TriggerLevel.Value, "");
  EXPECT_EQ(Run.Session.DataDate, "today");
  EXPECT_EQ(Run.Header.MechaInfo, "A");
  EXPECT_EQ(Run.User.Prm[0].Name, "a");
  EXPECT_EQ(Run.User.Comment, "c");
}

TEST_F(TraceFile, EmptyCompanionIsReadWithNothingInIt) {
  ASSERT_TRUE(Read({"TraceGraph,g"}));
  ASSERT_TRUE(Read({}, "Trace2.tmp"));
  EXPECT_EQ(Trace.TraceGraph, "");
}

TEST_F(TraceFile, LeavesTheSessionsOverlapAlone) {
  Run.Session.OverlapMode = 1;
  Run.Session.OverlapNum = 3;
  ASSERT_TRUE(Read({"OverlapMode,0", "OverlapNum,9"}));
  EXPECT_EQ(Run.Session.OverlapMode, 1);
  EXPECT_EQ(Run.Session.OverlapNum, 3);
}

TEST_F(TraceFile, HoldsTheParameterBlockByItsRules) {
  ExpectParameterBlock(*this, kTraceFile);
  EXPECT_TRUE(Read({"UserNum,1", "UserName,1,a", "UserValue,1,2,u"}));
  EXPECT_FALSE(Read({"UserName,1,a"}));
  EXPECT_FALSE(Read({"Switch,1,2,3,a"}));
  EXPECT_FALSE(Read({"UserNum,1", "UserName,1,a", "UserValue,1,2,u", "UserName,2,b"}));
  EXPECT_EQ(Run.Session.Diagnosis, "Trace.tmp:4: UserName: one more than 'UserNum' announces");
}

TEST_F(TraceFile, NamesTheLineOfAnUnknownKey) {
  std::vector<std::string> lines(16, "Comment,x");
  lines.emplace_back("Cursolselect,1");
  EXPECT_FALSE(Read(lines));
  EXPECT_EQ(Run.Session.Diagnosis, "Trace.tmp:17: unknown key 'Cursolselect'");
}

TEST_F(TraceFile, GivesNoLinesIfItIsMissing) {
  const TempFolder folder;
  EXPECT_EQ(LoadLines(Run, folder.HostPath("Trace3.tmp")), -1);
  EXPECT_EQ(Run.Session.Diagnosis, "Trace3.tmp: can't be read");
}

}  // namespace
}  // namespace tarvis
