// Selecting and copying text of pages.
#include "preview/text/text_selection.h"
#include "preview/window_fixture.h"

namespace tarvis {
namespace {

class Selection : public WindowTest {
 protected:
  void SetUp() override { QApplication::clipboard()->clear(); }
  // Moves the pressed mouse, also outside of the view.
  void MoveMouse(QPoint to) {
    QMouseEvent event(QEvent::MouseMove, to, View().viewport()->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(View().viewport(), &event);
  }
  int Scrolled() { return View().verticalScrollBar()->value(); }
};

TEST_F(Selection, ATableCopiesAsLinesWithTabsBetweenCells) {
  Open(DocumentBuilder().Page().Row({"Pn100", "Gain", "40.0"}, 720).Row({"Pn101", "", "8"}, 1003).Build());
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(CopiedText(), QStringLiteral("Pn100\tGain\t40.0\nPn101\t\t8"));
}

TEST_F(Selection, ATickCopiesAsAWordInItsCell) {
  Open(DocumentBuilder()
           .Page()
           .Row({"", "Speed"}, 720)
           .Tick({2000, 720, 283, 283}, true)
           .Row({"", "Torque"}, 1003)
           .Tick({2000, 1003, 283, 283}, false)
           .Build());
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(CopiedText(), QStringLiteral("selected\tSpeed\nnot selected\tTorque"));
}

TEST_F(Selection, DraggingOverHalfOfATickSelectsIt) {
  Open(DocumentBuilder().Page().Row({"", "Speed"}, 720).Tick({2000, 720, 283, 283}, true).Build());
  Drag(At(0, 2010, 860), At(0, 2270, 860));
  EXPECT_EQ(CopiedText(), QStringLiteral("selected"));
}

TEST_F(Selection, DraggingSelectsFromLetterToLetter) {
  Open(DocumentBuilder()
           .Page()
           .Text("Speed Loop Gain", 1440, 1000, 12)
           .Text("Second", 1440, 1500, 12)
           .Build());
  Drag(At(0, 1440, 1100), At(0, 1440 + 690, 1100));
  EXPECT_EQ(CopiedText(), QStringLiteral("Speed"));
}

TEST_F(Selection, DraggingBackwardsOverLinesSelectsWhatLiesBetween) {
  Open(DocumentBuilder()
           .Page()
           .Text("First line", 1440, 1000, 12)
           .Text("Second line", 1440, 1500, 12)
           .Build());
  Drag(At(0, 9000, 1620), At(0, 1400, 1120));
  EXPECT_EQ(CopiedText(), QStringLiteral("First line\nSecond line"));
}

TEST_F(Selection, ADoubleClickSelectsTheWord) {
  Open(DocumentBuilder().Page().Text("Speed Loop Gain", 1440, 1000, 12).Build());
  QTest::mouseDClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, At(0, 1440 + 900, 1100));
  EXPECT_EQ(CopiedText(), QStringLiteral("Loop"));
}

TEST_F(Selection, ATripleClickSelectsTheRow) {
  Open(DocumentBuilder()
           .Page()
           .Row({"Pn100", "Gain", "40.0"}, 720)
           .Row({"Pn101", "Ratio", "8"}, 1003)
           .Build());
  const QPoint at = At(0, 1440 + 1800, 1100);
  QTest::mouseDClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, at);
  EXPECT_EQ(CopiedText(), QStringLiteral("Ratio"));
  QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, at);
  EXPECT_EQ(CopiedText(), QStringLiteral("Pn101\tRatio\t8"));
}

TEST_F(Selection, AThirdClickElsewhereOnlyTakesTheSelectionAway) {
  Open(DocumentBuilder()
           .Page()
           .Row({"Pn100", "Gain", "40.0"}, 720)
           .Row({"Pn101", "Ratio", "8"}, 1003)
           .Build());
  QTest::mouseDClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, At(0, 1440 + 1800, 1100));
  QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, At(0, 1440 + 1800, 800));
  EXPECT_FALSE(window_->ActionOf(Command::Copy)->isEnabled());
}

TEST_F(Selection, TheLeftButtonDragsThePageWhereNoTextIs) {
  Open(DocumentBuilder().Page().Text("Speed Loop Gain", 1440, 1000, 12).Page().Build());
  const QPoint below = At(0, 3000, 6000);
  Drag(below, below - QPoint(0, 120));
  EXPECT_EQ(Scrolled(), 120);
  EXPECT_FALSE(window_->ActionOf(Command::Copy)->isEnabled());
}

TEST_F(Selection, TheMousePointerShowsWhereTextIsSelectedAndWhereThePageIsDragged) {
  Open(DocumentBuilder().Page().Text("Speed Loop Gain", 1440, 1000, 12).Page().Build());
  QTest::mouseMove(View().viewport(), At(0, 1500, 1100));
  EXPECT_EQ(View().viewport()->cursor().shape(), Qt::IBeamCursor);
  QTest::mouseMove(View().viewport(), At(0, 1500, 6000));
  EXPECT_EQ(View().viewport()->cursor().shape(), Qt::OpenHandCursor);
}

TEST_F(Selection, ScrollsOnWhileTheMouseRestsPastTheEdge) {
  OpenTable(5);
  const int height = View().viewport()->height();
  QTest::mousePress(View().viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(200, 100));
  MoveMouse({200, height + 60});
  EXPECT_TRUE(QTest::qWaitFor([&] { return Scrolled() > 2 * height; })) << "no further move of the mouse";
  EXPECT_GT(CopiedText().count(QLatin1Char('\n')), 48) << "what was scrolled by is selected";
  MoveMouse({200, -60});
  EXPECT_TRUE(QTest::qWaitFor([&] { return Scrolled() == 0; }));
}

