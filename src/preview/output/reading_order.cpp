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

std::vector<PageLayer> LayersInReadingOrder(const Document& document, std::size_t page) {
  std::vector<PageLayer> layers = PlanPage(document, page);
  PutTextsInReadingOrder(document, page, layers);
  return layers;
}

}  // namespace

void PaintInReadingOrder(const Document& document, std::size_t page, Canvas& canvas) {
  PaintLayers(document, LayersInReadingOrder(document, page), canvas);
}

void PaintWithoutPageTotals(const Document& document, std::size_t page, Canvas& canvas) {
  std::vector<PageLayer> layers = LayersInReadingOrder(document, page);
  for (const std::uint32_t total : PageTotalsOf(document, document.Pages[page])) {
    for (PageLayer& layer : layers) std::erase(layer.Texts, &document.Items[total]);
  }
  PaintLayers(document, layers, canvas);
}

void PaintPageTotals(const Document& document, std::size_t page, Canvas& canvas) {
  for (const std::uint32_t total : PageTotalsOf(document, document.Pages[page])) {
    const Item& item = document.Items[total];
    const TextPiece& piece = document.Texts[item.Source];
    canvas.Text(piece, document.Styles[piece.Style], item.Box);
  }
}

}  // namespace tarvis
