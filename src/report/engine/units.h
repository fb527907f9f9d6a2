// Geometry of the reports: whole or fractional twips, 1440 to the inch, 20 to the point.
#pragma once

namespace tarvis {

// A length is a float of twips everywhere in reports and documents; it becomes a double without a cast where
// a painter or a PDF counts in doubles, and both hold every whole number of twips exactly.
inline constexpr float TwipsPerInch = 1440;
inline constexpr float TwipsPerPoint = 20;
inline constexpr float TwipsPerPixel = 15;   // at 96 pixels to the inch
inline constexpr float LineWeightUnit = 15;  // of borders and lines, in twips

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
