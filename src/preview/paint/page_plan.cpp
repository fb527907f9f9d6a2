#include "preview/paint/page_plan.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>

#include "preview/paint/page_items.h"

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

// What the current layer has painted. A fill below all earlier bands, as in a table, is compared with those
// of its own band only; any other one with those at its height on the page.
class PaintedPlaces {
 public:
  explicit PaintedPlaces(float pageHeight) : slice_(std::max(pageHeight, 1.0F) / SliceCount) {}

  void Clear() {
    items_.clear();
    ofBand_ = 0;
    lowest_ = earlier_ = std::numeric_limits<float>::lowest();
    inSlices_ = 0;
    for (std::vector<const Item*>& slice : slices_) slice.clear();
  }
  void Add(const Item& item) {
    BeginBandOf(item);
    items_.push_back(&item);
    lowest_ = std::max(lowest_, std::max(item.Box.Top, item.Box.Bottom()) + LineRoom);
  }
  bool WouldCover(const Item& cover) {
    const Rect inner = Shrunk(cover.Box, cover.Kind == ItemKind::Box ? SharedEdge : 0);
    if (inner.Width <= 0 || inner.Height <= 0) return false;
    BeginBandOf(cover);
    const auto hides = [&](const Item* item) { return Hides(inner, *item); };
    if (inner.Top >= earlier_) return std::any_of(items_.begin() + ofBand_, items_.end(), hides);
    FillSlices();
    return std::any_of(slices_.begin() + First(inner), slices_.begin() + Last(inner) + 1,
                       [&](const auto& slice) { return std::ranges::any_of(slice, hides); });
  }

 private:
  static constexpr std::ptrdiff_t SliceCount = 64;
  static constexpr float LineRoom = 1;  // so thick is a line at least

  void BeginBandOf(const Item& item) {
    if (item.Band == band_) return;
    band_ = item.Band;
    ofBand_ = std::ssize(items_);
    earlier_ = lowest_;
  }
  void FillSlices() {
    for (; inSlices_ < items_.size(); ++inSlices_) {
      const Item* item = items_[inSlices_];
      for (std::ptrdiff_t index = First(item->Box); index <= Last(item->Box); ++index)
        slices_[static_cast<std::size_t>(index)].push_back(item);
    }
  }

  static bool Hides(const Rect& inner, const Item& item) {
    if (item.Kind == ItemKind::Line) {
      const float left = std::min(item.Box.Left, item.Box.Right());
      const float top = std::min(item.Box.Top, item.Box.Bottom());
      return Overlaps(inner,
                      {left, top, std::abs(item.Box.Width) + LineRoom, std::abs(item.Box.Height) + LineRoom});
    }
    if (!Overlaps(inner, item.Box)) return false;
    // Inside a frame there is nothing of it to hide.
    return item.Kind != ItemKind::Box || !Contains(item.Box, inner);
  }
  std::ptrdiff_t Slice(float y) const {
    return static_cast<std::ptrdiff_t>(std::clamp(y / slice_, 0.0F, static_cast<float>(SliceCount - 1)));
  }
  std::ptrdiff_t First(const Rect& box) const { return Slice(std::min(box.Top, box.Bottom())); }
  std::ptrdiff_t Last(const Rect& box) const { return Slice(std::max(box.Top, box.Bottom())); }

  float slice_;
  std::vector<const Item*> items_;
  std::uint32_t band_ = 0;
  std::ptrdiff_t ofBand_ = 0;                             // the first item of the band
  float lowest_ = std::numeric_limits<float>::lowest();   // edge of all items
  float earlier_ = std::numeric_limits<float>::lowest();  // the same of those before the band
  std::size_t inSlices_ = 0;                              // so many items are in slices
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
  for (const Item& item : ItemsOf(document, page)) {
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
