#include "report/engine/band_cut.h"

#include <algorithm>
#include <set>
#include <utility>

namespace tarvis {
namespace {

// Edges that are closer to each other (twips) are the same edge.
constexpr float SameEdge = 1;
// A line of text that ends less than this (twips) above a picture is its caption.
constexpr float CaptionDistance = 400;

bool StaysWhole(const Item& item) {
  return item.Kind != ItemKind::Box && item.Kind != ItemKind::Line;
}

bool EndsWithin(const Item& item, float room) {
  return item.Box.Bottom() <= room + SameEdge;
}

bool Crosses(const Item& item, float room) {
  return item.Box.Top < room && !EndsWithin(item, room);
}

bool IsPicture(const Item& item) {
  return item.Kind == ItemKind::Picture;
}

bool LiesOn(const Rect& picture, const Rect& box) {
  return box.Left >= picture.Left - SameEdge && box.Left < picture.Right() &&
         box.Top >= picture.Top - SameEdge && box.Top < picture.Bottom() - SameEdge;
}

bool IsCaptionOf(const Rect& picture, const Item& item) {
  const float distance = picture.Top - item.Box.Bottom();
  return item.Kind == ItemKind::Text && distance >= -SameEdge && distance < CaptionDistance;
}

// What lies above `room` twips and stays there. What lies on a picture, and the line of text right above it,
// go where the picture goes.
class StayingItems {
 public:
  StayingItems(const Band& band, float room) : room_(room) {
    for (const Item& item : band.Items) {
      if (IsPicture(item) && Crosses(item, room)) moved_.push_back(item.Box);
    }
  }
  bool MovesWithPicture(const Item& item) const {
    return std::any_of(moved_.begin(), moved_.end(), [&](const Rect& picture) {
      return LiesOn(picture, item.Box) || IsCaptionOf(picture, item);
    });
  }
  bool Has(const Item& item) const { return EndsWithin(item, room_) && !MovesWithPicture(item); }

 private:
  float room_;
  std::vector<Rect> moved_;  // pictures
};

// Where a band is cut, and what of it goes to which side.
class Cutting {
 public:
  Cutting(const Band& band, float room) : room_(room), start_(room), staying_(band, room) {
    for (const Item& item : band.Items) {
      if (!StaysWhole(item)) continue;
      if (staying_.Has(item)) above_.insert(item.Control);
      if (Crosses(item, room)) moved_.insert(item.Control);
    }
    FindStart(band);
  }

  // Where the rest begins, in twips below the top of the band.
  float Start() const { return start_; }

  void Place(Item item, std::vector<Item>& first, std::vector<Item>& rest) const {
    if (staying_.Has(item)) {
      first.push_back(item);
      return;
    }
    if (!MovesOn(item)) {
      Item part = item;
      part.Box.Height = room_ - item.Box.Top;
      part.OpenBottom = true;
      first.push_back(part);
      item.OpenTop = true;
      item.Box = {item.Box.Left, start_, item.Box.Width, item.Box.Bottom() - start_};
    }
    item.Box.Top -= start_;
    rest.push_back(item);
  }

 private:
  // At the highest of what must move, at the cut if only frames cross it, and at the first thing below it if
  // nothing does.
  void FindStart(const Band& band) {
    float below = band.Height;
    bool isCrossed = false;
    for (const Item& item : band.Items) {
      if (item.Box.Top >= room_) below = std::min(below, item.Box.Top);
      const bool crosses = Crosses(item, room_);
      isCrossed = isCrossed || crosses;
      const bool movesWhole = crosses && (StaysWhole(item) || IsFrameOfMoved(item));
      if (movesWhole || staying_.MovesWithPicture(item)) start_ = std::min(start_, item.Box.Top);
    }
    if (!isCrossed) start_ = below;
  }
  // The box of a control none of whose lines stays.
  bool IsFrameOfMoved(const Item& item) const {
    return moved_.count(item.Control) > 0 && above_.count(item.Control) == 0;
  }
  // A frame is cut if something in it stays, or if it begins above all that moves.
  bool MovesOn(const Item& item) const {
    if (StaysWhole(item) || item.Box.Top >= room_ || staying_.MovesWithPicture(item)) return true;
    return item.Box.Top >= start_ && above_.count(item.Control) == 0;
  }

