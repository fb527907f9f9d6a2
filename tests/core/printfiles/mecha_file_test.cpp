// The reader of Mecha.tmp, key by key.
#include "printfiles/mecha_file.h"

#include <gtest/gtest.h>

#include "core/support/reader_run.h"

namespace tarvis {
namespace {

using enum LastPart;

const HostFile kMechaFile = {"Mecha.tmp", ReadMechaFile, {}};

class MechaFile : public ReaderRun {
 protected:
  MechaFile() : ReaderRun(kMechaFile) {}

  MechaData& Mecha = Run.Mecha;
};

TEST_F(MechaFile, FillsWhatEachKeyNames) {
  ExpectHeaderLines(*this, kMechaFile);
  ExpectTextLines(*this, kMechaFile,
                  {{"MechaGraph1C", kRest, {Mecha.MechaGraph1C}},
                   {"MechaGraph1", kRest, {Mecha.MechaGraph1}},
                   {"MechaGraph2C", kRest, {Mecha.MechaGraph2C}},
                   {"MechaGraph2", kRest, {Mecha.MechaGraph2}},
                   {"MechaNoteC", kRest, {Mecha.MechaNoteC}},
                   {"MechaNote", kRest, {Mecha.MechaNote}},
                   {"CursolName", kField, {Mecha.CursolName[0], Mecha.CursolName[1], Mecha.CursolName[2]}},
                   CursorLineOf("CursolInfo1", Mecha.CursolInfo1),
                   CursorLineOf("CursolInfo2", Mecha.CursolInfo2),
                   CursorLineOf("CursolInfo3", Mecha.CursolInfo3),
                   Setting("Resonance", Mecha.Resonance),
                   Setting("Resonance1", Mecha.Resonance1),
                   Setting("Resonance2", Mecha.Resonance2),
                   Setting("AntiResonance", Mecha.AntiResonance),
                   Setting("Notch", Mecha.Notch),
                   Setting("RunMode", Mecha.RunMode),
                   Setting("AddVibSignal", Mecha.AddVibSignal),
                   Setting("CycleCount", Mecha.CycleCount),
                   Setting("AddVibRange", Mecha.AddVibRange),
                   Setting("MeasureCount", Mecha.MeasureCount),
                   Setting("SamplingCycle", Mecha.SamplingCycle),
                   Setting("AddVibTime", Mecha.AddVibTime),
                   {"GetDataDate", kRest, {Run.Session.DataDate}},
                   {"Comment", kRest, {Unescaped(Run.User.Comment)}}});
}

TEST_F(MechaFile, ReadsItsNumbers) {
  ExpectNumberLines(*this, kMechaFile,
                    {{"File-Spec", &Run.Header.FileSpec},
                     {"CursolSelect", &Mecha.CursolSelect},
                     {"CommentCnt", &Run.User.CommentCnt}});
}

TEST_F(MechaFile, HasNoParameterBlock) {
  ExpectUnknownKeys(
      *this, kMechaFile,
      {"UserNum", "UserName", "UserValue", "SwitchNum", "Switch", "Switch0", "Switch3", "OverlapMode"});
}

TEST_F(MechaFile, PassesWithAnyFileSpec) {
  EXPECT_TRUE(Read({"File-Spec,1"}));
  EXPECT_TRUE(Read({"File-Spec,0"}));
}

TEST_F(MechaFile, KeepsCursorRowsWhateverCursolSelectSays) {
  ASSERT_TRUE(Read({"CursolInfo3,1,2,3,c", "CursolSelect,0", "CursolInfo1,1,2,3,a", "CursolInfo2,1,2,3,b"}));
  EXPECT_EQ(Mecha.CursolInfo1.NameUnit, "a");
  EXPECT_EQ(Mecha.CursolInfo2.NameUnit, "b");
  EXPECT_EQ(Mecha.CursolInfo3.NameUnit, "c");
}

TEST_F(MechaFile, KeepsWhatASecondReadDoesNotName) {
  ASSERT_TRUE(Read({"Notch,n,1,Hz", "CursolSelect,2"}));
  ASSERT_TRUE(Read({"MechaNote,anything"}));
  EXPECT_EQ(Mecha.Notch.Value, "1");
  EXPECT_EQ(Mecha.CursolSelect, 2);
}

}  // namespace
}  // namespace tarvis
