// The one painter of pages, for screen, paper and PDF: it walks a page's layers and passes items of the same
// look to a canvas together. All places are in twips from the top left corner of the paper.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "preview/paint/page_plan.h"
#include "report/engine/document.h"

namespace tarvis {

// Where pages are painted to.
class Canvas {
 public:
  virtual ~Canvas() = default;

  virtual void Fill(const std::vector<Rect>& boxes, Color color) = 0;
  // Outlines of boxes, `width` twips wide, centred on the edges.
  virtual void Frame(const std::vector<Rect>& boxes, float width) = 0;
  // Each from (Left, Top) to (Right, Bottom), `width` twips wide.
  virtual void Strokes(const std::vector<Rect>& lines, float width) = 0;
  virtual void Text(const TextPiece& piece, const TextStyle& style, const Rect& box) = 0;
  virtual void Picture(const tarvis::Picture& picture, const Rect& box) = 0;

  // What is painted between the two shows this item: a picture, a tick or a text. All else is decoration.
  virtual void BeginItem(const Item& /*item*/) {}
  virtual void EndItem() {}
};

void PaintPage(const Document& document, std::size_t page, Canvas& canvas);
// The same for layers that PlanPage has made, in the order in which they now are.
void PaintLayers(const Document& document, const std::vector<PageLayer>& layers, Canvas& canvas);

// How a piece of text is fitted to the printed width of its item.
struct TextFit {
  float Stretch = 1;     // below 1: condensed sideways, to 0.5 at most
  bool Clipped = false;  // wider than its box even then
};
[[nodiscard]] TextFit FitText(const TextPiece& piece, const Rect& box);

// Where the baseline of a piece is, in twips below the top of the paper. Ideographs reach higher and less
// deep than Latin letters: their lines are lowered a little, so that they keep clear of the border above
// them.
double BaselineOf(const TextPiece& piece, const TextStyle& style, const Rect& box);

// What may be painted of a piece in its item's box, with room for letters that reach above or below their
// line; none if it is to be painted whole.
[[nodiscard]] std::optional<Rect> ClipOfText(const TextFit& fit, const TextStyle& style, const Rect& box);

}  // namespace tarvis
