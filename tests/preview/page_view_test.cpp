// What the view shows while pages are still being painted.
#include "preview/pages/page_view.h"

#include <QPaintEvent>
#include <algorithm>

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

// Notes what is painted of a widget.
class PaintNotes : public QObject {
 public:
  explicit PaintNotes(QWidget& widget) { widget.installEventFilter(this); }
  QRegion Painted;

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) Painted += static_cast<const QPaintEvent*>(event)->region();
    return false;
  }
};

TEST_F(PaintedPages, OnlyThePartThatIsReadyIsPaintedAgain) {
  const auto document = DocumentBuilder().TablePages(3).Build();
  Open(document);
  View().SetZoom(4);
  View().GoTo({0, 0});
  const int width = qRound(View().Layout().PageSize().width());
  const int height = CutIntoStrips(width, PagePixelHeight(*document, width)).Height;
  const int seen = static_cast<int>((View().viewport()->height() - PageLayout::Margin) / height);
  ASSERT_TRUE(QTest::qWaitFor([&] {
    return View().Pictures().Find({0, seen + 1, width}) != nullptr;
  })) << "the last";
  QCoreApplication::processEvents();
  PaintNotes notes(*View().viewport());
  emit View().Pictures().StripReady({0, 1, width});
  ASSERT_TRUE(QTest::qWaitFor([&] { return !notes.Painted.isEmpty(); }));
  const QRect painted = notes.Painted.boundingRect();
  const double top = View().Layout().PageRect(0).top() + height - View().verticalScrollBar()->value();
  EXPECT_NEAR(painted.top(), top, 2);
  EXPECT_NEAR(painted.bottom() + 1, std::min<double>(top + height, View().viewport()->height()), 2);
}

TEST_F(PaintedPages, PicturesOfPagesKeepToTheirBudget) {
  OpenTable(60);
  for (int page = 0; page < 60; ++page) {
    View().GoTo({page, 0});
    View().viewport()->grab();
    EXPECT_LE(View().Pictures().Bytes(), 44 * 1024 * 1024) << page;
  }
  EXPECT_GT(View().Pictures().Bytes(), 30 * 1024 * 1024) << "the budget is used";
}

}  // namespace
}  // namespace tarvis
