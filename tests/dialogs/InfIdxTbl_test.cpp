// The page of the program table: its range of steps, and how a wrong one is caught.
#include "dialogs/pages/InfIdxTbl.h"

#include <QInputMethodEvent>

#include "dialogs/program_table_page.h"

namespace tarvis {
namespace {

TEST_F(ProgramTablePage, AFirstRunPrintsAllSteps) {
  OpenTable(128);
  EXPECT_TRUE(Find<OptionButton>("optRange_0").isChecked());
  EXPECT_FALSE(Find("TextStart").isEnabled());
  EXPECT_FALSE(Find("LabelEnd").isEnabled());
  EXPECT_EQ(Range(), "-");
}

TEST_F(ProgramTablePage, ChoosingTheRangeProposesAllStepsAndWaitsInTheStart) {
  OpenTable(128);
  Click(Find("optRange_2"));
  EXPECT_EQ(Range(), "0-127");
  EXPECT_EQ(Stored(), "0-127");
  EXPECT_EQ(Run.Options.IdxTblOption.Range, 2);
  EXPECT_TRUE(Find("LabelStart").isEnabled());
  EXPECT_EQ(FocusName(), "TextStart");
}

TEST_F(ProgramTablePage, TheRangeCanBeChosenByKeyboard) {
  OpenTable(128);
  Find("optRange_0").setFocus();
  Key(Qt::Key_Down);
  EXPECT_EQ(Run.Options.IdxTblOption.Range, 1);
  Key(Qt::Key_Down);
  EXPECT_EQ(Run.Options.IdxTblOption.Range, 2);
  EXPECT_TRUE(QTest::qWaitFor([] { return FocusName() == "TextStart"; }));
}

TEST_F(ProgramTablePage, ChoosingAllStepsEmptiesTheRangeAndTheError) {
  OpenTable(128);
  Click(Find("optRange_2"));
  TypeRange("9", "5");
  Click(Find("optRange_1"));
  EXPECT_EQ(Range(), "-");
  EXPECT_EQ(Stored(), "-");
  EXPECT_EQ(Flags(), "-1,-1");
  EXPECT_FALSE(Find("TextEnd").isEnabled());
  Click(Find("cmdOK"));
  EXPECT_EQ(PreviewDialogVisible.size(), 1u);
  EXPECT_TRUE(Desktop.Messages.empty());
}

TEST_F(ProgramTablePage, AGoodRangeIsStoredAsTyped) {
  OpenTable(128);
  Click(Find("optRange_2"));
  TypeRange("007", "127");
  Click(Find("cmdOK"));
  EXPECT_EQ(Stored(), "007-127");
  EXPECT_EQ(PreviewDialogVisible.size(), 1u);
  EXPECT_TRUE(Desktop.Messages.empty());
}

TEST_F(ProgramTablePage, LeavingABoxRaisesNoMessage) {
  OpenTable(128);
  Click(Find("optRange_2"));
  TypeRange("10", "5");
  Key(Qt::Key_Tab);
  EXPECT_EQ(Flags(), "0,-1");
  EXPECT_TRUE(Desktop.Messages.empty());
}

struct BadRange {
  const char* Start;
  const char* End;
  int Steps;
  const char* Held;  // the box to which the user returns
  const char* Flags;
};

class HeldRange : public ProgramTablePage, public testing::WithParamInterface<BadRange> {
 protected:
  void SetUp() override {
    OpenTable(GetParam().Steps);
    Click(Find("optRange_2"));
    TypeRange(GetParam().Start, GetParam().End);
  }
  void ExpectHeld() {
    ExpectHeldIn(GetParam().Held);
    EXPECT_EQ(Flags(), GetParam().Flags);
  }
};

TEST_P(HeldRange, HoldsTheUserWhoClicksOk) {
  Click(Find("cmdOK"));
  ExpectHeld();
  EXPECT_TRUE(PreviewDialogVisible.empty());
  EXPECT_FALSE(OptionsFileExists());
}

TEST_P(HeldRange, HoldsTheUserWhoPressesEnter) {
  Key(Qt::Key_Return);
  ExpectHeld();
  EXPECT_TRUE(PreviewDialogVisible.empty());
}

TEST_P(HeldRange, HoldsTheUserWhoPressesTheMnemonicOfOk) {
  Key(Qt::Key_O, Qt::AltModifier);
  ExpectHeld();
  QCoreApplication::processEvents();
  EXPECT_TRUE(PreviewDialogVisible.empty());
}

TEST_P(HeldRange, HoldsTheUserWhoClicksAnotherControl) {
  Click(Find("optColor_1"));
  ExpectHeld();
  EXPECT_EQ(Run.Options.ColorType, 0) << "the click itself is lost";
}

TEST_P(HeldRange, HoldsTheUserWhoChangesTheTab) {
  ClickTab(Page("InfIdxTbl").Tabs(), 0);
  ExpectHeld();
}

TEST_P(HeldRange, HoldsTheUserWhoChangesTheTabByKeyboard) {
  Key(Qt::Key_Tab, Qt::ControlModifier);
  ExpectHeld();
}

TEST_P(HeldRange, HoldsTheUserWhoClicksCommentsWithoutStoringThem) {
  Click(Check("chkItemEtc", "InfIdxTbl"));
  ExpectHeld();
  EXPECT_FALSE(Check("chkItemEtc", "InfIdxTbl").isChecked());
  EXPECT_EQ(Run.Options.IdxTblOption.Comment, 1);
}

TEST_P(HeldRange, LetsTheUserCancelInEveryWay) {
  Click(Find("cmdCancel"));
  ExpectRunEnded();
  EXPECT_TRUE(Desktop.Messages.empty());
  Find("TextStart").setFocus();
  Key(Qt::Key_Escape);
  ExpectRunEnded();
  EXPECT_TRUE(Desktop.Messages.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Ranges, HeldRange,
    testing::Values(BadRange{"", "5", 128, "TextStart", "0,-1"}, BadRange{"5", "", 128, "TextEnd", "-1,0"},
                    BadRange{"", "", 128, "TextStart", "0,-1"}, BadRange{"10", "5", 128, "TextStart", "0,-1"},
                    BadRange{"0", "128", 128, "TextEnd", "-1,0"}, BadRange{"0", "0", 0, "TextEnd", "-1,0"}));

TEST_F(ProgramTablePage, TheHighestEndLiesBelowTheStepCount) {
  OpenTable(100);
  Click(Find("optRange_2"));
  TypeRange("0", "99");
  Key(Qt::Key_Tab);
  EXPECT_EQ(Flags(), "-1,-1");
  EXPECT_EQ(Stored(), "0-99");
}

TEST_F(ProgramTablePage, TheProposedEndIsRefusedInAShortTable) {
  OpenTable(100);
  Click(Find("optRange_2"));
  EXPECT_EQ(Range(), "0-127");
  Click(Find("cmdOK"));
  ExpectHeldIn("TextEnd");
}

TEST_F(ProgramTablePage, AStartThatPassedIsStoredThoughTheEndFails) {
  OpenTable(128);
  Click(Find("optRange_2"));
  TypeRange("7", "200");
  Key(Qt::Key_Tab);
  EXPECT_EQ(Stored(), "7-127");
  EXPECT_EQ(Flags(), "-1,0");
}

TEST_F(ProgramTablePage, AFlagThatTheCheckDoesntReachKeepsItsValue) {
  OpenTable(128);
  Click(Find("optRange_2"));
  TypeRange("7", "200");
  Type("TextStart", "");
  Key(Qt::Key_Tab);
  EXPECT_EQ(Flags(), "0,0");
}

TEST_F(ProgramTablePage, ABadRangeHoldsTheUserWhoOpensTheFunctionList) {
  OpenSettings();
  Click(Find("optRange_2"));
  TypeRange("9", "5");
  Click(Find("cmbFunc"));
  ExpectHeldIn("TextStart");
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(ProgramTablePage, TheGuardHoldsAgainUntilTheRangeIsGood) {
  OpenTable(128);
  Click(Find("optRange_2"));
  TypeRange("9", "5");
  Click(Find("cmdOK"));
  ExpectHeldIn("TextStart");
  Click(Find("cmdOK"));
  ExpectHeldIn("TextStart");
  Type("TextEnd", "10");
  Click(Find("cmdOK"));
  EXPECT_TRUE(Desktop.Messages.empty());
  EXPECT_EQ(PreviewDialogVisible.size(), 1u);
}

TEST_F(ProgramTablePage, SwitchingToAnotherWindowDoesNotCountAsLeavingThePage) {
  OpenTable(128);
  Click(Find("optRange_2"));
  TypeRange("9", "5");
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  EXPECT_TRUE(Desktop.Messages.empty());
}

TEST_F(ProgramTablePage, TheNextClickAfterAMessageWorks) {
  OpenTable(128);
  Click(Find("optRange_2"));
  TypeRange("9", "5");
  Key(Qt::Key_Return);
  ExpectHeldIn("TextStart");
  QApplication::processEvents();
  Click(Find("cmdCancel"));
  ExpectRunEnded();
}

TEST_F(ProgramTablePage, LettersAreThrownAwayAndFullWidthDigitsAreRefusedLater) {
  OpenTable(128);
  Click(Find("optRange_2"));
  TypeRange("0", "5");
  Type("TextStart", "a+- .z~3");
  EXPECT_EQ(Find<StepBox>("TextStart").Text(), "3");
  Find<StepBox>("TextStart").selectAll();
  QInputMethodEvent typed;
  typed.setCommitString(QString(QChar(0xFF15)));
  QApplication::sendEvent(&Find("TextStart"), &typed);
  EXPECT_EQ(Find<StepBox>("TextStart").text(), QString(QChar(0xFF15)));
  Click(Find("cmdOK"));
  ExpectHeldIn("TextStart");
}

TEST_F(ProgramTablePage, AStepIsSelectedAndPastedByKeyboardAndFilteredAsIfTyped) {
  OpenTable(128);
  Click(Find("optRange_2"));
  TypeRange("11", "22");
  auto& start = Find<StepBox>("TextStart");
  start.setFocus();
  Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(start.selectedText(), "11");
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "11");
  QGuiApplication::clipboard()->setText("step 1/7\r\n8");
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(start.Text(), "17");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(start.Text(), "11");
  Key(Qt::Key_End);
  QInputMethodEvent typed;
  typed.setCommitString("a5");
  QApplication::sendEvent(&start, &typed);
  EXPECT_EQ(start.Text(), "115");
}

TEST_F(ProgramTablePage, AThreeDigitEndPassesInTheSettingsAndAFourthDigitIsStopped) {
  OpenSettings();
  Click(Find("optRange_2"));
  TypeRange("0", "9999");
  EXPECT_EQ(Find<StepBox>("TextEnd").Text(), "999");
  Click(Find("optColor_1"));
  EXPECT_TRUE(Desktop.Messages.empty());
  EXPECT_EQ(Run.Options.ColorType, 1);
  EXPECT_EQ(Stored(), "0-999");
}

struct Saved {
  const char* First;
  const char* Last;
  const char* Repaired;
};

TEST_F(ProgramTablePage, ASavedRangeIsRepairedInSilence) {
  for (const Saved& saved :
       {Saved{"5", "127", "0-127"}, Saved{"5", "99", "5-99"}, Saved{"x", "", "0-127"},
        Saved{"0", "128", "0-128"}, Saved{"0", "129", "0-127"}, Saved{"0", "99999", "0-127"},
        Saved{"007", "10", "007-10"}, Saved{"20", "10", "0-10"}}) {
    Run.Options.IdxTblOption = {2, saved.First, saved.Last, 1};
    OpenTable(128);
    EXPECT_EQ(Range(), saved.Repaired) << saved.First << " " << saved.Last;
    EXPECT_EQ(Stored(), saved.Repaired);
    EXPECT_TRUE(Find("TextStart").isEnabled());
  }
  EXPECT_TRUE(Desktop.Messages.empty());
}

TEST_F(ProgramTablePage, ASavedEndEqualToTheStepCountIsRefusedByTheFirstCheck) {
  Run.Options.IdxTblOption = {2, "0", "128", 1};
  OpenTable(128);
  Find("TextStart").setFocus();
  Click(Find("cmdOK"));
  ExpectHeldIn("TextEnd");
}

TEST_F(ProgramTablePage, AnUnknownRangeChoiceIsARunTimeFailure) {
  Run.Options.IdxTblOption.Range = 3;
  WriteFile("IdxIdxTbl.tmp", "IndexCnt,128\r\n");
  Run.Session.HostEdition = 2;
  Run.Session.Mode = Mode::IdxTbl;
  EXPECT_THROW(delete new PrintSetting(Run, {}), RunTimeFailure);
}

TEST_F(ProgramTablePage, ThisPageAloneReturnsToItsFirstTab) {
  OpenSettings();
  ChooseFunction(0);
  ChooseFunction(2);
  EXPECT_EQ(Page("InfIdxTbl").Tabs().CurrentTab(), 0);
}

TEST_F(ProgramTablePage, CommentsAreStoredWhileTheRangeIsGood) {
  OpenTable(128);
  Click(Check("chkItemEtc", "InfIdxTbl"));
  EXPECT_EQ(Run.Options.IdxTblOption.Comment, 0);
}

TEST_F(ProgramTablePage, StepFocusKnowsTwoFields) {
  OpenTable(128);
  Click(Find("optRange_2"));
  auto& page = Find<InfIdxTbl>("InfIdxTbl");
  page.SetStepFocus(2);
  EXPECT_EQ(FocusName(), "TextEnd");
  page.SetStepFocus(3);
  EXPECT_EQ(FocusName(), "TextEnd");
  page.SetStepFocus(1);
  EXPECT_EQ(FocusName(), "TextStart");
}

}  // namespace
}  // namespace tarvis
