// Geometry of the reports: whole or fractional twips, 1440 to the inch, 20 to the point.
#pragma once

namespace tarvis {

inline constexpr float TwipsPerInch = 1440;
inline constexpr float TwipsPerPoint = 20;

// Left and top edge and size, in twips.
struct Rect {
  float Left = 0;
  float Top = 0;
  float Width = 0;
  float Height = 0;

  float Right() const { return Left + Width; }
  float Bottom() const { return Top + Height; }
  bool operator==(const Rect&) const = default;
};

}  // namespace tarvis
