#include "preview/pages/page_touch.h"

#include <QApplication>
#include <QGestureEvent>
#include <QScroller>
#include <QTouchEvent>

namespace tarvis {

PageTouch::PageTouch(PageView& view) : QObject(&view), view_(view) {
  setObjectName(QStringLiteral("pageTouch"));
  QWidget* viewport = view.viewport();
  viewport->setAttribute(Qt::WA_AcceptTouchEvents);
  viewport->grabGesture(Qt::PinchGesture);
  viewport->grabGesture(Qt::TapAndHoldGesture);
  QScroller::grabGesture(viewport, QScroller::TouchGesture);
  viewport->installEventFilter(this);
}

bool PageTouch::eventFilter(QObject* /*watched*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::Gesture:
      return Gesture(static_cast<QGestureEvent&>(*event));
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
      Touch(static_cast<const QTouchEvent&>(*event));
      event->accept();  // the toolkit would make a mouse of the first finger
      return true;
    default:
      return false;
  }
}

bool PageTouch::Gesture(QGestureEvent& event) {
  if (const auto* pinch = static_cast<QPinchGesture*>(event.gesture(Qt::PinchGesture))) {
    use_ = Use::Zoom;
    QScroller::scroller(view_.viewport())->stop();
    view_.SetZoom(view_.Layout().Zoom() * pinch->scaleFactor(),
                  view_.viewport()->mapFromGlobal(pinch->centerPoint()));
    return true;
  }
  const QGesture* hold = event.gesture(Qt::TapAndHoldGesture);
  if (hold == nullptr) return false;
  if (hold->state() == Qt::GestureFinished && use_ == Use::Tap) {
    use_ = Use::Select;
    QScroller::scroller(view_.viewport())->stop();
    emit Held(view_.SpotAt(start_));
  }
  return true;
}

void PageTouch::Touch(const QTouchEvent& event) {
  if (event.points().isEmpty()) return;
  const QPointF at = event.points().front().position();
  if (event.type() == QEvent::TouchBegin) {
    use_ = Use::Tap;
    start_ = at;
  } else if (use_ == Use::Select) {
    if (event.type() == QEvent::TouchUpdate) emit Dragged(view_.SpotAt(at));
  } else if ((at - start_).manhattanLength() >= QApplication::startDragDistance()) {
    if (use_ == Use::Tap) use_ = Use::Scroll;
  } else if (event.type() == QEvent::TouchEnd && use_ == Use::Tap) {
    emit Tapped(view_.SpotAt(at));
  }
  if (event.type() == QEvent::TouchEnd || event.type() == QEvent::TouchCancel) use_ = Use::None;
}

}  // namespace tarvis
