// Touchpads, touch screens and single keys on the pages.
#include <QClipboard>
#include <QElapsedTimer>
#include <QGesture>
#include <QNativeGestureEvent>
#include <QPointingDevice>

#include "preview/window_fixture.h"

namespace tarvis {
namespace {

class Touch : public WindowTest {
 protected:
  // Single pages, each wholly in sight.
  void OpenSinglePages(int pages) {
    OpenTable(pages);
    Press(Qt::Key_F8);
    Press(Qt::Key_0, Qt::ControlModifier);
    ASSERT_EQ(View().verticalScrollBar()->maximum(), 0);
  }
  // Scrolls down by `count` steps of a tenth of a notch each, or up.
  void ScrollInTenths(int count, int down = 1) {
    const QPoint at(200, 200);
    for (int step = 0; step < count; ++step) {
      QWheelEvent event(at, View().viewport()->mapToGlobal(at), {}, {0, -12 * down}, Qt::NoButton,
                        Qt::NoModifier, Qt::NoScrollPhase, false);
      QApplication::sendEvent(View().viewport(), &event);
    }
  }
  void PinchOnTouchpad(QPointF at, double value) {
    QNativeGestureEvent event(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, at, at,
                              View().viewport()->mapToGlobal(at), value, {});
    QApplication::sendEvent(View().viewport(), &event);
  }
  void FingerDown(QPoint at) { QTest::touchEvent(View().viewport(), screen_.get()).press(0, at); }
  void FingerMove(QPoint at) { QTest::touchEvent(View().viewport(), screen_.get()).move(0, at); }
  void FingerUp(QPoint at) { QTest::touchEvent(View().viewport(), screen_.get()).release(0, at); }
  // Up the screen, in steps as a hand makes them.
  void Swipe(QPoint from, int steps) {
    FingerDown(from);
    for (int step = 1; step <= steps; ++step) {
      QElapsedTimer clock;
      clock.start();
      ASSERT_TRUE(QTest::qWaitFor([&clock] { return clock.hasExpired(8); }));
      FingerMove(from - QPoint(0, step * 20));
    }
  }
  int Scrolled() { return View().verticalScrollBar()->value(); }
  bool HasSelection() { return window_->ActionOf(Command::Copy)->isEnabled(); }

  std::unique_ptr<QPointingDevice> screen_{QTest::createTouchDevice()};
};

TEST_F(Touch, SmallStepsOfATouchpadTurnOnePageForEachWholeNotch) {
  OpenSinglePages(30);
  ScrollInTenths(9);
  EXPECT_EQ(Page(), 0);
  ScrollInTenths(1);
  EXPECT_EQ(Page(), 1);
  ScrollInTenths(20);
  EXPECT_EQ(Page(), 3);
  Wheel(-2);
  EXPECT_EQ(Page(), 5);
}

TEST_F(Touch, TurningBackStartsAnew) {
  OpenSinglePages(30);
  Wheel(-1);
  ScrollInTenths(9);
  ScrollInTenths(9, -1);
  EXPECT_EQ(Page(), 1);
  ScrollInTenths(1, -1);
  EXPECT_EQ(Page(), 0);
}

TEST_F(Touch, ScrollingWithinAPageIsNotCountedTowardsTheNextOne) {
  OpenTable(5);
  Press(Qt::Key_F8);
  Press(Qt::Key_2, Qt::ControlModifier);
  QScrollBar& bar = *View().verticalScrollBar();
  ASSERT_GT(bar.maximum(), 0);
  bar.setValue(bar.maximum() - 1);
  ScrollInTenths(9);
  EXPECT_EQ(Page(), 0);
  EXPECT_EQ(bar.value(), bar.maximum());
  ScrollInTenths(2);
  EXPECT_EQ(Page(), 1);
  EXPECT_EQ(bar.value(), 0);
}

TEST_F(Touch, TwoFingersOnATouchpadZoomAtTheirPlace) {
  OpenTable(5);
  View().GoTo({2, 3000});
  const QPointF at(300, 250);
  const PageView::Spot before = View().SpotAt(at);
  const double zoom = View().Layout().Zoom();
  PinchOnTouchpad(at, 0.25);
  EXPECT_NEAR(View().Layout().Zoom(), zoom * 1.25, 0.001);
  const PageView::Spot after = View().SpotAt(at);
  EXPECT_EQ(after.Page, before.Page);
  EXPECT_NEAR(after.Point.y(), before.Point.y(), 15);
  for (int i = 0; i < 40; ++i) PinchOnTouchpad(at, -0.5);
  EXPECT_NEAR(View().Layout().Zoom(), PageLayout::LeastZoom, 0.001);
}

TEST_F(Touch, TwoFingersOnATouchScreenZoom) {
  OpenTable(5);
  QWidget* viewport = View().viewport();
  const double zoom = View().Layout().Zoom();
  const auto move = [&](int apart) {
    QTest::touchEvent(viewport, screen_.get())
        .move(0, QPoint(300 - apart, 250))
        .move(1, QPoint(300 + apart, 250));
  };
  QTest::touchEvent(viewport, screen_.get()).press(0, QPoint(250, 250)).press(1, QPoint(350, 250));
  for (int apart = 50; apart <= 100; apart += 5) move(apart);
  QTest::touchEvent(viewport, screen_.get()).release(0, QPoint(200, 250)).release(1, QPoint(400, 250));
  EXPECT_GT(View().Layout().Zoom(), zoom * 1.5);
  EXPECT_LT(View().Layout().Zoom(), zoom * 2.5);
}

TEST_F(Touch, AFingerScrollsThePagesAndSelectsNothing) {
  OpenTable(9);
  Swipe({300, 400}, 10);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Scrolled() > 100; })) << Scrolled();
  EXPECT_FALSE(HasSelection());
  FingerUp({300, 200});
  EXPECT_FALSE(HasSelection());
}

