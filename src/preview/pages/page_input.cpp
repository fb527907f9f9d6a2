#include "preview/pages/page_input.h"

#include <QApplication>
#include <QKeyEvent>
#include <QNativeGestureEvent>
#include <QScrollBar>
#include <QStyleHints>
#include <QTimerEvent>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "preview/pages/page_steps.h"
#include "preview/pages/page_touch.h"
#include "preview/paint/toolkit_geometry.h"

namespace tarvis {
namespace {

constexpr int NotchAngle = 120;         // of a wheel, in eighths of a degree
constexpr int EdgeScrollInterval = 30;  // milliseconds
constexpr int SlowestEdgeScroll = 4;    // logical pixels each time
constexpr int FastestEdgeScroll = 80;

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
  view.viewport()->setMouseTracking(true);
  view.installEventFilter(this);
  view.viewport()->installEventFilter(this);
  const auto* touch = new PageTouch(view);
  connect(touch, &PageTouch::Tapped, this, &PageInput::Pressed);
  connect(touch, &PageTouch::Held, this, &PageInput::DoubleClicked);
  connect(touch, &PageTouch::Dragged, this, &PageInput::Dragged);
}

bool PageInput::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &view_) return event->type() == QEvent::KeyPress && Key(static_cast<QKeyEvent&>(*event));
  switch (event->type()) {
    case QEvent::Wheel:
      return Wheel(static_cast<QWheelEvent&>(*event));
    case QEvent::NativeGesture:
      return Pinch(static_cast<QNativeGestureEvent&>(*event));
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

// Two fingers on a touchpad; those on a touch screen are the matter of PageTouch.
bool PageInput::Pinch(const QNativeGestureEvent& event) {
  if (event.gestureType() != Qt::ZoomNativeGesture) return false;
  view_.SetZoom(view_.Layout().Zoom() * (1 + event.value()), event.position());
  return true;
}

bool PageInput::Mouse(const QMouseEvent& event) {
  if (event.type() == QEvent::MouseButtonPress) Press(event);
  if (event.type() == QEvent::MouseMove) Move(event);
  if (event.type() == QEvent::MouseButtonRelease) Release(event);
  if (event.type() == QEvent::MouseButtonDblClick && event.button() == Qt::LeftButton) {
    doubleClickAt_ = event.position();
    sinceDoubleClick_.start();
    emit DoubleClicked(view_.SpotAt(event.position()));
  }
  return true;
}

void PageInput::Press(const QMouseEvent& event) {
  const PageView::Spot spot = view_.SpotAt(event.position());
  if (IsThirdClick(event)) {
    sinceDoubleClick_.invalidate();
    return emit TripleClicked(spot);
  }
  if (event.button() == Qt::LeftButton) {
    selecting_ = isText_(spot);
    emit Pressed(spot);
  }
  if (event.button() == Qt::MiddleButton || (event.button() == Qt::LeftButton && !selecting_)) {
    handAt_ = event.position().toPoint();
    view_.viewport()->setCursor(Qt::ClosedHandCursor);
  }
}

// The toolkit has no event for it.
bool PageInput::IsThirdClick(const QMouseEvent& event) const {
  return event.button() == Qt::LeftButton && sinceDoubleClick_.isValid() &&
         !sinceDoubleClick_.hasExpired(QGuiApplication::styleHints()->mouseDoubleClickInterval()) &&
         (event.position() - doubleClickAt_).manhattanLength() < QApplication::startDragDistance();
}

QPoint PageInput::PastEdge() const {
  const auto past = [](double at, int length) {
    return at < 0 ? PixelBefore(at) : PixelAfter(std::max(0.0, at - length));
  };
  const QSize size = view_.viewport()->size();
  return {past(selectedTo_.x(), size.width()), past(selectedTo_.y(), size.height())};
}

// Selecting past an edge scrolls on as long as the mouse stays there, the faster the farther it is away.
void PageInput::timerEvent(QTimerEvent* event) {
  if (event->timerId() != edgeScroll_.timerId()) return QObject::timerEvent(event);
  const auto step = [](int past) {
    const int distance = std::clamp(std::abs(past) / 2, SlowestEdgeScroll, FastestEdgeScroll);
    return past == 0 ? 0 : past < 0 ? -distance : distance;
  };
  const QPoint past = PastEdge();
  DragBy({-step(past.x()), -step(past.y())});
  emit Dragged(view_.SpotAt(selectedTo_));
}

void PageInput::Move(const QMouseEvent& event) {
  if (handAt_) {
    DragBy(event.position().toPoint() - *handAt_);
    handAt_ = event.position().toPoint();
  } else if (selecting_) {
    selectedTo_ = event.position();
    if (PastEdge().isNull()) {
      edgeScroll_.stop();
    } else if (!edgeScroll_.isActive()) {
      edgeScroll_.start(EdgeScrollInterval, this);
    }
    emit Dragged(view_.SpotAt(event.position()));
  } else {
    ShowCursor(event.position());
  }
}

void PageInput::ShowCursor(QPointF at) {
  view_.viewport()->setCursor(isText_(view_.SpotAt(at)) ? Qt::IBeamCursor : Qt::OpenHandCursor);
}

void PageInput::Release(const QMouseEvent& event) {
  if (event.button() != Qt::MiddleButton && event.button() != Qt::LeftButton) return;
  handAt_.reset();
  selecting_ = false;
  edgeScroll_.stop();
  ShowCursor(event.position());
}

void PageInput::DragBy(QPoint distance) {
  QScrollBar& across = *view_.horizontalScrollBar();
  QScrollBar& down = *view_.verticalScrollBar();
  across.setValue(across.value() - distance.x());
  down.setValue(down.value() - distance.y());
}

}  // namespace tarvis
