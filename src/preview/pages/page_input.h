// What the user does on the pages by wheel, keys, mouse and touchpad; PageTouch adds what fingers do.
#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <functional>
#include <optional>
#include <utility>

#include "preview/pages/page_view.h"

class QKeyEvent;
class QMouseEvent;
class QNativeGestureEvent;
class QWheelEvent;

namespace tarvis {

class PageInput : public QObject {
  Q_OBJECT
 public:
  // Handles the input of `view`, which owns it.
  explicit PageInput(PageView& view);

  // Where the left button selects text; elsewhere it drags the page.
  void SetTextTest(std::function<bool(const PageView::Spot& spot)> isText) { isText_ = std::move(isText); }

 signals:
  // The left button on the pages, to select text.
  void Pressed(const PageView::Spot& spot);
  void Dragged(const PageView::Spot& spot);
  void DoubleClicked(const PageView::Spot& spot);
  void TripleClicked(const PageView::Spot& spot);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  // Each is true if the event needs no other handling.
  bool Key(const QKeyEvent& event);
  bool Wheel(QWheelEvent& event);
  bool Pinch(const QNativeGestureEvent& event);
  bool Mouse(const QMouseEvent& event);

  void ZoomByWheel(const QWheelEvent& event);
  bool TurnByWheel(int angle);
  void Press(const QMouseEvent& event);
  void Move(const QMouseEvent& event);
  void Release(const QMouseEvent& event);
  bool IsThirdClick(const QMouseEvent& event) const;
  // How far the mouse is outside of the view; null inside.
  QPoint PastEdge() const;
  void ShowCursor(QPointF at);
  void DragBy(QPoint distance);

  PageView& view_;
  std::function<bool(const PageView::Spot&)> isText_ = [](const PageView::Spot&) { return true; };
  std::optional<QPoint> handAt_;  // where the hand holds the page
  bool selecting_ = false;
  QPointF selectedTo_;      // where the mouse is while it selects
  QBasicTimer edgeScroll_;  // runs while the mouse selects outside of the view
  QPointF doubleClickAt_;
  QElapsedTimer sinceDoubleClick_;  // invalid before the first one
  // What fine wheels and touchpads have turned, in eighths of a degree: towards the next zoom step, and past
  // the end of a single page towards the next one.
  int zoomAngle_ = 0;
  int turnAngle_ = 0;
};

}  // namespace tarvis
