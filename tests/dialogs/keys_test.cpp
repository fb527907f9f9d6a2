// Keys that work whatever has the focus, and where the focus is seen.
#include "dialogs/cover_editor.h"

namespace tarvis {
namespace {

class Keys : public CoverEditor {
 protected:
  // How a box looks that is empty, with the focus or without it.
  QImage Look(const char* box, bool focused) {
    QWidget& control = In(box);
    if (focused) control.setFocus();
    if (!focused) In("cmdOK").setFocus();
    QApplication::processEvents();
    return control.grab().toImage();
  }
};

TEST_F(Keys, CtrlTabChangesTheTabWhateverHasTheFocus) {
  Run.Options.Cover = 1;
  Open(2, "", "PrnSetting");
  const TabControl& tabs = Page("InfUser").Tabs();
  int expected = 0;
  for (const char* control :
       {"chkCover", "cmdEdit", "optDrow_0", "Spread", "cmbFunc", "optColor_0", "cmdOK"}) {
    Find(control).setFocus();
    ASSERT_EQ(FocusName(), control);
    Key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs.CurrentTab(), expected = 1 - expected) << control;
    Key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(tabs.CurrentTab(), expected = 1 - expected) << control;
    Key(Qt::Key_Tab, Qt::ControlModifier);
    expected = 1 - expected;
  }
}

TEST_F(Keys, CtrlTabTurnsAllTabsOfTheCoverEditorAndComesRound) {
  OpenEditor();
  In("cmdCancel").setFocus();
  for (const int tab : {1, 2, 3, 4, 0, 1}) {
    Key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(Tabs().CurrentTab(), tab);
  }
  Key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  Key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Tabs().CurrentTab(), 4);
  Enter("txtGreeting", 4);
  Key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(Tabs().CurrentTab(), 0);
  EXPECT_EQ(Box("txtGreeting").Text(), "");
}

TEST_F(Keys, AltULeadsToTheFunctionListWhateverHasTheFocus) {
  Open(2, "", "PrnSetting");
  for (const char* control : {"chkHeader_2", "optColor_0", "chkCover", "cmdOK"}) {
    Find(control, std::string(control) == "chkHeader_2" ? "InfUser" : nullptr).setFocus();
    ASSERT_EQ(FocusName(), control);
    Key(Qt::Key_U, Qt::AltModifier);
    EXPECT_EQ(FocusName(), "cmbFunc") << control;
  }
}

// The frame of a focused box differs from that of another one in its edge.
TEST_F(Keys, BoxesOfSeveralLinesShowTheFocusAsTheOthersDo) {
  OpenEditor();
  for (const char* box : {"txtDrow_0", "txtDrow_1", "txtDrow_4"}) {
    const QImage focused = Look(box, true);
    const QImage other = Look(box, false);
    const QPoint edge(focused.width() / 2, 0);
    EXPECT_NE(focused.pixelColor(edge), other.pixelColor(edge)) << box;
    EXPECT_EQ(focused.pixelColor(edge), Look("txtDrow_0", true).pixelColor(edge)) << box;
    EXPECT_EQ(other.pixelColor(edge), Look("txtDrow_0", false).pixelColor(edge)) << box;
  }
}

}  // namespace
}  // namespace tarvis
