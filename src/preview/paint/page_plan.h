// In which order the items of a page are painted.
//
// Items paint in layout order with opaque fills. Painting many items of the same look in one call is far
// cheaper, so a page is split into layers: within a layer, all fills come first, then pictures, borders,
// lines and texts. A fill or picture that would cover something painted before it starts a new layer, so the
// result looks as if painted in layout order.
#pragma once

#include <vector>

#include "report/engine/document.h"

namespace tarvis {

struct PageLayer {
  std::vector<const Item*> Fills;  // boxes, in layout order
  std::vector<const Item*> Pictures;
  std::vector<const Item*> Borders;  // boxes
  std::vector<const Item*> Lines;
  std::vector<const Item*> Ticks;
  std::vector<const Item*> Texts;
};

// The layers of page `page`, valid as long as the document.
[[nodiscard]] std::vector<PageLayer> PlanPage(const Document& document, std::size_t page);

}  // namespace tarvis
