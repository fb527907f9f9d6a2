#include "preview/pages/page_input.h"

#include <QGestureEvent>
#include <QKeyEvent>
#include <QNativeGestureEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <cstdlib>

#include "preview/pages/page_steps.h"

namespace tarvis {
namespace {

constexpr int NotchAngle = 120;     // of a wheel, in eighths of a degree
constexpr int ScrollPastEdge = 24;  // logical pixels, for each move of the mouse

struct KeyStep {
  Qt::Key Key;
  void (*Step)(PageView& view, int direction);
  int Direction;
};

void Zoom(PageView& view, int direction) {
  ZoomStep(view, direction);
}

void GoToEdge(PageView& view, int direction) {
  direction > 0 ? GoToEnd(view) : GoToStart(view);
}

constexpr std::array KeySteps{
    KeyStep{Qt::Key_Down, ScrollLine, 1},       KeyStep{Qt::Key_J, ScrollLine, 1},
    KeyStep{Qt::Key_Up, ScrollLine, -1},        KeyStep{Qt::Key_K, ScrollLine, -1},
    KeyStep{Qt::Key_Right, ScrollAcross, 1},    KeyStep{Qt::Key_Left, ScrollAcross, -1},
    KeyStep{Qt::Key_PageDown, ScrollScreen, 1}, KeyStep{Qt::Key_PageUp, ScrollScreen, -1},
    KeyStep{Qt::Key_Space, ScrollScreen, 1},    KeyStep{Qt::Key_N, ScrollPages, 1},
    KeyStep{Qt::Key_P, ScrollPages, -1},        KeyStep{Qt::Key_Plus, Zoom, 1},
    KeyStep{Qt::Key_Minus, Zoom, -1},           KeyStep{Qt::Key_Home, GoToEdge, -1},
    KeyStep{Qt::Key_End, GoToEdge, 1},
};

}  // namespace

PageInput::PageInput(PageView& view) : QObject(&view), view_(view) {
  setObjectName(QStringLiteral("pageInput"));
  view.viewport()->grabGesture(Qt::PinchGesture);
  view.installEventFilter(this);
  view.viewport()->installEventFilter(this);
}

bool PageInput::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &view_) return event->type() == QEvent::KeyPress && Key(static_cast<QKeyEvent&>(*event));
  switch (event->type()) {
    case QEvent::Wheel:
      return Wheel(static_cast<QWheelEvent&>(*event));
    case QEvent::NativeGesture:
    case QEvent::Gesture:
      return Pinch(*event);
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
      return Mouse(static_cast<QMouseEvent&>(*event));
    default:
      return false;
  }
}

bool PageInput::Key(const QKeyEvent& event) {
  const auto step = std::find_if(KeySteps.begin(), KeySteps.end(),
                                 [&event](const KeyStep& entry) { return entry.Key == event.key(); });
  if (step == KeySteps.end()) return false;
  const bool back = step->Key == Qt::Key_Space && event.modifiers().testFlag(Qt::ShiftModifier);
  step->Step(view_, back ? -step->Direction : step->Direction);
  return true;
}

bool PageInput::Wheel(QWheelEvent& event) {
  if (event.modifiers().testFlag(Qt::ControlModifier)) {
    ZoomByWheel(event);
  } else if (!TurnByWheel(event.angleDelta().y())) {
    return false;
  }
  event.accept();
  return true;
}

void PageInput::ZoomByWheel(const QWheelEvent& event) {
  zoomAngle_ += event.angleDelta().y();
  for (; zoomAngle_ >= NotchAngle; zoomAngle_ -= NotchAngle) ZoomStep(view_, 1, event.position());
  for (; zoomAngle_ <= -NotchAngle; zoomAngle_ += NotchAngle) ZoomStep(view_, -1, event.position());
}

// In single-page view, a whole notch past an end turns the page, also one that comes in small parts. True if
// there is nothing to scroll.
bool PageInput::TurnByWheel(int angle) {
  const int down = angle < 0 ? 1 : -1;
  const QScrollBar& bar = *view_.verticalScrollBar();
  const bool pastEnd =
      !view_.Layout().Continuous() && angle != 0 && bar.value() == (down > 0 ? bar.maximum() : 0);
  if (!pastEnd || (angle < 0) != (turnAngle_ < 0)) turnAngle_ = 0;
  if (!pastEnd) return false;
  turnAngle_ += angle;
  while (std::abs(turnAngle_) >= NotchAngle) {
    turnAngle_ += down * NotchAngle;
    if (!TurnPage(view_, down) || bar.maximum() > 0) turnAngle_ = 0;  // what is left would be a surprise
  }
  return true;
}

// Two fingers on a touchpad arrive as a native gesture, on a touch screen as the toolkit's own one.
bool PageInput::Pinch(QEvent& event) {
  if (event.type() == QEvent::NativeGesture) {
    const auto& gesture = static_cast<const QNativeGestureEvent&>(event);
    if (gesture.gestureType() != Qt::ZoomNativeGesture) return false;
    view_.SetZoom(view_.Zoom() * (1 + gesture.value()), gesture.position());
    return true;
  }
  const auto* pinch =
      static_cast<QPinchGesture*>(static_cast<QGestureEvent&>(event).gesture(Qt::PinchGesture));
  if (pinch == nullptr) return false;
  view_.SetZoom(view_.Zoom() * pinch->scaleFactor(), view_.viewport()->mapFromGlobal(pinch->centerPoint()));
  return true;
}

bool PageInput::Mouse(const QMouseEvent& event) {
  if (event.type() == QEvent::MouseButtonPress) Press(event);
  if (event.type() == QEvent::MouseMove) Move(event);
  if (event.type() == QEvent::MouseButtonRelease) Release(event);
  if (event.type() == QEvent::MouseButtonDblClick && event.button() == Qt::LeftButton)
    emit DoubleClicked(view_.SpotAt(event.position()));
  return true;
}

void PageInput::Press(const QMouseEvent& event) {
  if (event.button() == Qt::MiddleButton) {
    handAt_ = event.position().toPoint();
    view_.viewport()->setCursor(Qt::ClosedHandCursor);
  } else if (event.button() == Qt::LeftButton) {
    selecting_ = true;
    emit Pressed(view_.SpotAt(event.position()));
  }
}

void PageInput::Move(const QMouseEvent& event) {
  if (handAt_) {
    DragBy(event.position().toPoint() - *handAt_);
    handAt_ = event.position().toPoint();
  } else if (selecting_) {
    // Selecting past an edge scrolls on.
    const double y = event.position().y();
    if (y < 0 || y > view_.viewport()->height()) DragBy({0, y < 0 ? ScrollPastEdge : -ScrollPastEdge});
    emit Dragged(view_.SpotAt(event.position()));
  }
}

void PageInput::Release(const QMouseEvent& event) {
  if (event.button() == Qt::MiddleButton) {
    handAt_.reset();
    view_.viewport()->setCursor(Qt::ArrowCursor);
  }
  if (event.button() == Qt::LeftButton) selecting_ = false;
}

void PageInput::DragBy(QPoint distance) {
  QScrollBar& across = *view_.horizontalScrollBar();
  QScrollBar& down = *view_.verticalScrollBar();
  across.setValue(across.value() - distance.x());
  down.setValue(down.value() - distance.y());
}

}  // namespace tarvis