TEST_F(Touch, ASwipeGoesOnAfterTheFingerIsLifted) {
  OpenTable(9);
  Swipe({300, 400}, 12);
  ASSERT_TRUE(QTest::qWaitFor([&] { return Scrolled() > 100; }));
  FingerUp({300, 160});
  const int lifted = Scrolled();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Scrolled() > lifted + 100; })) << Scrolled() - lifted;
}

TEST_F(Touch, AFingerThatRestsSelectsAWordAndMoreWhenItMovesOn) {
  Open(DocumentBuilder().Page().Text("Speed Loop Gain Wide", 1440, 1000, 12).Build());
  const int patience = QTapAndHoldGesture::timeout();
  QTapAndHoldGesture::setTimeout(50);
  FingerDown(At(0, 1440 + 900, 1100));
  EXPECT_TRUE(QTest::qWaitFor([&] { return HasSelection(); }));
  QTapAndHoldGesture::setTimeout(patience);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Loop"));
  const int height = Scrolled();
  FingerMove(At(0, 9000, 1100));
  FingerUp(At(0, 9000, 1100));
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Loop Gain Wide"));
  EXPECT_EQ(Scrolled(), height);
}

TEST_F(Touch, AMouseThatRestsSelectsNoWord) {
  OpenTable(1);
  const int patience = QTapAndHoldGesture::timeout();
  QTapAndHoldGesture::setTimeout(50);
  QTest::mousePress(View().viewport(), Qt::LeftButton, Qt::NoModifier, {200, 200});
  QElapsedTimer clock;
  clock.start();
  EXPECT_TRUE(QTest::qWaitFor([&clock] { return clock.hasExpired(200); })) << "four times the patience";
  QTapAndHoldGesture::setTimeout(patience);
  EXPECT_FALSE(HasSelection());
  QTest::mouseRelease(View().viewport(), Qt::LeftButton, Qt::NoModifier, {200, 200});
}

TEST_F(Touch, ATapEndsTheSelection) {
  OpenTable(1);
  Press(Qt::Key_A, Qt::ControlModifier);
  ASSERT_TRUE(HasSelection());
  FingerDown({300, 200});
  FingerUp({300, 200});
  EXPECT_FALSE(HasSelection());
}

TEST_F(Touch, SingleKeysMoveAndZoomAsInOtherViewers) {
  OpenTable(9);
  Press(Qt::Key_N);
  Press(Qt::Key_N);
  EXPECT_EQ(Page(), 2);
  Press(Qt::Key_P);
  EXPECT_EQ(Page(), 1);
  const int height = View().verticalScrollBar()->value();
  Press(Qt::Key_J);
  EXPECT_GT(View().verticalScrollBar()->value(), height);
  Press(Qt::Key_K);
  EXPECT_EQ(View().verticalScrollBar()->value(), height);
  const int percent = Percent();
  Press(Qt::Key_Plus);
  EXPECT_GT(Percent(), percent);
  Press(Qt::Key_Minus);
  Press(Qt::Key_Minus);
  EXPECT_LT(Percent(), percent);
}

TEST_F(Touch, SingleKeysAreLettersWhereTextIsTyped) {
  OpenTable(9);
  Press(Qt::Key_F, Qt::ControlModifier);
  Type("npjk+-");
  EXPECT_EQ(Page(), 0);
}

}  // namespace
}  // namespace tarvis
