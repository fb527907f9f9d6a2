// What assistive tools get of the preview, through the toolkit's own interfaces. What is announced to them
// over the accessibility bus is tested with the whole program: the offscreen platform announces nothing.
#include <QAccessible>
#include <QTabWidget>
#include <QTreeWidget>

#include "preview/pages/thumbnails.h"
#include "preview/text/linear_text.h"
#include "preview/window_fixture.h"

namespace tarvis {
namespace {

class Reading : public WindowTest {
 protected:
  QAccessibleInterface& Pages() { return *QAccessible::queryAccessibleInterface(&View()); }
  QAccessibleTextInterface& Text() { return *Pages().textInterface(); }
  // The unit at an offset.
  QString At(int offset, QAccessible::TextBoundaryType type) {
    int start = 0, end = 0;
    const QString text = Text().textAtOffset(offset, type, &start, &end);
    EXPECT_EQ(text, Text().text(start, end));
    return text;
  }
  int OffsetOf(const char* words) {
    return static_cast<int>(Text().text(0, Text().characterCount()).indexOf(QString::fromUtf8(words)));
  }
};

std::shared_ptr<const Document> Table() {
  return DocumentBuilder()
      .Page()
      .Text("Parameters", 1440, 720, 12, true)
      .Row({"Pn100", "Speed Loop Gain", "40.0"}, 1200)
      .Row({"Pn101", "", "8"}, 1483)
      .Page()
      .Text("Comments", 1440, 720)
      .Build();
}

TEST_F(Reading, ThePagesAreADocumentWithItsText) {
  Open(Table());
  EXPECT_EQ(Pages().role(), QAccessible::Document);
  EXPECT_TRUE(Pages().state().readOnly);
  EXPECT_EQ(Text().text(0, Text().characterCount()),
            QStringLiteral("Parameters\nPn100\tSpeed Loop Gain\t40.0\nPn101\t\t8\nComments"));
}

TEST_F(Reading, TheTextIsReadByLinesCellsWordsAndCharacters) {
  Open(Table());
  const int gain = OffsetOf("Loop");
  EXPECT_EQ(At(gain, QAccessible::LineBoundary), QStringLiteral("Pn100\tSpeed Loop Gain\t40.0\n"));
  EXPECT_EQ(At(gain, QAccessible::SentenceBoundary), QStringLiteral("Speed Loop Gain\t"));
  EXPECT_EQ(At(gain, QAccessible::WordBoundary), QStringLiteral("Loop"));
  EXPECT_EQ(At(gain, QAccessible::CharBoundary), QStringLiteral("L"));
  int start = 0, end = 0;
  EXPECT_EQ(Text().textAfterOffset(gain, QAccessible::LineBoundary, &start, &end),
            QStringLiteral("Pn101\t\t8\n"));
  EXPECT_EQ(Text().textBeforeOffset(gain, QAccessible::LineBoundary, &start, &end),
            QStringLiteral("Parameters\n"));
  EXPECT_EQ(At(Text().characterCount(), QAccessible::LineBoundary), QStringLiteral("Comments"));
}

TEST_F(Reading, ACharacterIsWhereItIsShown) {
  Open(Table());
  const int gain = OffsetOf("Gain");
  const QRect place = Text().characterRect(gain);
  const QPoint shown = View().viewport()->mapToGlobal(WindowTest::At(0, 1440 + 1700 + 30 + 860, 1341));
  EXPECT_NEAR(place.left(), shown.x(), 15);
  EXPECT_NEAR(place.center().y(), shown.y(), 5);
  EXPECT_EQ(Text().offsetAtPoint(place.center() - QPoint(2, 0)), gain);
  EXPECT_EQ(Text().offsetAtPoint(QPoint(-5, -5)), -1);
}

TEST_F(Reading, TheCaretIsWhereTheMouseWasClickedAndIsMovedByTools) {
  Open(Table());
  QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, WindowTest::At(0, 1450, 1341));
  EXPECT_EQ(Text().cursorPosition(), OffsetOf("Pn100"));
  Text().setCursorPosition(OffsetOf("Comments") + 3);
  EXPECT_EQ(Text().cursorPosition(), OffsetOf("Comments") + 3);
  const QPoint shown = View().viewport()->mapFromGlobal(Text().characterRect(OffsetOf("Comments")).center());
  EXPECT_TRUE(View().viewport()->rect().contains(shown));
}

TEST_F(Reading, WhatToolsSelectIsSelected) {
  Open(Table());
  const int from = OffsetOf("Loop");
  Text().setSelection(0, from, from + 9);
  EXPECT_EQ(Text().selectionCount(), 1);
  int start = 0, end = 0;
  Text().selection(0, &start, &end);
  EXPECT_EQ(std::pair(start, end), std::pair(from, from + 9));
  EXPECT_TRUE(window_->ActionOf(Command::Copy)->isEnabled());
  EXPECT_EQ(At(from, QAccessible::NoBoundary).mid(start, end - start), QStringLiteral("Loop Gain"));
}

TEST_F(Reading, TheNameIsThePageThatIsReadAndTheCaretGoesAlong) {
  Open(Table());
  EXPECT_EQ(Pages().text(QAccessible::Name), QStringLiteral("Page 1 of 2"));
  Press(Qt::Key_End);
  EXPECT_EQ(Pages().text(QAccessible::Name), QStringLiteral("Page 2 of 2"));
  EXPECT_EQ(Text().cursorPosition(), OffsetOf("Comments"));
}

TEST_F(Reading, BoldTextHasAWeightOfItsOwn) {
  Open(Table());
  int start = 0, end = 0;
  EXPECT_TRUE(Text().attributes(2, &start, &end).contains(QStringLiteral("font-weight:bold")));
  EXPECT_EQ(std::pair(start, end), std::pair(0, 10));
  EXPECT_TRUE(
      Text().attributes(OffsetOf("40.0"), &start, &end).contains(QStringLiteral("font-weight:normal")));
}

TEST_F(Reading, LooksAreAskedForAtTheCaretAndAtTheEndToo) {
  Open(Table());
  Text().setCursorPosition(OffsetOf("40.0"));
  int start = 0, end = 0;
  constexpr int AtCaret = -2, AtEnd = -1;
  EXPECT_TRUE(Text().attributes(AtCaret, &start, &end).contains(QStringLiteral("font-weight:normal")));
  EXPECT_EQ(start, OffsetOf("40.0"));
  Text().attributes(AtEnd, &start, &end);
  EXPECT_EQ(end, Text().characterCount());
}

TEST_F(Reading, ThumbnailsAreAListOfPagesWithNamesOfWhichOneIsSelected) {
  OpenTable(12);
  Find<QTabWidget>("sidePane").setCurrentIndex(1);
  auto& thumbnails = Find<Thumbnails>("thumbnails");
  QAccessibleInterface& list = *QAccessible::queryAccessibleInterface(&thumbnails);
  EXPECT_EQ(list.role(), QAccessible::List);
  ASSERT_EQ(list.childCount(), 12);
  QAccessibleInterface& third = *list.child(2);
  EXPECT_EQ(third.text(QAccessible::Name), QStringLiteral("Page 3"));
  EXPECT_EQ(third.role(), QAccessible::ListItem);
  EXPECT_EQ(list.indexOfChild(&third), 2);
  EXPECT_EQ(third.rect().size(), thumbnails.PlaceOf(2).size());
  third.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(Page(), 2);
  EXPECT_TRUE(third.state().selected);
  EXPECT_FALSE(list.child(0)->state().selected);
}

TEST_F(Reading, TheContentsMarkThePartThatIsReadWithoutMakingItTheCurrentEntry) {
  DocumentBuilder builder;
  builder.Page().Text("gain one", 1440, 3000).Page().Text("gain two", 1440, 3000);
  builder.Entry("First part", 0, 0, 0).Entry("Second part", 0, 1, 0);
  Open(builder.Build());
  SearchFor("gain");
  Press(Qt::Key_Return);
  auto& contents = Find<QTreeWidget>("contents");
  EXPECT_EQ(Page(), 1);
  ASSERT_EQ(contents.selectedItems().size(), 1);
  EXPECT_EQ(contents.selectedItems()[0]->text(0), QStringLiteral("Second part"));
  EXPECT_EQ(contents.currentItem(), nullptr) << "tools would announce it as if it had the focus";
  Find<QTabWidget>("sidePane").setCurrentIndex(0);
  contents.setFocus();
  EXPECT_EQ(contents.currentItem()->text(0), QStringLiteral("Second part")) << "keys start from there";
}

TEST(LinearText, CountsCharactersBeyond16BitsAsTwo) {
  const auto document = DocumentBuilder().Page().Text("𠮷野 Gain", 1440, 720).Build();
  DocumentText text(*document);
  LinearText linear(text);
  EXPECT_EQ(linear.OffsetOf({0, 0, 2}), 3);
  EXPECT_EQ(linear.PositionOf(3), (TextPosition{0, 0, 2}));
  EXPECT_EQ(linear.UnitAt(0, TextUnit::Character), (TextSpan{0, 2}));
}

TEST(LinearText, EndsAtTheEnds) {
  const auto document = DocumentBuilder().Page().Lines({"one", "two"}, 1440, 720).Page().Build();
  DocumentText text(*document);
  LinearText linear(text);
  EXPECT_EQ(linear.Text(), QStringLiteral("one\ntwo"));
  EXPECT_EQ(linear.UnitBefore(1, TextUnit::Line), TextSpan{});
  EXPECT_EQ(linear.UnitAfter(5, TextUnit::Line), (TextSpan{7, 7}));
  EXPECT_EQ(linear.OffsetOf({1, 0, 0}), 7) << "a page without text is at the end";
  LinearText none(text);
  EXPECT_EQ(none.UnitAt(100, TextUnit::Line), (TextSpan{4, 7}));
}

}  // namespace
}  // namespace tarvis
