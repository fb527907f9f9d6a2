#include "preview/pages/page_steps.h"

#include <QScrollBar>
#include <algorithm>
#include <array>

#include "preview/pages/page_places.h"
#include "preview/pages/page_view.h"

namespace tarvis {
namespace {

constexpr std::array ZoomSteps{0.1,  0.125, 0.25, 0.33, 0.5, 0.67, 0.75, 0.9, 1.0, 1.1,
                               1.25, 1.5,   1.75, 2.0,  2.5, 3.0,  4.0,  5.0, 6.0, 8.0};

// In single-page view, what would scroll past an end turns the page.
void ScrollDown(PageView& view, int direction, int distance) {
  QScrollBar& bar = *view.verticalScrollBar();
  if (bar.value() == (direction > 0 ? bar.maximum() : 0) && TurnPage(view, direction)) return;
  bar.setValue(bar.value() + direction * distance);
}

}  // namespace

bool TurnPage(PageView& view, int direction) {
  if (view.Layout().Continuous()) return false;
  const int columns = view.Layout().ColumnCount();
  const int next = view.Layout().SinglePage() / columns * columns + direction * columns;
  if (next < 0 || next >= view.Layout().PageCount()) return false;
  view.GoTo({next, 0});
  QScrollBar& bar = *view.verticalScrollBar();
  if (direction < 0) bar.setValue(bar.maximum());
  return true;
}

void ScrollLine(PageView& view, int direction) {
  ScrollDown(view, direction, view.verticalScrollBar()->singleStep());
}

void ScrollScreen(PageView& view, int direction) {
  const QScrollBar& bar = *view.verticalScrollBar();
  ScrollDown(view, direction, std::max(bar.singleStep(), bar.pageStep() - bar.singleStep()));
}

void ScrollPages(PageView& view, int count) {
  view.GoTo({view.CurrentPage() + count * view.Layout().ColumnCount(), 0});
}

void ScrollAcross(PageView& view, int direction) {
  QScrollBar& bar = *view.horizontalScrollBar();
  if (bar.maximum() == 0) {
    ScrollPages(view, direction);
  } else {
    bar.setValue(bar.value() + direction * bar.singleStep());
  }
}

void GoToStart(PageView& view) {
  view.GoTo({0, 0});
}

void GoToEnd(PageView& view) {
  if (view.Layout().PageCount() == 0) return;
  view.GoTo({view.Layout().PageCount() - 1, 0});
  view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
}

void ZoomStep(PageView& view, int direction, std::optional<QPointF> anchor) {
  constexpr double Same = 1e-3;
  if (direction > 0) {
    const auto next = std::upper_bound(ZoomSteps.begin(), ZoomSteps.end(), view.Layout().Zoom() + Same);
    if (next != ZoomSteps.end()) view.SetZoom(*next, anchor);
  } else {
    const auto next = std::lower_bound(ZoomSteps.begin(), ZoomSteps.end(), view.Layout().Zoom() - Same);
    if (next != ZoomSteps.begin()) view.SetZoom(*std::prev(next), anchor);
  }
}

void ZoomTo(PageView& view, int page, const QRectF& box) {
  const QRectF seen(view.viewport()->rect());
  const double pixelsPerTwip = std::min(seen.width() / box.width(), seen.height() / box.height());
  view.GoTo({page, box.top()});
  view.SetZoom(pixelsPerTwip * TwipsPerScreenPixel);
  const QPoint past = (PlaceInView(view, page, box).center() - seen.center()).toPoint();
  view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->value() + past.x());
  view.verticalScrollBar()->setValue(view.verticalScrollBar()->value() + past.y());
}

}  // namespace tarvis
