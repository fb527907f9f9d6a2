// The reader of UPWizard.tmp, key by key.
#include "printfiles/upwizard_file.h"

#include <gtest/gtest.h>

#include "core/support/reader_run.h"

namespace tarvis {
namespace {

using enum LastPart;

const HostFile kWizardFile = {"UPWizard.tmp", ReadUPWizardFile, {}};

class UPWizardFile : public ReaderRun {
 protected:
  UPWizardFile() : ReaderRun(kWizardFile) {}

  UPWizardData& Wizard = Run.UPWizard;
};

TEST_F(UPWizardFile, FillsWhatEachKeyNames) {
  ExpectHeaderLines(*this, kWizardFile);
  ExpectTextLines(*this, kWizardFile,
                  {{"BASE", kField, {Wizard.Base}},
                   {"CONTROL", kField, {Wizard.ControlCaption, Wizard.Control}},
                   {"RATIO", kField, {Wizard.RatioCaption, Wizard.Ratio, Wizard.RatioUnit}}});
}

TEST_F(UPWizardFile, PassesWithAnyFileSpec) {
  ExpectNumberLines(*this, kWizardFile, {{"File-Spec", &Run.Header.FileSpec}});
}

TEST_F(UPWizardFile, DoesNotKnowCommentsDatesOrParameters) {
  ExpectUnknownKeys(
      *this, kWizardFile,
      {"Comment", "CommentCnt", "GetDataDate", "UserNum", "base", "outnum", "outstr", "ry", "Ry"});
}

TEST_F(UPWizardFile, PutsEachTextIntoItsSlot) {
  for (int slot = 1; slot <= 7; ++slot) {
    const std::string number = std::to_string(slot);
    ASSERT_TRUE(Read({"OUTSTR," + number + ",name " + number + ", more"}));
    EXPECT_EQ(Wizard.OutStr[slot].Slot, number);
    EXPECT_EQ(Wizard.OutStr[slot].Text, "name " + number + ", more");
  }
  for (int slot = 1; slot <= 4; ++slot) {
    ASSERT_TRUE(Read({"OUTNUM," + std::to_string(slot) + ",CN1-" + std::to_string(slot) + ",x"}));
    EXPECT_EQ(Wizard.OutNum[slot].Text, "CN1-" + std::to_string(slot) + ",x");
  }
}

TEST_F(UPWizardFile, PutsEachRelayIntoItsSlot) {
  for (int slot = 1; slot <= 8; ++slot) {
    const std::string number = std::to_string(slot);
    ASSERT_TRUE(Read({"RY," + number + ",RY" + number + ",C:\\relay.bmp,Brake, main"}));
    EXPECT_EQ(Wizard.Ry[slot].Slot, number);
    EXPECT_EQ(Wizard.Ry[slot].Number, "RY" + number);
    EXPECT_EQ(Wizard.Ry[slot].Picture, "C:\\relay.bmp");
    EXPECT_EQ(Wizard.Ry[slot].Name, "Brake, main");
  }
}

TEST_F(UPWizardFile, StopsAtASlotOutOfRange) {
  for (const char* line : {"OUTNUM,0", "OUTNUM,5", "OUTNUM,-1", "OUTSTR,0", "OUTSTR,8", "RY,0", "RY,9"}) {
    const std::string key = std::string(line).substr(0, std::string(line).find(','));
    const std::string slot = std::string(line).substr(key.size() + 1);
    EXPECT_EQ(Stopped({std::string(line) + ",x"}),
              "UPWizard.tmp:1: " + key + ": subscript out of range: '" + slot + "'");
  }
}

TEST_F(UPWizardFile, StopsAtASlotThatIsNoNumber) {
  EXPECT_EQ(Stopped({"OUTNUM,one,x"}), "UPWizard.tmp:1: OUTNUM: element 1: not a number: 'one'");
  EXPECT_EQ(Stopped({"OUTSTR"}), "UPWizard.tmp:1: OUTSTR: element 1: not a number: ''");
  EXPECT_EQ(Stopped({"RY,,x"}), "UPWizard.tmp:1: RY: element 1: not a number: ''");
}

TEST_F(UPWizardFile, RoundsAndTrimsASlotButKeepsItsText) {
  ASSERT_TRUE(Read({"OUTNUM, 1 ,a", "OUTNUM,1.5,b"}));
  EXPECT_EQ(Wizard.OutNum[1].Slot, " 1 ");
  EXPECT_EQ(Wizard.OutNum[1].Text, "a");
  EXPECT_EQ(Wizard.OutNum[2].Slot, "1.5");
  EXPECT_EQ(Wizard.OutNum[2].Text, "b");
}

TEST_F(UPWizardFile, ReplacesASlotByALaterLine) {
  ASSERT_TRUE(Read({"RY,1,RY1,p,first", "RY,1,RY2,,second"}));
  EXPECT_EQ(Wizard.Ry[1].Number, "RY2");
  EXPECT_EQ(Wizard.Ry[1].Picture, "");
  EXPECT_EQ(Wizard.Ry[1].Name, "second");
}

TEST_F(UPWizardFile, LosesAPathsCommaToTheName) {
  ASSERT_TRUE(Read({"RY,1,RY1,C:\\a,b.bmp,Brake"}));
  EXPECT_EQ(Wizard.Ry[1].Picture, "C:\\a");
  EXPECT_EQ(Wizard.Ry[1].Name, "b.bmp,Brake");
}

TEST_F(UPWizardFile, TakesShortSlotLines) {
  ASSERT_TRUE(Read({"OUTNUM,1", "RY,1,RY1"}));
  EXPECT_EQ(Wizard.OutNum[1].Text, "");
  EXPECT_EQ(Wizard.Ry[1].Number, "RY1");
  EXPECT_EQ(Wizard.Ry[1].Name, "");
}

TEST_F(UPWizardFile, ReadsInAnyOrderAndWithoutBase) {
  ASSERT_TRUE(Read({"RY,8,n,,last", "RATIO,c,v,u", "File-Spec,1"}));
  EXPECT_EQ(Wizard.Base, "");
}

}  // namespace
}  // namespace tarvis
