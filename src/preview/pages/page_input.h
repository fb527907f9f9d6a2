// What the user does on the pages by wheel, keys, mouse, touchpad and touch.
#pragma once

#include <QObject>
#include <optional>

#include "preview/pages/page_view.h"

class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace tarvis {

class PageInput : public QObject {
  Q_OBJECT
 public:
  // Handles the input of `view`, which owns it.
  explicit PageInput(PageView& view);

 signals:
  // The left button on the pages, to select text.
  void Pressed(const PageView::Spot& spot);
  void Dragged(const PageView::Spot& spot);
  void DoubleClicked(const PageView::Spot& spot);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Each is true if the event needs no other handling.
  bool Key(const QKeyEvent& event);
  bool Wheel(QWheelEvent& event);
  bool Pinch(QEvent& event);
  bool Mouse(const QMouseEvent& event);

  void ZoomByWheel(const QWheelEvent& event);
  bool TurnByWheel(int angle);
  void Press(const QMouseEvent& event);
  void Move(const QMouseEvent& event);
  void Release(const QMouseEvent& event);
  void DragBy(QPoint distance);

  PageView& view_;
  std::optional<QPoint> handAt_;  // where the hand holds the page
  bool selecting_ = false;
  // What fine wheels and touchpads have turned, in eighths of a degree: towards the next zoom step, and past
  // the end of a single page towards the next one.
  int zoomAngle_ = 0;
  int turnAngle_ = 0;
};

}  // namespace tarvis
