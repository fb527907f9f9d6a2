#include "preview/output/reading_order.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "preview/paint/document_text.h"
#include "preview/paint/page_plan.h"

namespace tarvis {
namespace {

void PutTextsInReadingOrder(const Document& document, std::size_t page, std::vector<PageLayer>& layers) {
  std::vector<std::uint32_t> ranks(document.Pages[page].ItemCount);
  std::uint32_t rank = 0;
  for (const ReadPiece& piece : ReadPage(document, page).Pieces) {
    if (piece.PictureText >= 0) continue;  // pictures paint their own
    ranks[piece.Item - document.Pages[page].FirstItem] = rank++;
  }
  const Item* first = document.Items.data() + document.Pages[page].FirstItem;
  for (PageLayer& layer : layers) {
    std::sort(layer.Texts.begin(), layer.Texts.end(), [&](const Item* a, const Item* b) {
      return ranks[static_cast<std::size_t>(a - first)] < ranks[static_cast<std::size_t>(b - first)];
    });
  }
}

}  // namespace

void PaintInReadingOrder(const Document& document, std::size_t page, Canvas& canvas) {
  std::vector<PageLayer> layers = PlanPage(document, page);
  PutTextsInReadingOrder(document, page, layers);
  PaintLayers(document, layers, canvas);
}

}  // namespace tarvis
