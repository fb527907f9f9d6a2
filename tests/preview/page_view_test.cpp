// What the view shows while pages are still being painted.
#include "preview/pages/page_view.h"

#include "preview/sample_picture.h"
#include "preview/window_fixture.h"

namespace tarvis {
namespace {

class PaintedPages : public WindowTest {
 protected:
  // Twelve pages; on the ninth a picture over all of it.
  std::shared_ptr<HoldingPicture> OpenWithPicture() {
    auto picture = std::make_shared<HoldingPicture>();
    DocumentBuilder builder;
    builder.TablePages(8).Page().Picture(picture, {0, 0, 11906, 16838}).TablePages(3);
    Open(builder.Build());
    return picture;
  }
  // What is at a place (twips) of the ninth page.
  QColor Shown() {
    const QPoint place = At(8, 8000, 3000);
    return View().viewport()->grab().toImage().pixelColor(place);
  }
  static constexpr int PictureGrey = 200;
};

TEST_F(PaintedPages, APageThatTakesLongIsWhitePaperUntilItIsThere) {
  const auto picture = OpenWithPicture();
  picture->Hold();
  View().GoTo({8, 0});
  EXPECT_EQ(Shown(), QColor(Qt::white));
  ASSERT_TRUE(QTest::qWaitFor([&] { return picture->Holds(); }));
  EXPECT_EQ(Shown(), QColor(Qt::white));
  picture->Release();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Shown().lightness() == PictureGrey; }));
}

TEST_F(PaintedPages, TheNearestPictureIsShownWhileZooming) {
  const auto picture = OpenWithPicture();
  View().GoTo({8, 0});
  ASSERT_TRUE(QTest::qWaitFor([this] { return Shown().lightness() == PictureGrey; }));
  picture->Hold();
  for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Plus, Qt::Key_Minus, Qt::Key_0}) {
    Press(key, Qt::ControlModifier);
    View().GoTo({8, 0});
    EXPECT_EQ(Shown().lightness(), PictureGrey) << Percent();
  }
  picture->Release();
}

TEST_F(PaintedPages, PicturesOfPagesKeepToTheirBudget) {
  OpenTable(60);
  for (int page = 0; page < 60; ++page) {
    View().GoTo({page, 0});
    View().viewport()->grab();
    EXPECT_LE(View().Pictures().Bytes(), 48 * 1024 * 1024) << page;
  }
  EXPECT_GT(View().Pictures().Bytes(), 30 * 1024 * 1024) << "the budget is used";
}

}  // namespace
}  // namespace tarvis
