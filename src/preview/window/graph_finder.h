// Which graph of the pages a command is about.
#pragma once

#include <optional>

#include "preview/output/graph_forms.h"
#include "preview/pages/page_view.h"

namespace tarvis {

// The graph at a place of a page; none where there is no picture but the band of a title.
[[nodiscard]] std::optional<PlacedGraph> GraphAt(const Document& document, const PageView::Spot& spot);

// The graph of which the most is in sight.
[[nodiscard]] std::optional<PlacedGraph> GraphInSight(const Document& document, const PageView& view);

}  // namespace tarvis
