// Boxes of one line take no second one, whatever is pasted.
#include <QAccessible>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>

#include "dialogs/cover_editor.h"

namespace tarvis {
namespace {

constexpr const char* TwoLines = "Line1\r\nLine2";

class OneLineBox : public CoverEditor {
 protected:
  LineBox& Company() { return dynamic_cast<LineBox&>(In("txtDrow_0")); }
  void EnterCompany(const char* text = "", int cursor = 0) {
    OpenEditor();
    Enter("txtDrow_0", 0);
    Company().SetText(text);
    Company().setCursorPosition(cursor);
  }
  void Drop(const QString& text) {
    QMimeData dragged;
    dragged.setText(text);
    QDragEnterEvent enter(QPoint(3, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QApplication::sendEvent(&Company(), &enter);
    QDropEvent drop(QPointF(3, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QApplication::sendEvent(&Company(), &drop);
    EXPECT_TRUE(drop.isAccepted());
  }
};

TEST_F(OneLineBox, TakesTheFirstLineOfAPastedText) {
  for (const char* breaks : {"\r\n", "\r", "\n", "\xE2\x80\xA8", "\xE2\x80\xA9"}) {
    EnterCompany();
    Paste(std::string("Line1") + breaks + "Line2" + breaks);
    EXPECT_EQ(Company().Text(), "Line1");
  }
}

TEST_F(OneLineBox, NeverStoresALineBreakOfTheCover) {
  for (const CoverText& text : Texts) {
    if (text.TwoLines || text.Box == "txtGreeting" || text.Box == "txtDrow_3") continue;
    SCOPED_TRACE(text.Box);
    OpenEditor();
    Enter(text.Box, text.Tab);
    Paste(TwoLines);
    Click(In("cmdOK"));
    EXPECT_EQ(*text.Text, "Line1");
  }
}

TEST_F(OneLineBox, NeverStoresALineBreakOfATitle) {
  Open(2, "", "User");
  LineBox& title = Find<LineBox>("txtTitle", "InfUser");
  title.setFocus();
  title.selectAll();
  Paste(TwoLines);
  EXPECT_EQ(title.Text(), "Line1");
  EXPECT_EQ(Run.Options.UserHeader.TitleText, "Line1");
}

TEST_F(OneLineBox, KeepsWhatFollowsThePlaceOfPasting) {
  EnterCompany("abcdef", 3);
  Paste(TwoLines);
  EXPECT_EQ(Company().Text(), "abcLine1def");
  EXPECT_EQ(Company().cursorPosition(), 8);
}

TEST_F(OneLineBox, UndoesThePastingAlone) {
  EnterCompany();
  QTest::keyClicks(&Company(), "abc");
  Paste(TwoLines);
  EXPECT_EQ(Company().Text(), "abcLine1");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Company().Text(), "abc");
}

TEST_F(OneLineBox, TakesTheFirstLineByTheOtherKeyForPasting) {
  EnterCompany();
  QGuiApplication::clipboard()->setText(TwoLines);
  Key(Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(Company().Text(), "Line1");
}

TEST_F(OneLineBox, TakesTheFirstLineByItsMenu) {
  EnterCompany();
  QGuiApplication::clipboard()->setText(TwoLines);
  QContextMenuEvent asks(QContextMenuEvent::Keyboard, QPoint(5, 5), Company().mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(&Company(), &asks);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  Key(Qt::Key_P, {}, *menu);
  EXPECT_EQ(Company().Text(), "Line1");
  Key(Qt::Key_Z, Qt::ControlModifier, Company());
  EXPECT_EQ(Company().Text(), "");
}

TEST_F(OneLineBox, TakesTheFirstLineOfADroppedText) {
  EnterCompany("def");
  Drop(TwoLines);
  EXPECT_EQ(Company().Text(), "Line1def");
  Drop("whole ");
  EXPECT_EQ(Company().Text().find('\n'), std::string::npos);
}

TEST_F(OneLineBox, TakesTheFirstLineOfAnInputMethod) {
  EnterCompany();
  QInputMethodEvent composed;
  composed.setCommitString(TwoLines);
  QApplication::sendEvent(&Company(), &composed);
  EXPECT_EQ(Company().Text(), "Line1");
}

TEST_F(OneLineBox, TakesTheFirstLineOfAnAssistiveTool) {
  EnterCompany("abc");
  QAccessibleInterface* tool = QAccessible::queryAccessibleInterface(&Company());
  ASSERT_NE(tool, nullptr);
  tool->editableTextInterface()->insertText(3, TwoLines);
  EXPECT_EQ(Company().Text(), "abcLine1");
  tool->setText(QAccessible::Value, "new\rtext");
  EXPECT_EQ(Company().Text(), "new");
}

TEST_F(OneLineBox, TakesTheFirstLineOfTheOptions) {
  Run.Options.DrowCorp = "Korvane\rWorks";
  OpenEditor();
  Click(In("cmdOK"));
  EXPECT_EQ(Run.Options.DrowCorp, "Korvane");
}

}  // namespace
}  // namespace tarvis
