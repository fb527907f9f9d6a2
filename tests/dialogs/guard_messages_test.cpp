// Who leaves a field with a bad text is held back, with the boxes on the screen that a user sees: while one
// is there, and for a moment after it, no control of the dialog has the focus.
#include <QtTest/qtestspontaneevent.h>

#include <QWheelEvent>
#include <functional>

#include "dialogs/cover_editor.h"
#include "dialogs/program_table_page.h"

namespace tarvis {
namespace {

// Turns the wheel by one notch, as the system reports it.
void TurnWheel(QWidget& over) {
  const QPointF spot(over.rect().center());
  QWheelEvent notch(spot, over.mapToGlobal(spot), {}, QPoint(0, -120), Qt::NoButton, {}, Qt::NoScrollPhase,
                    false);
  QSpontaneKeyEvent::setSpontaneous(&notch);
  qApp->notify(&over, &notch);
}

class RangeGuard : public ProgramTablePage {
 protected:
  void OpenWithBadRange() {
    OpenSettings();
    Click(Find("optRange_2"));
    TypeRange("9", "5");
    Desktop.ShowBoxes();
  }
  void ExpectHeld() {
    ExpectHeldIn("TextStart");
    EXPECT_EQ(Find<QComboBox>("cmbFunc").currentIndex(), 2);
    EXPECT_TRUE(QTest::qWaitForWindowActive(Dialog));
    QApplication::processEvents();
    EXPECT_EQ(ShownPages(), "InfIdxTbl");
    EXPECT_TRUE(PreviewDialogVisible.empty());
    EXPECT_FALSE(OptionsFileExists());
  }
};

TEST_F(RangeGuard, HoldsAgainstTheWheelOverTheFunctionList) {
  OpenWithBadRange();
  TurnWheel(Find("cmbFunc"));
  ExpectHeld();
  TurnWheel(Find("cmbFunc"));
  ExpectHeld();
}

TEST_F(RangeGuard, HoldsAgainstTheWheelWhileAnotherWindowIsActive) {
  OpenWithBadRange();
  QWidget other;
  other.show();
  other.activateWindow();
  for (int notch = 0; notch < 2; ++notch) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    QApplication::processEvents();
    TurnWheel(Find("cmbFunc"));
    EXPECT_THAT(Desktop.Messages, testing::ElementsAre(WrongStep));
    EXPECT_EQ(Find<QComboBox>("cmbFunc").currentIndex(), 2);
    EXPECT_EQ(ShownPages(), "InfIdxTbl");
    Desktop.Messages.clear();
  }
}

TEST_F(RangeGuard, HoldsAgainstOkAfterTheWheel) {
  OpenWithBadRange();
  TurnWheel(Find("cmbFunc"));
  ExpectHeld();
  Click(Find("cmdOK"));
  ExpectHeld();
}

TEST_F(RangeGuard, HoldsAgainstAllThatIsClicked) {
  OpenWithBadRange();
  for (const char* control : {"cmdOK", "cmbFunc", "optColor_1", "chkCover"}) {
    SCOPED_TRACE(control);
    Click(Find(control));
    ExpectHeld();
  }
  EXPECT_EQ(Run.Options.ColorType, 0);
  EXPECT_EQ(Run.Options.Cover, 0);
  ClickTab(Page("InfIdxTbl").Tabs(), 0);
  ExpectHeld();
  Click(Check("chkItemEtc", "InfIdxTbl"));
  ExpectHeld();
}

TEST_F(RangeGuard, HoldsAgainstTheKeyboard) {
  OpenWithBadRange();
  Key(Qt::Key_Return);
  ExpectHeld();
  for (const Qt::Key mnemonic : {Qt::Key_O, Qt::Key_U, Qt::Key_A, Qt::Key_C, Qt::Key_H}) {
    SCOPED_TRACE(mnemonic);
    Key(mnemonic, Qt::AltModifier);
    ExpectHeld();
  }
  Key(Qt::Key_Tab, Qt::ControlModifier);
  ExpectHeld();
}

// The window manager may hand a click to the dialog before the dialog has got the focus back.
TEST_F(RangeGuard, HoldsAgainstAClickIntoTheDialogFromAnotherWindow) {
  OpenWithBadRange();
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  Click(Find("cmdOK"));
  EXPECT_TRUE(PreviewDialogVisible.empty());
  EXPECT_FALSE(OptionsFileExists());
  EXPECT_THAT(Desktop.Messages, testing::ElementsAre(WrongStep));
}

TEST_F(RangeGuard, LetsTheUserCancel) {
  OpenWithBadRange();
  Click(Find("cmdCancel"));
  ExpectRunEnded();
  EXPECT_TRUE(Desktop.Messages.empty());
}

TEST_F(RangeGuard, LetsTheWheelTurnTheListWhileTheRangeIsGood) {
  OpenSettings();
  Click(Find("optRange_2"));
  TypeRange("5", "9");
  TurnWheel(Find("cmbFunc"));
  EXPECT_EQ(ShownPages(), "InfZoneTbl");
  EXPECT_TRUE(Desktop.Messages.empty());
}

class FieldGuard : public CoverEditor {};

TEST_F(FieldGuard, HoldsInABadFieldWithOneBoxEachTime) {
  Run.Options.DrowCorp = Repeat("a", 51);
  OpenEditor();
  Enter("txtDrow_0", 0);
  Desktop.ShowBoxes();
  const std::vector<std::function<void()>> ways{
      [this] { Click(In("cmdOK")); },
      [] { Key(Qt::Key_Return); },
      [] { Key(Qt::Key_O, Qt::AltModifier); },
      [this] { ClickTab(Tabs(), 2); },
      [] { Key(Qt::Key_Tab, Qt::ControlModifier); },
      [this] { QTest::mouseClick(&In("txtDrow_2"), Qt::LeftButton); },
      [this] { Click(In("cmdConpare")); },
  };
  for (const std::function<void()>& leave : ways) {
    leave();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Editor));
    QApplication::processEvents();
    ExpectHeldIn("txtDrow_0", TooLong(50));
    EXPECT_EQ(Tabs().CurrentTab(), 0);
  }
  EXPECT_EQ(AskedFilter, "");
  Click(In("cmdCancel"));
  EXPECT_FALSE(Editor->isVisible());
}

}  // namespace
}  // namespace tarvis