TEST_F(Selection, StopsScrollingWhenTheButtonIsReleased) {
  OpenTable(5);
  const QPoint outside(200, View().viewport()->height() + 60);
  QTest::mousePress(View().viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(200, 100));
  MoveMouse(outside);
  ASSERT_TRUE(QTest::qWaitFor([&] { return Scrolled() > 50; }));
  QTest::mouseRelease(View().viewport(), Qt::LeftButton, Qt::NoModifier, outside);
  const int stopped = Scrolled();
  QTimer timer;  // slower than the scrolling
  QSignalSpy ticks(&timer, &QTimer::timeout);
  timer.start(100);
  ASSERT_TRUE(QTest::qWaitFor([&] { return ticks.count() >= 2; }));
  EXPECT_EQ(Scrolled(), stopped);
}

TEST_F(Selection, CharactersBeyond16BitsAndCombiningMarksAreCopiedWhole) {
  Open(DocumentBuilder().Page().Row({"𠮷野", "Re\xCC\x81sume\xCC\x81"}, 720).Build());
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(CopiedText(), QStringLiteral("𠮷野\tRe\u0301sume\u0301"));
}

TEST_F(Selection, AClickTakesTheSelectionAway) {
  Open(DocumentBuilder().Page().Text("Speed", 1440, 1000, 12).Build());
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_TRUE(window_->ActionOf(Command::Copy)->isEnabled());
  QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, At(0, 1500, 1100));
  EXPECT_FALSE(window_->ActionOf(Command::Copy)->isEnabled());
}

TEST_F(Selection, AllPagesAreSelectedByCtrlA) {
  OpenTable(3);
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(CopiedText().count(QLatin1Char('\n')), 3 * 49 - 1);
}

TEST(TextSelection, ACellThatWrapsBesideOthersStaysOneCell) {
  const auto document =
      DocumentBuilder().Page().WrappedRow({"Pn1"}, {"Encoder Dividing", "Ratio"}, {"5"}, 720).Build();
  DocumentText text(*document);
  TextSelection selection(text);
  selection.SelectAll();
  EXPECT_EQ(selection.Text(), QStringLiteral("Pn1\tEncoder Dividing Ratio\t5"));
}

TEST(TextSelection, LinesOfACommentStayLines) {
  const auto document = DocumentBuilder().Page().Lines({"one", "two"}, 1440, 720).Build();
  DocumentText text(*document);
  TextSelection selection(text);
  selection.SelectAll();
  EXPECT_EQ(selection.Text(), QStringLiteral("one\ntwo"));
}

TEST(TextSelection, CellsAreReadFromTheLeftWhateverTheirLayoutOrder) {
  const auto document = DocumentBuilder().Page().RowFromRight({"a", "b", "c"}, 720).Build();
  DocumentText text(*document);
  TextSelection selection(text);
  selection.SelectAll();
  EXPECT_EQ(selection.Text(), QStringLiteral("a\tb\tc"));
}

// The boxes of what lies between two places of the first line of the page, and its text.
struct Between {
  std::vector<QRectF> Boxes;
  QString Text;

  Between(const Document& document, double from, double to) : text_(document), selection_(text_) {
    selection_.Start(0, {from, 1100});
    selection_.ExtendTo(0, {to, 1100});
    Boxes = selection_.Boxes(0);
    Text = selection_.Text();
  }

 private:
  DocumentText text_;
  TextSelection selection_;
};

TEST(ShapedSelection, HebrewIsSelectedFromTheRight) {
  const auto document = DocumentBuilder().Page().Text("שלום", 1440, 1000, 12).Build();
  const auto width = static_cast<double>(document->Texts[0].Advance);
  const Between start(*document, 1440 + width + 50, 1440 + width * 0.8);
  EXPECT_EQ(start.Text, QStringLiteral("ש"));
  ASSERT_EQ(start.Boxes.size(), 1U);
  EXPECT_NEAR(start.Boxes[0].right(), 1440 + width, 1);
  const Between all(*document, 1440 + width + 50, 1400);
  EXPECT_EQ(all.Text, QStringLiteral("שלום"));
  ASSERT_EQ(all.Boxes.size(), 1U);
  EXPECT_NEAR(all.Boxes[0].width(), width, 1);
}

TEST(ShapedSelection, TextOfBothDirectionsHasABoxForEachStretch) {
  const auto document = DocumentBuilder().Page().Text("Pn100 שלום", 1440, 1000, 12).Build();
  const auto width = static_cast<double>(document->Texts[0].Advance);
  // From the start to after the first Hebrew letter, which is at the very right.
  const Between both(*document, 1400, 1440 + width - 130);
  EXPECT_EQ(both.Text, QStringLiteral("Pn100 ש"));
  ASSERT_EQ(both.Boxes.size(), 2U);
  EXPECT_NEAR(both.Boxes[1].right(), 1440 + width, 1);
  EXPECT_GT(both.Boxes[1].left(), both.Boxes[0].right() + 100);
}

TEST(ShapedSelection, ALetterIsSelectedWithItsMarks) {
  const auto document = DocumentBuilder().Page().Text("ที่นี่", 1440, 1000, 12).Build();
  const auto width = static_cast<double>(document->Texts[0].Advance);
  EXPECT_EQ(Between(*document, 1400, 1440 + width / 2).Text, QStringLiteral("ที่"));
}

}  // namespace
}  // namespace tarvis
