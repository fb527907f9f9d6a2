#include "preview/pages/page_places.h"

#include <QScrollBar>

#include "preview/pages/page_view.h"

namespace tarvis {
namespace {

// The place in the view of the top left corner of a page.
QPointF CornerOf(const PageView& view, int page) {
  const QPointF offset(view.horizontalScrollBar()->value(), view.verticalScrollBar()->value());
  return view.Layout().PageRect(page).topLeft() - offset;
}

}  // namespace

QPointF PlaceOnPage(const PageView& view, int page, QPointF point) {
  return (point - CornerOf(view, page)) / view.Layout().PixelsPerTwip();
}

QRectF PlaceInView(const PageView& view, int page, const QRectF& box) {
  const double scale = view.Layout().PixelsPerTwip();
  return {CornerOf(view, page) + box.topLeft() * scale, box.size() * scale};
}

std::vector<int> PagesInSight(const PageView& view) {
  const double top = view.verticalScrollBar()->value();
  const PageLayout::Range range = view.Layout().PagesBetween(top, top + view.viewport()->height());
  std::vector<int> pages;
  for (int page = range.First; page <= range.Last; ++page) pages.push_back(page);
  return pages;
}

}  // namespace tarvis
