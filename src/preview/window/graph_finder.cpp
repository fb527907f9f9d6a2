#include "preview/window/graph_finder.h"

#include "preview/pages/page_places.h"
#include "preview/paint/page_items.h"
#include "preview/paint/toolkit_geometry.h"

namespace tarvis {
namespace {

// The band of a title is a picture, too, and 21 times as wide as high.
constexpr float WidestGraph = 10;

bool IsGraph(const Document& document, const Item& item) {
  return item.Kind == ItemKind::Picture && document.Pictures[item.Source] != nullptr &&
         item.Box.Width < WidestGraph * item.Box.Height;
}

}  // namespace

std::optional<PlacedGraph> GraphAt(const Document& document, const PageView::Spot& spot) {
  if (spot.Page < 0) return {};
  for (const Item& item : ItemsOf(document, static_cast<std::size_t>(spot.Page))) {
    if (IsGraph(document, item) && ToRectF(item.Box).contains(spot.Point))
      return PlacedGraph{spot.Page, &item};
  }
  return {};
}

std::optional<PlacedGraph> GraphInSight(const Document& document, const PageView& view) {
  const QRectF seen(view.viewport()->rect());
  std::optional<PlacedGraph> best;
  double largest = 0;
  for (const int page : PagesInSight(view)) {
    for (const Item& item : ItemsOf(document, static_cast<std::size_t>(page))) {
      if (!IsGraph(document, item)) continue;
      const QRectF part = PlaceInView(view, page, ToRectF(item.Box)) & seen;
      if (part.width() * part.height() <= largest) continue;
      largest = part.width() * part.height();
      best = {page, &item};
    }
  }
  return best;
}

}  // namespace tarvis
