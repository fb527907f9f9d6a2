#include "preview/paint/page_plan.h"

#include <algorithm>
#include <array>
#include <cassert>

namespace tarvis {
namespace {

// A fill may touch its neighbour's border, which both paint in the same place.
constexpr float SharedEdge = LineWeightUnit;

bool Overlaps(const Rect& a, const Rect& b) {
  return a.Left < b.Right() && b.Left < a.Right() && a.Top < b.Bottom() && b.Top < a.Bottom();
}

bool Contains(const Rect& outer, const Rect& inner) {
  return outer.Left <= inner.Left && outer.Top <= inner.Top && outer.Right() >= inner.Right() &&
         outer.Bottom() >= inner.Bottom();
}

Rect Shrunk(const Rect& box, float by) {
  return {box.Left + by, box.Top + by, box.Width - 2 * by, box.Height - 2 * by};
}

// What the current layer has painted, by height on the page, so that a fill is compared with its neighbours
// only.
class PaintedPlaces {
 public:
  explicit PaintedPlaces(float pageHeight) : slice_(std::max(pageHeight, 1.0F) / SliceCount) {}

  void Clear() {
    for (std::vector<const Item*>& slice : slices_) slice.clear();
  }
  void Add(const Item& item) {
    for (std::size_t index = First(item.Box); index <= Last(item.Box); ++index)
      slices_[index].push_back(&item);
  }
  bool WouldCover(const Item& cover) const {
    const Rect inner = Shrunk(cover.Box, cover.Kind == ItemKind::Box ? SharedEdge : 0);
    if (inner.Width <= 0 || inner.Height <= 0) return false;
    for (std::size_t index = First(inner); index <= Last(inner); ++index) {
      for (const Item* item : slices_[index]) {
        if (Hides(inner, *item)) return true;
      }
    }
    return false;
  }

 private:
  static constexpr std::size_t SliceCount = 64;

  static bool Hides(const Rect& inner, const Item& item) {
    if (item.Kind == ItemKind::Line) {
      const float left = std::min(item.Box.Left, item.Box.Right());
      const float top = std::min(item.Box.Top, item.Box.Bottom());
      return Overlaps(inner, {left, top, std::abs(item.Box.Width) + 1, std::abs(item.Box.Height) + 1});
    }
    if (!Overlaps(inner, item.Box)) return false;
    // Inside a frame there is nothing of it to hide.
    return item.Kind != ItemKind::Box || !Contains(item.Box, inner);
  }
  std::size_t Slice(float y) const {
    return static_cast<std::size_t>(std::clamp(y / slice_, 0.0F, static_cast<float>(SliceCount - 1)));
  }
  std::size_t First(const Rect& box) const { return Slice(std::min(box.Top, box.Bottom())); }
  std::size_t Last(const Rect& box) const { return Slice(std::max(box.Top, box.Bottom())); }

  float slice_;
  std::array<std::vector<const Item*>, SliceCount> slices_;
};

bool IsOpaque(const Item& item) {
  return (item.Kind == ItemKind::Box && item.Filled) || item.Kind == ItemKind::Picture ||
         item.Kind == ItemKind::Tick;
}

// Whether a later fill in the same layer would come too early for it.
bool CanBeCovered(const Item& item) {
  return item.Kind != ItemKind::Box || item.Weight > 0;
}

void AddTo(PageLayer& layer, const Item& item) {
  switch (item.Kind) {
    case ItemKind::Text:
      layer.Texts.push_back(&item);
      break;
    case ItemKind::Box:
      if (item.Filled) layer.Fills.push_back(&item);
      if (item.Weight > 0) layer.Borders.push_back(&item);
      break;
    case ItemKind::Line:
      layer.Lines.push_back(&item);
      break;
    case ItemKind::Picture:
      layer.Pictures.push_back(&item);
      break;
    case ItemKind::Tick:
      layer.Ticks.push_back(&item);
      break;
  }
}

}  // namespace

std::vector<PageLayer> PlanPage(const Document& document, std::size_t page) {
  std::vector<PageLayer> layers(1);
  PaintedPlaces painted(document.Setup.Height);
  assert(page < document.Pages.size());
  const Page& range = document.Pages[page];
  for (std::uint32_t index = range.FirstItem; index < range.FirstItem + range.ItemCount; ++index) {
    const Item& item = document.Items[index];
    if (IsOpaque(item) && painted.WouldCover(item)) {
      layers.emplace_back();
      painted.Clear();
    }
    AddTo(layers.back(), item);
    if (CanBeCovered(item)) painted.Add(item);
  }
  return layers;
}

}  // namespace tarvis
