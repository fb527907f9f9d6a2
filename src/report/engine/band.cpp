#include "report/engine/band.h"

#include <algorithm>

namespace tarvis {
namespace {

bool CanBeCut(const Item& item) {
  return item.Kind == ItemKind::Box || item.Kind == ItemKind::Line;
}

// The lowest cut at or above `available` that crosses nothing that must stay whole.
float CutPlace(const Band& band, float available) {
  float cut = available;
  for (bool moved = true; moved;) {
    moved = false;
    for (const Item& item : band.Items) {
      if (!CanBeCut(item) && item.Box.Top < cut && item.Box.Bottom() > cut) {
        cut = item.Box.Top;
        moved = true;
      }
    }
  }
  return std::max(cut, 0.0F);
}

}  // namespace

Band CutBand(Band& band, float available) {
  const float cut = CutPlace(band, available);
  Band first;
  first.IsHeader = band.IsHeader;
  first.Height = cut;
  first.Landing = band.Landing;
  first.Group = band.Group;
  if (cut <= 0) return first;
  std::vector<Item> rest;
  for (Item item : band.Items) {
    const Rect whole = item.Box;
    if (whole.Top < cut) {
      item.Box.Height = std::min(whole.Bottom(), cut) - whole.Top;
      first.Items.push_back(item);
    }
    if (whole.Bottom() > cut || (whole.Top >= cut && whole.Height == 0)) {
      item.Box.Top = std::max(whole.Top - cut, 0.0F);
      item.Box.Height = whole.Bottom() - std::max(whole.Top, cut);
      rest.push_back(item);
    }
  }
  band.Items = std::move(rest);
  band.Height -= cut;
  band.Landing = -1;
  return first;
}

void ShrinkPictures(Band& band, float available) {
  for (Item& item : band.Items) {
    if (CanBeCut(item) || item.Box.Bottom() <= available || item.Box.Height <= 0) continue;
    const float room = std::max(available - item.Box.Top, 1.0F);
    const float scale = std::min(room / item.Box.Height, 1.0F);
    item.Box.Width *= scale;
    item.Box.Height *= scale;
  }
  band.Height = std::min(band.Height, available);
}

}  // namespace tarvis
