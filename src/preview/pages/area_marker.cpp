#include "preview/pages/area_marker.h"

#include <QApplication>
#include <QMouseEvent>

#include "preview/pages/page_input.h"
#include "preview/pages/page_places.h"
#include "preview/pages/page_view.h"

namespace tarvis {

AreaMarker::AreaMarker(PageView& view, PageInput& input, QObject* parent) : QObject(parent), view_(view) {
  setObjectName(QStringLiteral("areaMarker"));
  view.viewport()->installEventFilter(this);  // the filter that was installed last is asked first
  connect(&input, &PageInput::Pressed, this, &AreaMarker::Clear);
}

void AreaMarker::Start() {
  waiting_ = true;
  view_.viewport()->setCursor(Qt::CrossCursor);
  emit Changed();
}

void AreaMarker::Stop() {
  if (!IsMarking()) return;
  if (start_) area_.reset();
  start_.reset();
  waiting_ = false;
  view_.viewport()->unsetCursor();
  emit Changed();
}

void AreaMarker::Clear() {
  if (!area_) return;
  area_.reset();
  emit Changed();
}

bool AreaMarker::eventFilter(QObject* /*watched*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      return Press(static_cast<const QMouseEvent&>(*event));
    case QEvent::MouseMove:
      return Move(static_cast<const QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease:
      return Release(static_cast<const QMouseEvent&>(*event));
    default:
      return false;
  }
}

bool AreaMarker::Press(const QMouseEvent& event) {
  const bool marks = waiting_ || event.modifiers().testFlag(Qt::ControlModifier);
  if (event.button() != Qt::LeftButton || !marks) return false;
  const PageView::Spot spot = view_.SpotAt(event.position());
  if (spot.Page < 0) return false;
  start_ = {spot.Page, spot.Point, event.position()};
  area_.reset();
  emit Changed();
  return true;
}

// An area ends at the edge of the page on which it has begun.
bool AreaMarker::Move(const QMouseEvent& event) {
  if (!start_) return waiting_;
  if ((event.position() - start_->InView).manhattanLength() < QApplication::startDragDistance()) return true;
  const QRectF page({}, view_.Layout().PageSize() / view_.Layout().PixelsPerTwip());
  const QRectF box =
      QRectF(start_->Point, PlaceOnPage(view_, start_->Page, event.position())).normalized() & page;
  area_.reset();
  if (!box.isEmpty()) area_ = {start_->Page, box};
  emit Changed();
  return true;
}

bool AreaMarker::Release(const QMouseEvent& event) {
  if (!start_ || event.button() != Qt::LeftButton) return false;
  start_.reset();
  Stop();
  return true;
}

}  // namespace tarvis
