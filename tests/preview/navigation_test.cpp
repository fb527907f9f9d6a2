// Ways through the pages: keys, boxes, wheel, contents and thumbnails.
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QTabWidget>
#include <QTreeWidget>

#include "preview/pages/thumbnails.h"
#include "preview/window_fixture.h"

namespace tarvis {
namespace {

using Navigation = WindowTest;

std::shared_ptr<const Document> WithContents() {
  DocumentBuilder builder;
  builder.TablePages(12).Entry("Overlapping target", 0, 1, 3000).Entry("Parameter", 1, 1, 3000);
  builder.Entry("User Comment", 1, 4, 9000).Entry("Overlapping data 1/1", 0, 7, 720);
  return builder.Build();
}

TEST_F(Navigation, PageBoxGoesToThePageTyped) {
  OpenTable(20);
  Press(Qt::Key_G, Qt::ControlModifier);
  Type("7");
  Press(Qt::Key_Return);
  EXPECT_EQ(Page(), 6);
  EXPECT_EQ(Find<QLineEdit>("pageBox").text(), QStringLiteral("7"));
  EXPECT_TRUE(View().hasFocus());
}

TEST_F(Navigation, FirstPreviousNextAndLastPage) {
  OpenTable(5);
  EXPECT_FALSE(window_->ActionOf(Command::PreviousPage)->isEnabled());
  Click("nextPageButton");
  EXPECT_EQ(Page(), 1);
  Press(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Page(), 2);
  Press(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(Page(), 1);
  Click("lastPageButton");
  EXPECT_EQ(Page(), 4);
  EXPECT_FALSE(window_->ActionOf(Command::NextPage)->isEnabled());
  Click("firstPageButton");
  EXPECT_EQ(Page(), 0);
}

TEST_F(Navigation, KeysScrollByLinesViewsAndToTheEnds) {
  OpenTable(5);
  const QScrollBar* bar = View().verticalScrollBar();
  Press(Qt::Key_Down);
  const int line = bar->value();
  EXPECT_GT(line, 0);
  Press(Qt::Key_Up);
  EXPECT_EQ(bar->value(), 0);
  Press(Qt::Key_Space);
  const int view = bar->value();
  EXPECT_GT(view, line);
  Press(Qt::Key_Space, Qt::ShiftModifier);
  EXPECT_EQ(bar->value(), 0);
  Press(Qt::Key_PageDown);
  EXPECT_EQ(bar->value(), view);
  Press(Qt::Key_PageUp);
  EXPECT_EQ(bar->value(), 0);
  Press(Qt::Key_End);
  EXPECT_EQ(bar->value(), bar->maximum());
  Press(Qt::Key_Home);
  EXPECT_EQ(bar->value(), 0);
}

TEST_F(Navigation, TheWheelScrollsAndTheMiddleButtonDrags) {
  OpenTable(5);
  const QScrollBar* bar = View().verticalScrollBar();
  Wheel(-2);
  const int scrolled = bar->value();
  EXPECT_GT(scrolled, 0);
  QWidget* viewport = View().viewport();
  QTest::mousePress(viewport, Qt::MiddleButton, Qt::NoModifier, QPoint(300, 300));
  QTest::mouseMove(viewport, QPoint(300, 250));
  QTest::mouseRelease(viewport, Qt::MiddleButton, Qt::NoModifier, QPoint(300, 250));
  EXPECT_EQ(bar->value(), scrolled + 50);
}

TEST_F(Navigation, LeftAndRightTurnPagesThatFitTheWidth) {
  OpenTable(5);
  Press(Qt::Key_Right);
  EXPECT_EQ(Page(), 1);
  Press(Qt::Key_Left);
  EXPECT_EQ(Page(), 0);
}

TEST_F(Navigation, SinglePagesTurnAtTheirEnds) {
  OpenTable(5);
  Press(Qt::Key_F8);
  EXPECT_FALSE(View().Layout().Continuous());
  Press(Qt::Key_0, Qt::ControlModifier);
  Press(Qt::Key_Down);
  EXPECT_EQ(Page(), 1);
  Wheel(-1);
  EXPECT_EQ(Page(), 2);
  Wheel(1);
  EXPECT_EQ(Page(), 1);
  Press(Qt::Key_PageDown);
  EXPECT_EQ(Page(), 2);
  Press(Qt::Key_F8);
  EXPECT_TRUE(View().Layout().Continuous());
  EXPECT_EQ(Page(), 2);
}

TEST_F(Navigation, ZoomCommandsReachTheirFactors) {
  OpenTable(3);
  Press(Qt::Key_1, Qt::ControlModifier);
  EXPECT_EQ(Percent(), 100);
  Press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(Percent(), 110);
  Press(Qt::Key_Minus, Qt::ControlModifier);
  Press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(Percent(), 90);
  Press(Qt::Key_2, Qt::ControlModifier);
  EXPECT_NEAR(View().Layout().PageSize().width(), View().viewport()->width() - 2 * PageLayout::Margin, 1);
  Press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_NEAR(View().Layout().PageSize().height(), View().viewport()->height() - 2 * PageLayout::Margin, 1);
  Click("zoomInButton");
  Click("zoomOutButton");
  EXPECT_EQ(View().Layout().Mode(), ZoomMode::Factor);
}

TEST_F(Navigation, TheZoomBoxTakesAndShowsPercent) {
  OpenTable(3);
  auto& box = Find<QComboBox>("zoomBox");
  box.setFocus();
  box.lineEdit()->selectAll();
  Type("150 %");
  Press(Qt::Key_Return);
  EXPECT_EQ(Percent(), 150);
  Press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(box.currentText(), QStringLiteral("175 %"));
}

TEST_F(Navigation, CtrlWheelZoomsAroundThePointer) {
  OpenTable(3);
  Press(Qt::Key_1, Qt::ControlModifier);
  const QPoint pointer(310, 220);
  const PageView::Spot before = View().SpotAt(pointer);
  Wheel(3, Qt::ControlModifier, pointer);
  EXPECT_EQ(Percent(), 150);
  const PageView::Spot after = View().SpotAt(pointer);
  EXPECT_EQ(after.Page, before.Page);
  EXPECT_NEAR(after.Point.y(), before.Point.y(), 15);
  EXPECT_NEAR(after.Point.x(), before.Point.x(), 15);
}

TEST_F(Navigation, FitWidthFollowsTheWindow) {
  OpenTable(3);
  window_->resize(800, 600);
  ASSERT_TRUE(QTest::qWaitFor([this] { return View().viewport()->width() < 700; }));
  EXPECT_NEAR(View().Layout().PageSize().width(), View().viewport()->width() - 2 * PageLayout::Margin, 1);
}

TEST_F(Navigation, AClickInTheContentsGoesToTheEntrysPlace) {
  Open(WithContents());
  auto& tree = Find<QTreeWidget>("contents");
  QTreeWidgetItem* comment = tree.topLevelItem(0)->child(1);
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, tree.visualItemRect(comment).center());
  EXPECT_EQ(View().CurrentPlace().Page, 4);
  EXPECT_NEAR(View().CurrentPlace().Top, 9000, 20);
}

TEST_F(Navigation, TheContentsMarkTheEntryBeingRead) {
  Open(WithContents());
  auto& tree = Find<QTreeWidget>("contents");
  View().GoTo({3, 0});
  EXPECT_EQ(tree.selectedItems().value(0)->text(0), QStringLiteral("Parameter"));
  View().GoTo({9, 0});
  EXPECT_EQ(tree.selectedItems().value(0)->text(0), QStringLiteral("Overlapping data 1/1"));
}

TEST_F(Navigation, ContentsHaveTwoLevels) {
  Open(WithContents());
  auto& tree = Find<QTreeWidget>("contents");
  ASSERT_EQ(tree.topLevelItemCount(), 2);
  EXPECT_EQ(tree.topLevelItem(0)->childCount(), 2);
  EXPECT_EQ(tree.topLevelItem(1)->childCount(), 0);
}

// The picture of the first entry.
QImage EntryPicture(QTreeWidget& tree) {
  return tree.viewport()->grab(tree.visualItemRect(tree.topLevelItem(0))).toImage();
}

TEST_F(Navigation, ContentsThatRunToTheLeftAreSetInTheirOwnDirectionAtTheLeft) {
  const auto shown = [this](const char* text) {
    Open(DocumentBuilder().Page().Entry(text, 0, 0, 0).Page().Build());
    auto& tree = Find<QTreeWidget>("contents");
    tree.clearSelection();
    return EntryPicture(tree);
  };
  // An invisible sign of direction at the end leaves the sign before it to the left of the letters.
  const QImage leftOfLetters = shown("\u05E9\u05DC!\u200F");
  const QImage own = shown("\u05E9\u05DC!");
  EXPECT_EQ(own, leftOfLetters);
  EXPECT_EQ(Find<QTreeWidget>("contents").topLevelItem(0)->text(0), QString::fromUtf8("\u05E9\u05DC!"));
}

TEST_F(Navigation, EnterInTheContentsGoesThereToo) {
  Open(WithContents());
  auto& tree = Find<QTreeWidget>("contents");
  tree.setCurrentItem(tree.topLevelItem(1));
  tree.setFocus();
  Press(Qt::Key_Return);
  EXPECT_EQ(View().CurrentPlace().Page, 7);
}

TEST_F(Navigation, AltLeftAndRightWalkThePlacesVisited) {
  Open(WithContents());
  View().GoTo({2, 500});
  Click("lastPageButton");
  EXPECT_EQ(Page(), 11);
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Page(), 2);
  EXPECT_FALSE(window_->ActionOf(Command::Back)->isEnabled());
  Press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Page(), 11);
  EXPECT_FALSE(window_->ActionOf(Command::Forward)->isEnabled());
}

TEST_F(Navigation, ThumbnailsGoToTheirPageAndMarkTheOneBeingRead) {
  OpenTable(30);
  Find<QTabWidget>("sidePane").setCurrentIndex(1);
  auto& thumbnails = Find<Thumbnails>("thumbnails");
  QTest::mouseClick(thumbnails.viewport(), Qt::LeftButton, Qt::NoModifier, thumbnails.PlaceOf(2).center());
  EXPECT_EQ(Page(), 2);
  Press(Qt::Key_End);
  EXPECT_EQ(thumbnails.Current(), 29);
  EXPECT_TRUE(thumbnails.viewport()->rect().contains(thumbnails.PlaceOf(29).center()));
}

}  // namespace
}  // namespace tarvis
