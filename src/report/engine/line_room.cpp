#include "report/engine/line_room.h"

#include <algorithm>
#include <vector>

namespace tarvis {
namespace {

// A line that runs on keeps this distance (twips) from its neighbour: about the width of a blank.
constexpr float Gap = 60;

bool IsAtHeightOf(float top, float bottom, const Rect& line) {
  return top < line.Bottom() && bottom > line.Top;
}

// Left and right edges of everything at the height of `line`.
std::vector<float> EdgesAtHeightOf(const TextControl& text, const Section& section, const Rect& line,
                                   const Band& band, float left) {
  std::vector<float> edges;
  for (const auto& control : section.Controls()) {
    if (control.get() == &text || !control->Visible || !control->PrintsAnything()) continue;
    if (!IsAtHeightOf(control->Top, control->Bottom(), line)) continue;
    edges.push_back(control->Left);
    edges.push_back(control->Left + control->Width);
  }
  for (const Item& item : band.Items) {
    if (item.Kind != ItemKind::Text || !IsAtHeightOf(item.Box.Top, item.Box.Bottom(), line)) continue;
    edges.push_back(item.Box.Left - left);
    edges.push_back(item.Box.Right() - left);
  }
  return edges;
}

}  // namespace

LineRoom RoomOfLine(const TextControl& text, const Section& section, const Rect& line, const Band& band,
                    float left, float paper) {
  LineRoom room{text.Left, text.Left + text.Width};
  if (text.Style.Alignment == Align::Centre) return room;
  const bool toTheRight = text.Style.Alignment == Align::Left;
  float limit = toTheRight ? paper : 0;
  for (const float edge : EdgesAtHeightOf(text, section, line, band, left)) {
    if (toTheRight && edge > room.Left) limit = std::min(limit, edge);
    if (!toTheRight && edge < room.Right) limit = std::max(limit, edge);
  }
  if (toTheRight) {
    room.Right = std::max(room.Right, limit - Gap);
  } else {
    room.Left = std::min(room.Left, limit + Gap);
  }
  return room;
}

}  // namespace tarvis
