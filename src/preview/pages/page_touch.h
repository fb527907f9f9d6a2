// Fingers on the pages: a drag scrolls and goes on for a while, two fingers zoom, a tap ends the selection,
// and a finger that rests selects text.
#pragma once

#include <QObject>

#include "preview/pages/page_view.h"

class QGestureEvent;
class QTouchEvent;

namespace tarvis {

class PageTouch : public QObject {
  Q_OBJECT
 public:
  // Handles touch on `view`, which owns it.
  explicit PageTouch(PageView& view);

 signals:
  void Tapped(const PageView::Spot& spot);
  // A finger has rested long enough to select what is below it, and then moves on.
  void Held(const PageView::Spot& spot);
  void Dragged(const PageView::Spot& spot);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Gesture(QGestureEvent& event);
  void Touch(const QTouchEvent& event);

  PageView& view_;
  // What the fingers that are down do. The mouse makes gestures, too, which count for nothing here.
  enum class Use { None, Tap, Scroll, Zoom, Select };
  Use use_ = Use::None;
  QPointF start_;
};

}  // namespace tarvis
