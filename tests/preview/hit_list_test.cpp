// The list of places found beside the pages.
#include "preview/window/hit_list.h"

#include <QLabel>
#include <QTabWidget>

#include "preview/window_fixture.h"

namespace tarvis {
namespace {

class Found : public WindowTest {
 protected:
  HitList& List() { return Find<HitList>("hitList"); }
  QString Entry(int row) { return List().model()->index(row, 0).data().toString(); }
  QTabWidget& Pane() { return Find<QTabWidget>("sidePane"); }
  bool IsInFront() { return Pane().currentWidget() == &List(); }
};

std::shared_ptr<const Document> RowsWithGain() {
  return DocumentBuilder()
      .Page()
      .Row({"Pn100", "Gain", "40.0"}, 720)
      .Row({"Pn101", "Ratio", "gain"}, 1003)
      .Page()
      .Text("The gain at the end", 1440, 5000)
      .Build();
}

TEST_F(Found, IsAListWithPageAndRowOfEachPlace) {
  Open(RowsWithGain());
  EXPECT_FALSE(Pane().isTabVisible(Pane().indexOf(&List())));
  SearchFor("gain");
  EXPECT_TRUE(IsInFront());
  ASSERT_EQ(List().model()->rowCount(), 3);
  EXPECT_EQ(Entry(0), QStringLiteral("1: Pn100 Gain 40.0"));
  EXPECT_EQ(Entry(1), QStringLiteral("1: Pn101 Ratio gain"));
  EXPECT_EQ(Entry(2), QStringLiteral("2: The gain at the end"));
  EXPECT_EQ(List().selectionModel()->selectedIndexes().value(0).row(), 0);
  EXPECT_TRUE(Find<QWidget>("findText").hasFocus());
}

TEST_F(Found, LeadsToThePlaceThatIsClicked) {
  Open(RowsWithGain());
  SearchFor("gain");
  const QRect entry = List().visualRect(List().model()->index(2, 0));
  QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, entry.center());
  EXPECT_EQ(Page(), 1);
  EXPECT_EQ(Find<QLabel>("findCount").text(), QStringLiteral("3 of 3"));
}

TEST_F(Found, IsWalkedThroughByKeysFromTheCurrentPlaceOn) {
  Open(RowsWithGain());
  SearchFor("gain");
  Press(Qt::Key_Return);
  List().setFocus();
  Press(Qt::Key_Down);
  EXPECT_EQ(Find<QLabel>("findCount").text(), QStringLiteral("3 of 3"));
  EXPECT_TRUE(List().hasFocus());
}

TEST_F(Found, FollowsTheStepsOfTheFindBar) {
  Open(RowsWithGain());
  SearchFor("gain");
  Press(Qt::Key_Return);
  EXPECT_EQ(List().selectionModel()->selectedIndexes().value(0).row(), 1);
}

TEST_F(Found, GivesWayToTheTabBeforeWhenNothingIsFoundOrTheBarIsClosed) {
  Open(RowsWithGain());
  Pane().setCurrentIndex(1);
  SearchFor("gain");
  EXPECT_TRUE(IsInFront());
  Type("x");
  EXPECT_EQ(Pane().currentIndex(), 1);
  Press(Qt::Key_Backspace);
  EXPECT_TRUE(IsInFront());
  Press(Qt::Key_Escape);
  EXPECT_EQ(Pane().currentIndex(), 1);
  EXPECT_EQ(List().model()->rowCount(), 0);
}

TEST_F(Found, IsNotWhatTheNextPreviewStartsWith) {
  Open(RowsWithGain());
  SearchFor("gain");
  window_->close();
  ASSERT_TRUE(memory_->Window.has_value());
  EXPECT_EQ(memory_->Window->SidePaneTab, 0);
}

}  // namespace
}  // namespace tarvis
