// Places on pages and where they are in the view.
#pragma once

#include <QPointF>
#include <QRectF>
#include <vector>

namespace tarvis {

class PageView;

// The place on a page (twips) at a point of the view, also past the page's edges.
QPointF PlaceOnPage(const PageView& view, int page, QPointF point);

// Where a rectangle of a page (twips) is in the view.
QRectF PlaceInView(const PageView& view, int page, const QRectF& box);

// The pages of which something is in sight.
std::vector<int> PagesInSight(const PageView& view);

}  // namespace tarvis
