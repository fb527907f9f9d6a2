// Pages side by side, the overview and the full screen.
#include <QLineEdit>

#include "preview/window_fixture.h"

namespace tarvis {
namespace {

class PageColumns : public WindowTest {
 protected:
  QRectF Rect(int page) { return View().Layout().PageRect(page); }
  bool IsChecked(Command command) { return window_->ActionOf(command)->isChecked(); }
  void ClickPage(int page) {
    const QPoint middle = At(page, 5950, 8400);
    QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, middle);
  }
};

TEST_F(PageColumns, Ctrl3ShowsFacingPagesInTheWidthOfTheView) {
  OpenTable(9);
  Press(Qt::Key_3, Qt::ControlModifier);
  EXPECT_EQ(Rect(0).top(), Rect(1).top());
  EXPECT_NEAR(Rect(1).right(), View().viewport()->width() - PageLayout::Margin, 1);
  EXPECT_TRUE(IsChecked(Command::FacingPages));
  Press(Qt::Key_3, Qt::ControlModifier);
  EXPECT_GT(Rect(1).top(), Rect(0).bottom());
}

TEST_F(PageColumns, PagesAreTurnedInPairs) {
  OpenTable(9);
  Press(Qt::Key_3, Qt::ControlModifier);
  Press(Qt::Key_N);
  EXPECT_EQ(Page(), 2);
  Press(Qt::Key_F8);
  Press(Qt::Key_0, Qt::ControlModifier);
  Press(Qt::Key_N);
  EXPECT_EQ(Page(), 4);
  Wheel(-1);
  EXPECT_EQ(Page(), 6);
  Wheel(-1);
  Wheel(-1);
  EXPECT_EQ(Page(), 8) << "alone in its row";
  Wheel(1);
  EXPECT_EQ(Page(), 6);
}

TEST_F(PageColumns, APageOnTheRightCanBeGoneTo) {
  OpenTable(9);
  Press(Qt::Key_3, Qt::ControlModifier);
  Press(Qt::Key_G, Qt::ControlModifier);
  Type("4");
  Press(Qt::Key_Return);
  EXPECT_EQ(Page(), 3);
  EXPECT_EQ(Find<QLineEdit>("pageBox").text(), QStringLiteral("4"));
}

TEST_F(PageColumns, AMouseSelectsTextOnThePageOnTheRight) {
  OpenTable(9);
  Press(Qt::Key_3, Qt::ControlModifier);
  const PageView::Spot spot = View().SpotAt(At(1, 3000, 2000));
  EXPECT_EQ(spot.Page, 1);
  EXPECT_NEAR(spot.Point.x(), 3000, 30);
  EXPECT_NEAR(spot.Point.y(), 2000, 30);
}

TEST_F(PageColumns, AWideWindowShowsAsManyColumnsAsFit) {
  OpenTable(40);
  window_->resize(2400, 700);
  Press(Qt::Key_4, Qt::ControlModifier);
  ASSERT_TRUE(QTest::qWaitFor([this] { return View().viewport()->width() > 1500; }));
  const int columns = View().Layout().ColumnCount();
  EXPECT_GE(columns, 4);
  EXPECT_LT(View().viewport()->width() - columns * (Rect(0).width() + PageLayout::Margin),
            Rect(0).width() + 2 * PageLayout::Margin)
      << "no room for another one";
}

TEST_F(PageColumns, AClickInTheOverviewOpensThePageAsPagesWereShownBefore) {
  OpenTable(40);
  View().SetZoom(1.5);
  Press(Qt::Key_F9);
  EXPECT_GE(View().Layout().ColumnCount(), 3);
  EXPECT_TRUE(IsChecked(Command::Overview));
  EXPECT_FALSE(IsChecked(Command::ManyColumns));
  ClickPage(5);
  EXPECT_EQ(Page(), 5);
  EXPECT_EQ(Percent(), 150);
  EXPECT_EQ(View().Layout().ColumnCount(), 1);
  EXPECT_FALSE(IsChecked(Command::Overview));
  EXPECT_FALSE(window_->ActionOf(Command::Copy)->isEnabled()) << "the click selects no text";
}

TEST_F(PageColumns, EscapeClosesTheOverviewAndThenTheFullScreen) {
  OpenTable(40);
  Press(Qt::Key_F11);
  EXPECT_TRUE(window_->isFullScreen());
  EXPECT_TRUE(IsChecked(Command::FullScreen));
  Press(Qt::Key_F9);
  Press(Qt::Key_Escape);
  EXPECT_EQ(View().Layout().Mode(), ZoomMode::FitWidth);
  EXPECT_TRUE(window_->isFullScreen());
  Press(Qt::Key_Escape);
  EXPECT_FALSE(window_->isFullScreen());
  EXPECT_FALSE(IsChecked(Command::FullScreen));
}

TEST_F(PageColumns, TheNextPreviewOfTheRunHasTheSameColumns) {
  OpenTable(9);
  Press(Qt::Key_3, Qt::ControlModifier);
  window_->close();
  OpenTable(9);
  EXPECT_TRUE(IsChecked(Command::FacingPages));
  EXPECT_EQ(View().Layout().ColumnCount(), 2);
}

TEST_F(PageColumns, ADocumentWithoutPagesHasAnOverview) {
  Open(DocumentBuilder().Build());
  Press(Qt::Key_F9);
  Press(Qt::Key_3, Qt::ControlModifier);
  Press(Qt::Key_4, Qt::ControlModifier);
  EXPECT_EQ(View().Layout().PageCount(), 0);
}

}  // namespace
}  // namespace tarvis
