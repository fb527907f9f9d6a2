// The reader of RealTrace.tmp, key by key.
#include "printfiles/real_trace_file.h"

#include <gtest/gtest.h>

#include "core/support/reader_run.h"

namespace tarvis {
namespace {

using enum LastPart;

const HostFile kRealTraceFile = {"RealTrace.tmp", ReadRealTraceFile, {"CursolSelect,2"}};

class RealTraceFile : public ReaderRun {
 protected:
  RealTraceFile() : ReaderRun(kRealTraceFile) {}

  RealTraceData& Trace = Run.RealTrace;
};

TEST_F(RealTraceFile, FillsWhatEachKeyNames) {
  ExpectHeaderLines(*this, kRealTraceFile);
  ExpectTextLines(*this, kRealTraceFile,
                  {{"RealTraceGraphC", kRest, {Trace.RealTraceGraphC}},
                   {"RealTraceGraph", kRest, {Trace.RealTraceGraph}},
                   {"RealTraceNoteC", kRest, {Trace.RealTraceNoteC}},
                   {"RealTraceNote", kRest, {Trace.RealTraceNote}},
                   CursorLineOf("CursolInfo1", Trace.CursolInfo1),
                   CursorLineOf("CursolInfo2", Trace.CursolInfo2),
                   {"StartTime", kRest, {Trace.StartTime.Name, Trace.StartTime.Value}},
                   {"SamplingCycle", kRest, {Trace.SamplingCycle.Name, Trace.SamplingCycle.Value}},
                   {"DispData", kField, {Trace.DispData.Name, Trace.DispData.Value}},
                   {"Comment", kRest, {Unescaped(Run.User.Comment)}}});
}

TEST_F(RealTraceFile, ReadsItsNumbers) {
  const HostFile plain = {"RealTrace.tmp", ReadRealTraceFile, {}};
  ExpectNumberLines(*this, plain,
                    {{"CursolSelect", &Trace.CursolSelect},
                     {"CommentCnt", &Run.User.CommentCnt},
                     {"UserNum", &Run.User.UserNum},
                     {"SwitchNum", &Run.User.SwitchNum}});
}

TEST_F(RealTraceFile, DoesNotKnowTheKeysOfTheTraceFile) {
  ExpectUnknownKeys(*this, kRealTraceFile,
                    {"GetDataDate", "OverlapMode", "OverlapNum", "DataTrace1", "I/Otrace1", "TriggerType",
                     "EdgeType", "RealTraceIONote", "TraceGraph", "CursolInfo3"});
}

TEST_F(RealTraceFile, IsRefusedBelowFileSpec3) {
  EXPECT_FALSE(Read({"File-Spec,2"}));
  EXPECT_EQ(Run.Session.Diagnosis, "RealTrace.tmp:1: File-Spec: below 3");
  EXPECT_TRUE(Read({"File-Spec,3"}));
}

TEST_F(RealTraceFile, KeepsWhatASecondReadDoesNotName) {
  ASSERT_TRUE(Read({"CursolSelect,1", "RealTraceGraph,g", "StartTime,n,v"}));
  ASSERT_TRUE(Read({"CursolInfo1,1,2,3,early", "RealTraceGraphC,h"}));
  EXPECT_EQ(Trace.RealTraceGraph, "g");
  EXPECT_EQ(Trace.RealTraceGraphC, "h");
  EXPECT_EQ(Trace.StartTime.Value, "v");
  EXPECT_EQ(Trace.CursolInfo1.NameUnit, "early") << "CursolSelect of the first read still counts";
}

TEST_F(RealTraceFile, PassesOverACursorRowAheadOfCursolSelectInAFirstRead) {
  ASSERT_TRUE(Read({"CursolInfo1,1,2,3,early", "CursolSelect,1", "CursolInfo2,1,2,3,b"}));
  EXPECT_EQ(Trace.CursolInfo1.NameUnit, "");
  EXPECT_EQ(Trace.CursolInfo2.NameUnit, "");
}

TEST_F(RealTraceFile, HoldsTheParameterBlockByItsRules) {
  ExpectParameterBlock(*this, kRealTraceFile);
  EXPECT_FALSE(Read({"UserName,1,a"}));
  EXPECT_FALSE(Read({"SwitchNum,1", "Switch,1,2,3,a", "Switch3,0,1,,,x", "Switch,2,2,3,b"}));
  EXPECT_TRUE(Read({"UserNum,1", "UserName,1,a", "UserValue,1,2,u"}));
}

}  // namespace
}  // namespace tarvis