  float room_;
  float start_;
  StayingItems staying_;
  std::set<std::uint16_t> above_;  // controls with something whole above the cut
  std::set<std::uint16_t> moved_;  // controls with something whole that crosses it
};

const Item* HighestCrossingPicture(const Band& band, float room) {
  const Item* highest = nullptr;
  for (const Item& item : band.Items) {
    if (!IsPicture(item) || !Crosses(item, room)) continue;
    if (highest == nullptr || item.Box.Top < highest->Box.Top) highest = &item;
  }
  return highest;
}

bool HasPictureAbove(const Band& band, const Rect& box) {
  return std::any_of(band.Items.begin(), band.Items.end(), [&](const Item& item) {
    return IsPicture(item) && item.Box.Bottom() <= box.Top + SameEdge;
  });
}

bool RatherMoves(const Band& band, const Rect& picture, float room, float freshRoom) {
  if (picture.Height <= freshRoom && HasPictureAbove(band, picture)) return true;
  const bool canMove = room < freshRoom || HasWholeAbove(band, room);
  return canMove && room - picture.Top < picture.Height / 2;
}

void Scale(Item& item, const Rect& about, float scale, Document& document) {
  item.Box = {about.Left + (item.Box.Left - about.Left) * scale,
              about.Top + (item.Box.Top - about.Top) * scale, item.Box.Width * scale,
              item.Box.Height * scale};
  if (item.Kind != ItemKind::Text) return;
  TextPiece piece = document.Texts[item.Source];
  TextStyle style = document.Styles[piece.Style];
  style.Size *= scale;
  piece.Style = StyleIndex(document, style);
  piece.Advance *= scale;
  item.Source = static_cast<std::uint32_t>(document.Texts.size());
  document.Texts.push_back(piece);
}

// Its place is handed in as a copy, since it changes with the band.
void ShrinkPicture(Band& band, Rect picture, float height, Document& document) {
  const float scale = height / picture.Height;
  const float lost = picture.Height - height;
  for (Item& item : band.Items) {
    if (LiesOn(picture, item.Box)) {
      Scale(item, picture, scale, document);
    } else if (item.Box.Top >= picture.Bottom() - SameEdge) {
      item.Box.Top -= lost;
    } else if (!StaysWhole(item) && item.Box.Bottom() >= picture.Bottom()) {
      item.Box.Height -= lost;  // a frame around the picture
    }
  }
  band.Height -= lost;
}

}  // namespace

bool HasWholeAbove(const Band& band, float room) {
  const StayingItems staying(band, room);
  return std::any_of(band.Items.begin(), band.Items.end(),
                     [&](const Item& item) { return StaysWhole(item) && staying.Has(item); });
}

Band CutBand(Band& band, float room) {
  Band first;
  const Cutting cutting(band, room);
  if (cutting.Start() <= 0 && !HasWholeAbove(band, room)) return first;
  first.Height = room;
  first.Landing = std::exchange(band.Landing, -1);
  first.Group = band.Group;
  first.IsHeader = band.IsHeader;
  std::vector<Item> rest;
  for (const Item& item : band.Items) cutting.Place(item, first.Items, rest);
  band.Items = std::move(rest);
  band.Height -= cutting.Start();
  return first;
}

void FitPictures(Band& band, float room, float freshRoom, Document& document) {
  for (;;) {
    const Item* const picture = HighestCrossingPicture(band, room);
    if (picture == nullptr || RatherMoves(band, picture->Box, room, freshRoom)) return;
    ShrinkPicture(band, picture->Box, room - picture->Box.Top, document);
  }
}

}  // namespace tarvis
