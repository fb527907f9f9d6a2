// How the page view answers wheel, keys and mouse.
#include <QApplication>
#include <QGestureEvent>
#include <QKeyEvent>
#include <QNativeGestureEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "preview/pages/page_view.h"

namespace tarvis {
namespace {

constexpr int NotchAngle = 120;  // of a wheel, in eighths of a degree

}  // namespace

void PageView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  ChangeLayout([&] { layout_.SetViewport(viewport()->size()); }, QPointF(0, PageLayout::Margin));
}

void PageView::scrollContentsBy(int dx, int dy) {
  viewport()->scroll(dx, dy);
  WantShown();
  emit PlaceChanged();
}

// In single-page view, what would scroll past an end turns the page. True if a page was turned.
bool PageView::TurnSinglePage(int direction) {
  if (layout_.Continuous()) return false;
  const int next = layout_.SinglePage() + direction;
  if (next < 0 || next >= layout_.PageCount()) return false;
  GoTo({next, 0});
  if (direction < 0) verticalScrollBar()->setValue(verticalScrollBar()->maximum());
  return true;
}

void PageView::ScrollLines(int direction) {
  QScrollBar* bar = verticalScrollBar();
  if (bar->value() == (direction > 0 ? bar->maximum() : 0) && TurnSinglePage(direction)) return;
  bar->setValue(bar->value() + direction * bar->singleStep());
}

void PageView::ScrollView(int direction) {
  QScrollBar* bar = verticalScrollBar();
  if (bar->value() == (direction > 0 ? bar->maximum() : 0) && TurnSinglePage(direction)) return;
  // A line of what was read stays in sight.
  bar->setValue(bar->value() + direction * std::max(bar->singleStep(), bar->pageStep() - bar->singleStep()));
}

void PageView::ScrollPages(int count) {
  GoTo({CurrentPage() + count, 0});
}

void PageView::ScrollAcross(int direction) {
  QScrollBar* bar = horizontalScrollBar();
  if (bar->maximum() == 0) {
    ScrollPages(direction);
  } else {
    bar->setValue(bar->value() + direction * bar->singleStep());
  }
}

void PageView::GoToStart() {
  GoTo({0, 0});
}

void PageView::GoToEnd() {
  if (layout_.PageCount() == 0) return;
  GoTo({layout_.PageCount() - 1, 0});
  verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void PageView::ZoomByWheel(const QWheelEvent& event) {
  zoomAngle_ += event.angleDelta().y();
  for (; zoomAngle_ >= NotchAngle; zoomAngle_ -= NotchAngle) ZoomStep(1, event.position());
  for (; zoomAngle_ <= -NotchAngle; zoomAngle_ += NotchAngle) ZoomStep(-1, event.position());
}

// In single-page view, a whole notch past an end turns the page, also one that comes in small parts. True if
// there is nothing to scroll.
bool PageView::TurnByWheel(int angle) {
  const int down = angle < 0 ? 1 : -1;
  const QScrollBar* bar = verticalScrollBar();
  const bool pastEnd = !layout_.Continuous() && angle != 0 && bar->value() == (down > 0 ? bar->maximum() : 0);
  if (!pastEnd || (angle < 0) != (turnAngle_ < 0)) turnAngle_ = 0;
  if (!pastEnd) return false;
  turnAngle_ += angle;
  while (std::abs(turnAngle_) >= NotchAngle) {
    turnAngle_ += down * NotchAngle;
    if (!TurnSinglePage(down) || bar->maximum() > 0) turnAngle_ = 0;  // what is left would be a surprise
  }
  return true;
}

void PageView::wheelEvent(QWheelEvent* event) {
  if (event->modifiers().testFlag(Qt::ControlModifier)) {
    ZoomByWheel(*event);
    return event->accept();
  }
  if (TurnByWheel(event->angleDelta().y())) return event->accept();
  QAbstractScrollArea::wheelEvent(event);
}

// Two fingers on a touchpad arrive as a native gesture, on a touch screen as the toolkit's own one.
bool PageView::Pinch(QEvent& event) {
  if (event.type() == QEvent::NativeGesture) {
    const auto& gesture = static_cast<const QNativeGestureEvent&>(event);
    if (gesture.gestureType() != Qt::ZoomNativeGesture) return false;
    SetZoom(Zoom() * (1 + gesture.value()), gesture.position());
    return true;
  }
  if (event.type() != QEvent::Gesture) return false;
  const auto* pinch =
      static_cast<QPinchGesture*>(static_cast<QGestureEvent&>(event).gesture(Qt::PinchGesture));
  if (pinch == nullptr) return false;
  SetZoom(Zoom() * pinch->scaleFactor(), viewport()->mapFromGlobal(pinch->centerPoint()));
  return true;
}

bool PageView::viewportEvent(QEvent* event) {
  return Pinch(*event) || QAbstractScrollArea::viewportEvent(event);
}

void PageView::keyPressEvent(QKeyEvent* event) {
  const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
  switch (event->key()) {
    case Qt::Key_Down:
    case Qt::Key_J:
      return ScrollLines(1);
    case Qt::Key_Up:
    case Qt::Key_K:
      return ScrollLines(-1);
    case Qt::Key_Right:
      return ScrollAcross(1);
    case Qt::Key_Left:
      return ScrollAcross(-1);
    case Qt::Key_PageDown:
      return ScrollView(1);
    case Qt::Key_PageUp:
      return ScrollView(-1);
    case Qt::Key_Space:
      return ScrollView(shift ? -1 : 1);
    case Qt::Key_N:
      return ScrollPages(1);
    case Qt::Key_P:
      return ScrollPages(-1);
    case Qt::Key_Plus:
      return ZoomStep(1);
    case Qt::Key_Minus:
      return ZoomStep(-1);
    case Qt::Key_Home:
      return GoToStart();
    case Qt::Key_End:
      return GoToEnd();
    default:
      QAbstractScrollArea::keyPressEvent(event);
  }
}

void PageView::DragBy(QPoint distance) {
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() - distance.x());
  verticalScrollBar()->setValue(verticalScrollBar()->value() - distance.y());
}

void PageView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) {
    handAt_ = event->position().toPoint();
    viewport()->setCursor(Qt::ClosedHandCursor);
  } else if (event->button() == Qt::LeftButton) {
    selecting_ = true;
    emit Pressed(SpotAt(event->position()));
  }
}

void PageView::mouseMoveEvent(QMouseEvent* event) {
  if (handAt_) {
    DragBy(event->position().toPoint() - *handAt_);
    handAt_ = event->position().toPoint();
  } else if (selecting_) {
    // Selecting past an edge scrolls on.
    const double y = event->position().y();
    if (y < 0 || y > viewport()->height()) DragBy({0, static_cast<int>(y < 0 ? 24 : -24)});
    emit Dragged(SpotAt(event->position()));
  }
}

void PageView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) {
    handAt_.reset();
    viewport()->setCursor(Qt::ArrowCursor);
  }
  if (event->button() == Qt::LeftButton) selecting_ = false;
}

void PageView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit DoubleClicked(SpotAt(event->position()));
}

}  // namespace tarvis
