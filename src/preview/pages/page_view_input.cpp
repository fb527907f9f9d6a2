// How the page view answers wheel, keys and mouse.
#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "preview/pages/page_view.h"

namespace tarvis {

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

void PageView::wheelEvent(QWheelEvent* event) {
  if (event->modifiers().testFlag(Qt::ControlModifier)) {
    wheelRest_ += event->angleDelta().y() / 120.0;
    for (; wheelRest_ >= 1; wheelRest_ -= 1) ZoomStep(1, event->position());
    for (; wheelRest_ <= -1; wheelRest_ += 1) ZoomStep(-1, event->position());
    event->accept();
    return;
  }
  const int down = event->angleDelta().y() < 0 ? 1 : -1;
  const QScrollBar* bar = verticalScrollBar();
  const bool atEnd = bar->value() == (down > 0 ? bar->maximum() : 0);
  if (event->angleDelta().y() != 0 && atEnd && TurnSinglePage(down)) {
    event->accept();
    return;
  }
  QAbstractScrollArea::wheelEvent(event);
}

void PageView::keyPressEvent(QKeyEvent* event) {
  const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
  switch (event->key()) {
    case Qt::Key_Down:
      return ScrollLines(1);
    case Qt::Key_Up:
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
