// Steps through the pages of a view, as keys, wheel and toolbar ask for them. A `direction` is 1 for onwards
// and -1 for back.
#pragma once

#include <QPointF>
#include <QRectF>
#include <optional>

namespace tarvis {

class PageView;

void ScrollLine(PageView& view, int direction);
// By the height of the view, less one line that stays in sight.
void ScrollScreen(PageView& view, int direction);
// By `count` rows of pages, back if it is negative.
void ScrollPages(PageView& view, int count);
// To the side; where there is nothing to scroll, by a row of pages.
void ScrollAcross(PageView& view, int direction);
void GoToStart(PageView& view);
void GoToEnd(PageView& view);

// Turns the page of a single-page view, or its row of pages. False where pages are continuous, and after the
// last page.
[[nodiscard]] bool TurnPage(PageView& view, int direction);

// To the next larger or smaller zoom step, around `anchor` as in PageView::SetZoom.
void ZoomStep(PageView& view, int direction, std::optional<QPointF> anchor = {});

// To a size in which `box` (twips) of a page fills the view.
void ZoomTo(PageView& view, int page, const QRectF& box);

}  // namespace tarvis
