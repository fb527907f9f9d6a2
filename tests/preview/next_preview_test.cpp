// What a preview takes over from the one before it in the same run.
#include <QSplitter>
#include <QTabWidget>

#include "preview/window_fixture.h"

namespace tarvis {
namespace {

class NextPreview : public WindowTest {
 protected:
  static std::shared_ptr<const Document> Parts(int pagesAhead) {
    DocumentBuilder builder;
    builder.TablePages(pagesAhead + 6).Entry("Parameter", 0, 0, 720);
    builder.Entry("Trace", 0, pagesAhead, 2000).Entry("Comment", 1, pagesAhead + 2, 5000);
    return builder.Entry("Comment", 1, pagesAhead + 4, 5000).Build();
  }
  // The way back from the dialog.
  void OpenAgain(std::shared_ptr<const Document> document) {
    window_->hide();
    Open(std::move(document));
  }
};

TEST_F(NextPreview, OpensWhereTheLastOneWasMovedToInTheSameSize) {
  OpenTable(3);
  window_->setGeometry(70, 90, 640, 480);
  const QRect before = window_->geometry();
  OpenAgain(DocumentBuilder().TablePages(3).Build());
  EXPECT_EQ(window_->geometry(), before);
}

TEST_F(NextPreview, KeepsZoomAndSinglePages) {
  OpenTable(3);
  View().SetZoom(1.37);
  Press(Qt::Key_F8);
  OpenAgain(DocumentBuilder().TablePages(3).Build());
  EXPECT_EQ(Percent(), 137);
  EXPECT_FALSE(View().Layout().Continuous());
  Press(Qt::Key_0, Qt::ControlModifier);
  OpenAgain(DocumentBuilder().TablePages(3).Build());
  EXPECT_EQ(View().Layout().Mode(), ZoomMode::FitPage);
  EXPECT_TRUE(window_->ActionOf(Command::FitPage)->isChecked());
}

TEST_F(NextPreview, KeepsWhatIsSeenOfAPageThatIsWiderThanTheWindow) {
  OpenTable(3);
  View().SetZoom(2);
  View().horizontalScrollBar()->setValue(37);
  View().GoTo({1, 3000});
  OpenAgain(DocumentBuilder().TablePages(3).Build());
  EXPECT_EQ(View().horizontalScrollBar()->value(), 37);
  EXPECT_NEAR(View().CurrentPlace().Top, 3000, 20);
}

TEST_F(NextPreview, KeepsTheSidePaneItsWidthAndItsTab) {
  OpenTable(3);
  auto* pane = &Find<QTabWidget>("sidePane");
  pane->setCurrentIndex(1);
  window_->findChild<QSplitter*>()->setSizes({260, window_->width() - 260});
  OpenAgain(DocumentBuilder().TablePages(3).Build());
  pane = &Find<QTabWidget>("sidePane");
  EXPECT_EQ(pane->currentIndex(), 1);
  EXPECT_NEAR(pane->width(), 260, 8);
  Press(Qt::Key_F7);
  OpenAgain(DocumentBuilder().TablePages(3).Build());
  EXPECT_FALSE(Find<QTabWidget>("sidePane").isVisible());
  EXPECT_FALSE(window_->ActionOf(Command::SidePane)->isChecked());
  Press(Qt::Key_F7);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Find<QTabWidget>("sidePane").width() > 100; }))
      << "it is there again, not squeezed to nothing";
}

TEST_F(NextPreview, ShowsTheSamePartAtTheSameHeightThoughPagesCameAheadOfIt) {
  Open(Parts(2));
  View().GoTo({7, 900});  // below the second "Comment", which starts on the page before
  OpenAgain(Parts(5));
  const PagePlace now = View().CurrentPlace();
  EXPECT_EQ(now.Page, 10);
  EXPECT_NEAR(now.Top, 900, 40);
}

TEST_F(NextPreview, StartsAtTheTopWhereTheLastOneWasNotMoved) {
  Open(Parts(2));
  OpenAgain(Parts(5));
  EXPECT_EQ(View().verticalScrollBar()->value(), 0);
}

TEST_F(NextPreview, ShowsTheSamePageIfThePartIsNoLongerThere) {
  Open(Parts(2));
  View().GoTo({4, 6000});
  OpenAgain(DocumentBuilder().TablePages(9).Entry("Parameter", 0, 0, 720).Build());
  EXPECT_EQ(View().CurrentPlace().Page, 4);
  OpenAgain(DocumentBuilder().TablePages(3).Build());
  EXPECT_EQ(Page(), 2) << "the last one of a shorter document";
}

TEST_F(NextPreview, KeepsNothingOfAnotherRun) {
  OpenTable(3);
  const QSize first = window_->size();
  window_->resize(600, 400);
  View().SetZoom(2);
  window_->hide();
  memory_ = std::make_shared<PreviewMemory>();
  OpenTable(3);
  EXPECT_EQ(window_->size(), first);
  EXPECT_EQ(View().Layout().Mode(), ZoomMode::FitWidth);
}

}  // namespace
}  // namespace tarvis
