// The pens and brushes of a draw list. Its shapes name them by number.
#pragma once

#include <QBrush>
#include <QPen>
#include <array>
#include <cstdint>
#include <vector>

#include "pictures/picture_budget.h"

namespace tarvis {

// A pen. Hairlines are as thin as the device shows well, and their dashes count in 1/96 inch.
struct ListPen {
  QPen Pen;          // all but the width
  double Width = 0;  // units of the picture
  bool Hairline = false;
  bool PlacedDashes = false;  // the dashes count in units of the picture, not in widths of the pen
  bool operator==(const ListPen&) const = default;
};

// A hatch of dots: 8 rows from the top, the leftmost dot in the highest bit.
using HatchDots = std::array<std::uint8_t, 8>;

inline bool HasDots(const HatchDots& dots) {
  return dots != HatchDots{};
}
inline bool IsDot(const HatchDots& dots, int x, int y) {
  return (dots[static_cast<std::size_t>(y)] >> (7 - x) & 1) != 0;
}

// A brush. Hatches and textures keep their physical size: a pixel of them is a dot of 1/96 inch.
struct ListBrush {
  QBrush Brush = QBrush();
  QColor Background = QColor();  // between the lines of a hatch; invalid if nothing is
  double HatchStep = 8;          // dots from line to line of a hatch
  double HatchLine = 0;          // dots that a line of it is wide; 0 is a hairline
  HatchDots Dots{};              // in place of lines, if there are any; the brush has their colour
  bool Placed = false;           // the texture is mapped to the picture by the brush's transform instead
  bool operator==(const ListBrush&) const = default;
};

class ListInks {
 public:
  // The number of the pen or brush, which is taken from the budget if it isn't the last one again; -1 for
  // null.
  std::int32_t Add(const ListPen* pen, PictureBudget& budget);
  std::int32_t Add(const ListBrush* brush, PictureBudget& budget);

  const ListPen& Pen(std::int32_t index) const { return pens_[static_cast<std::size_t>(index)]; }
  const ListBrush& Brush(std::int32_t index) const { return brushes_[static_cast<std::size_t>(index)]; }

 private:
  std::vector<ListPen> pens_;
  std::vector<ListBrush> brushes_;
};

}  // namespace tarvis
