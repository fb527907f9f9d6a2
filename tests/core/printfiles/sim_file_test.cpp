// The reader of Sim.tmp and of its companions, key by key.
#include "printfiles/sim_file.h"

#include <gtest/gtest.h>

#include "core/support/reader_run.h"

namespace tarvis {
namespace {

using enum LastPart;

const HostFile kSimFile = {"Sim.tmp", ReadSimFile, {"CursolSelect,2"}};

class SimFile : public ReaderRun {
 protected:
  SimFile() : ReaderRun(kSimFile) {}

  SimData& Sim = Run.Sim;
};

// "key,name,unit,1,2,...,count"
std::string ValuesLine(const std::string& key, int count) {
  std::string line = key + ",name,unit";
  for (int value = 1; value <= count; ++value) line += "," + std::to_string(value);
  return line;
}

std::string PatternSettingLine(int count) {
  return "PatternSetting,n,0,Trapezoid," + std::to_string(count);
}

const std::vector<std::string> kRowKeys = {"StartTime",  "AccTime",      "RunTime",      "DecTime",
                                           "EndRefTime", "AccOffsetSpd", "DecOffsetSpd", "MaxSpd"};
const std::vector<std::string> kListKeys = {"StartPointTime", "EndTime", "ArrivalSpeed"};

TEST_F(SimFile, FillsWhatEachGraphKeyNames) {
  ExpectHeaderLines(*this, kSimFile);
  ExpectTextLines(*this, kSimFile,
                  {{"SimGraphC", kRest, {Sim.SimGraphC}},
                   {"SimGraph", kRest, {Sim.SimGraph}},
                   {"SimNoteC", kRest, {Sim.SimNoteC}},
                   {"SimNote", kRest, {Sim.SimNote}},
                   {"SimIONoteC", kRest, {Sim.SimIONoteC}},
                   {"SimIONote", kRest, {Sim.SimIONote}},
                   CursorLineOf("CursolInfo1", Sim.CursolInfo1),
                   CursorLineOf("CursolInfo2", Sim.CursolInfo2),
                   ItemLineOf("DataTrace1", Sim.DataTrace1),
                   ItemLineOf("DataTrace2", Sim.DataTrace2),
                   ItemLineOf("DataTrace3", Sim.DataTrace3),
                   ItemLineOf("I/Otrace1", Sim.IOTrace1),
                   ItemLineOf("I/Otrace2", Sim.IOTrace2),
                   ItemLineOf("I/Otrace3", Sim.IOTrace3),
                   {"GetDataDate", kRest, {Run.Session.DataDate}},
                   {"Comment", kRest, {Unescaped(Run.User.Comment)}}});
}

TEST_F(SimFile, FillsWhatEachSettingKeyNames) {
  ExpectTextLines(
      *this, kSimFile,
      {Setting("Control", Sim.Control),
       Setting("Ref", Sim.Ref),
       Setting("SettingTime", Sim.SettingTime),
       Setting("SamplingCycle", Sim.SamplingCycle),
       Setting("SimTime", Sim.SimTime),
       Setting("FilType", Sim.FilType),
       Setting("FilTime", Sim.FilTime),
       Setting("MtRatedOutput", Sim.MtRatedOutput),
       Setting("MtRatedTorque", Sim.MtRatedTorque),
       Setting("MtPeakTorque", Sim.MtPeakTorque),
       Setting("MtMaxCurrent", Sim.MtMaxCurrent),
       Setting("MtRatedCurrent", Sim.MtRatedCurrent),
       Setting("MtRatedSpeed", Sim.MtRatedSpeed),
       Setting("MtMaxSpeed", Sim.MtMaxSpeed),
       Setting("MtTorqueConstant", Sim.MtTorqueConstant),
       Setting("MtRoterMoment", Sim.MtRoterMoment),
       Setting("MtRatedPowerRate", Sim.MtRatedPowerRate),
       Setting("MtRatedAnglulerAcc", Sim.MtRatedAnglulerAcc),
       Setting("MtInertiaTimeConstant", Sim.MtInertiaTimeConstant),
       Setting("MtInductionTimeConstant", Sim.MtInductionTimeConstant),
       Setting("MtBrakeCompensation", Sim.MtBrakeCompensation),
       Setting("MtOilSealCompensation", Sim.MtOilSealCompensation),
       Setting("PgType", Sim.PgType),
       Setting("MtOpType", Sim.MtOpType),
       Setting("FcType", Sim.FcType),
       Setting("ResPoint", Sim.ResPoint),
       Setting("AntiResPoint", Sim.AntiResPoint),
       {"MechaType", kField, {Sim.MechaType.Name, Sim.MechaType.Value, Sim.MechaType.ModelFile}},
       {"Inertia", kField, {Sim.Inertia.Name, Unescaped(Sim.Inertia.Value), Unescaped(Sim.Inertia.Unit)}}});
}

TEST_F(SimFile, ReadsItsNumbers) {
  const HostFile plain = {"Sim.tmp", ReadSimFile, {}};
  ExpectNumberLines(*this, plain,
                    {{"File-Spec", &Run.Header.FileSpec},
                     {"CursolSelect", &Sim.CursolSelect},
                     {"OverlapMode", &Sim.OverlapMode},
                     {"OverlapNum", &Sim.OverlapNum},
                     {"MotorType", &Sim.MotorType},
                     {"CmpUserNum", &Sim.CmpUserNum},
                     {"CommentCnt", &Run.User.CommentCnt},
                     {"UserNum", &Run.User.UserNum},
                     {"SwitchNum", &Run.User.SwitchNum}});
}

TEST_F(SimFile, KnowsTheMisspeltKeysOnly) {
  ExpectUnknownKeys(*this, kSimFile,
                    {"MtRotorMoment", "MtRatedAngularAcc", "CursorSelect", "TriggerType", "TraceGraph",
                     "CursolInfo3", "FilterType", "CursolName"});
}

TEST_F(SimFile, PassesWithAnyFileSpecThoughItHasAParameterBlock) {
  EXPECT_TRUE(Read({"File-Spec,1", "UserNum,1", "UserName,1,a", "UserValue,1,2,u"}));
  EXPECT_EQ(Run.Header.FileSpec, 1);
}

TEST_F(SimFile, HoldsTheParameterBlockByItsRules) {
  ExpectParameterBlock(*this, kSimFile);
  EXPECT_FALSE(Read({"UserName,1,a"}));
  EXPECT_FALSE(Read({"UserNum,0", "UserName,1,a"}));
  EXPECT_FALSE(Read({"Switch,1,2,3,a"}));
}

TEST_F(SimFile, PassesOverCursorRowsThatCursolSelectDoesNotCount) {
  ASSERT_TRUE(Read({"CursolSelect,1", "CursolInfo1,1,2,3,a", "CursolInfo2,1,2,3,b"}));
  EXPECT_EQ(Sim.CursolInfo1.NameUnit, "a");
  EXPECT_EQ(Sim.CursolInfo2.NameUnit, "");
  ASSERT_TRUE(Read({"CursolInfo1,1,2,3,a", "CursolSelect,2"}));
  EXPECT_EQ(Sim.CursolInfo1.NameUnit, "");
}

TEST_F(SimFile, ReadsAsManyValuesAsThePatternCounts) {
  std::vector<std::string> lines = {PatternSettingLine(3)};
  for (const std::string& key : kRowKeys) lines.push_back(ValuesLine(key, 5));
  for (const std::string& key : kListKeys) lines.push_back(ValuesLine(key, 2));
  ASSERT_TRUE(Read(lines));
  EXPECT_EQ(Sim.PatternSetting.PatternKind, "0");
  EXPECT_EQ(Sim.PatternSetting.PatternName, "Trapezoid");
  EXPECT_EQ(Sim.PatternSetting.PatternCount, 3);
  for (const PatternRow* row : {&Sim.StartTime, &Sim.AccTime, &Sim.RunTime, &Sim.DecTime, &Sim.EndRefTime,
                                &Sim.AccOffsetSpd, &Sim.DecOffsetSpd, &Sim.MaxSpd}) {
    EXPECT_EQ(row->Name + row->Unit + row->Values[0] + row->Values[1] + row->Values[2] + row->Values[3],
              "nameunit123");
  }
  for (const PointList* list : {&Sim.StartPointTime, &Sim.EndTime, &Sim.ArrivalSpeed}) {
    EXPECT_EQ(list->Name + list->Unit + list->Values[0] + list->Values[1] + list->Values[2], "nameunit12");
  }
}

TEST_F(SimFile, ReadsNoValuesAheadOfPatternSettingOrWithCountZero) {
  ASSERT_TRUE(Read({ValuesLine("StartTime", 3), PatternSettingLine(3)}));
  EXPECT_EQ(Sim.StartTime.Name, "name");
  EXPECT_EQ(Sim.StartTime.Unit, "unit");
  EXPECT_EQ(Sim.StartTime.Values[0], "");
  ASSERT_TRUE(Read({PatternSettingLine(0), ValuesLine("AccTime", 3)}));
  EXPECT_EQ(Sim.AccTime.Values[0], "");
  ASSERT_TRUE(Read({PatternSettingLine(-1), ValuesLine("AccTime", 3)}));
  EXPECT_EQ(Sim.AccTime.Values[0], "");
}

TEST_F(SimFile, StopsAtMoreValuesThanARowHolds) {
  EXPECT_TRUE(Read({PatternSettingLine(11), ValuesLine("MaxSpd", 11)}));
  EXPECT_EQ(Sim.MaxSpd.Values[10], "11");
  for (const std::string& key : kRowKeys) {
    EXPECT_EQ(
        Stopped({PatternSettingLine(12), ValuesLine(key, 1)}),
        "Sim.tmp:2: " + key + ": 'PatternSetting' counts 12 values, and only 11 have room: 'name,unit,1'");
  }
}

TEST_F(SimFile, HoldsUpTo41PointsInAList) {
  EXPECT_TRUE(Read({PatternSettingLine(12), ValuesLine("EndTime", 12)})) << "no row key, so 12 is no harm";
  EXPECT_TRUE(Read({PatternSettingLine(41), ValuesLine("StartPointTime", 41)}));
  EXPECT_EQ(Sim.StartPointTime.Values[40], "41");
  for (const std::string& key : kListKeys) {
    EXPECT_EQ(
        Stopped({PatternSettingLine(42), ValuesLine(key, 1)}),
        "Sim.tmp:2: " + key + ": 'PatternSetting' counts 42 values, and only 41 have room: 'name,unit,1'");
  }
}

TEST_F(SimFile, TakesAKindThatIsNoNumber) {
  ASSERT_TRUE(Read({"PatternSetting,n,,name,2"}));
  EXPECT_EQ(Sim.PatternSetting.PatternKind, "");
  ASSERT_TRUE(Read({"PatternSetting,n,free,name,2"}));
  EXPECT_EQ(Stopped({"PatternSetting,n,0,name"}), "Sim.tmp:1: PatternSetting: element 4: not a number: ''");
}

TEST_F(SimFile, KnowsPatternRowsWhereOtherFilesHaveSettings) {
  ASSERT_TRUE(
      Read({PatternSettingLine(1), "StartTime,Start,ms,5", "EndTime,End,ms,6", "EndRefTime,Stop,ms,7"}));
  EXPECT_EQ(Sim.StartTime.Values[0], "5");
  EXPECT_EQ(Sim.EndTime.Values[0], "6");
  EXPECT_EQ(Sim.EndRefTime.Values[0], "7");
}

TEST_F(SimFile, BoundsComparisonTimesByTheSessionsOverlap) {
  Run.Session.OverlapNum = 3;
  ASSERT_TRUE(
      Read({"OverlapNum,1", "CmpTime,f1,t1,c1,x", "CmpTime,f2,t2,c2", "CmpTime,f3,t3", "CmpTime,f4,t4,c4"}));
  EXPECT_EQ(Sim.CmpTime[0].FileName, "f1");
  EXPECT_EQ(Sim.CmpTime[0].SettingTime, "t1");
  EXPECT_EQ(Sim.CmpTime[0].ControlMode, "c1");
  EXPECT_EQ(Sim.CmpTime[2].FileName, "f3");
  EXPECT_EQ(Sim.CmpTime[2].ControlMode, "");
  EXPECT_EQ(Sim.CmpTime[3].FileName, "");
}

TEST_F(SimFile, PassesOverComparisonTimesInAPlainRun) {
  ASSERT_TRUE(Read({"OverlapNum,3", "CmpTime,f1,t1,c1"}));
  EXPECT_EQ(Sim.CmpTime[0].FileName, "");
}

TEST_F(SimFile, StopsAtATwelfthComparisonTime) {
  const std::vector<std::string> eleven(11, "CmpTime,f,t,c");
  Run.Session.OverlapNum = 12;
  EXPECT_TRUE(Read(eleven));
  std::vector<std::string> twelve = eleven;
  twelve.emplace_back("CmpTime,f,t,c");
  EXPECT_EQ(Stopped(twelve),
            "Sim.tmp:12: CmpTime: 'OverlapNum' counts 12 simulations, and only 11 have room: 'f,t,c'");
}

TEST_F(SimFile, ReadsComparedParameters) {
  ASSERT_TRUE(Read({"CmpUserNum,2", "CmpUser,Pn100,1,2,3,4,5,6,7,8,9,10,11,12", "CmpUser,Pn101,1"}));
  EXPECT_EQ(Sim.CmpUserNum, 2);
  EXPECT_EQ(Sim.CmpUser[0].No, "Pn100");
  EXPECT_EQ(Sim.CmpUser[0].Values[0], "1");
  EXPECT_EQ(Sim.CmpUser[0].Values[10], "11");
  EXPECT_EQ(Sim.CmpUser[1].Values[0], "1");
  EXPECT_EQ(Sim.CmpUser[1].Values[10], "");
}

TEST_F(SimFile, RefusesComparedParametersThatNoCountAnnounces) {
  EXPECT_FALSE(Read({"CmpUser,Pn100,1"}));
  EXPECT_EQ(Run.Session.Diagnosis, "Sim.tmp:1: CmpUser: comes before 'CmpUserNum'");
  EXPECT_FALSE(Read({"CmpUserNum,1", "CmpUser,a,1", "CmpUser,b,1"}));
  EXPECT_EQ(Run.Session.Diagnosis, "Sim.tmp:3: CmpUser: one more than 'CmpUserNum' announces");
  EXPECT_FALSE(Read({"CmpUserNum,0", "CmpUser,a,1"}));
  EXPECT_FALSE(Read({"CmpUserNum,-1", "CmpUser,a,1"}));
}

TEST_F(SimFile, NeedsItsOwnCountThoughTheOldOneSurvives) {
  ASSERT_TRUE(Read({"CmpUserNum,1", "CmpUser,a,1"}));
  EXPECT_FALSE(Read({"CmpUser,b,1"}, "Sim1.tmp"));
  EXPECT_EQ(Sim.CmpUserNum, 1);
  EXPECT_EQ(Sim.CmpUser[0].No, "a");
}

TEST_F(SimFile, KeepsMotorTypeComparisonsAndLaterValuesOfTheFileBefore) {
  Run.Session.OverlapNum = 1;
  ASSERT_TRUE(Read({"MotorType,1", "CmpTime,f1,t1,c1", "CmpUserNum,1", "CmpUser,a,1", PatternSettingLine(2),
                    ValuesLine("RunTime", 2), ValuesLine("ArrivalSpeed", 2), "Control,n,v,u",
                    "CursolSelect,2", "OverlapMode,1", "Inertia,n,v,u"}));
  ASSERT_TRUE(Read({"File-Spec,3"}, "Sim1.tmp"));
  EXPECT_EQ(Sim.MotorType, 1);
  EXPECT_EQ(Sim.CmpTime[0].FileName, "f1");
  EXPECT_EQ(Sim.CmpUserNum, 1);
  EXPECT_EQ(Sim.CmpUser[0].No, "a");
  EXPECT_EQ(Sim.RunTime.Values[1], "2");
  EXPECT_EQ(Sim.ArrivalSpeed.Values[1], "2");
  EXPECT_EQ(Sim.RunTime.Name + Sim.RunTime.Unit + Sim.RunTime.Values[0], "");
  EXPECT_EQ(Sim.ArrivalSpeed.Name + Sim.ArrivalSpeed.Unit + Sim.ArrivalSpeed.Values[0], "");
  EXPECT_EQ(Sim.Control.Value, "");
  EXPECT_EQ(Sim.Inertia.Unit, "");
  EXPECT_EQ(Sim.CursolSelect, 0);
  EXPECT_EQ(Sim.OverlapMode, 0);
  EXPECT_EQ(Sim.PatternSetting.PatternCount, 0);
  EXPECT_EQ(Sim.PatternSetting.PatternName, "");
}

TEST_F(SimFile, StartsItsRowNumbersAnewInEachRead) {
  Run.Session.OverlapNum = 2;
  ASSERT_TRUE(Read({"CmpTime,f1,t1,c1", "CmpUserNum,1", "CmpUser,a,1"}));
  ASSERT_TRUE(Read({"CmpTime,f2,t2,c2", "CmpUserNum,1", "CmpUser,b,1"}));
  EXPECT_EQ(Sim.CmpTime[0].FileName, "f2");
  EXPECT_EQ(Sim.CmpUser[0].No, "b");
}

TEST_F(SimFile, LeavesAModelWithoutPictureEmpty) {
  ASSERT_TRUE(Read({"MechaType,Model,Belt"}));
  EXPECT_EQ(Sim.MechaType.ModelFile, "");
}

}  // namespace
}  // namespace tarvis
