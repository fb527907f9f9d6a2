// Arial's advance widths of ASCII, so that pages can be composed and pinned without any font.
#pragma once

#include <array>

#include "report/engine/text_measurer.h"

namespace tarvis {

// Widths are the font's design widths in thousandths of an em; other characters count half an em, ideographs
// one.
class ArialMeasurer : public TextMeasurer {
 public:
  float AdvanceEm(char32_t character, bool bold) const override {
    if (character >= ' ' && character < 127) {
      return static_cast<float>((bold ? Bold : Regular)[static_cast<std::size_t>(character - ' ')]) / 1000;
    }
    return character >= 0x1100 ? 1.0F : 0.5F;
  }

 private:
  static constexpr std::array<int, 95> Regular{
      278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
      556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
      611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
      667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
      222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
  static constexpr std::array<int, 95> Bold{
      278, 333, 474, 556, 556, 889, 722, 238, 333, 333, 389, 584, 278, 333, 278, 278, 556, 556, 556,
      556, 556, 556, 556, 556, 556, 556, 333, 333, 584, 584, 584, 611, 975, 722, 722, 722, 722, 667,
      611, 778, 722, 278, 556, 722, 611, 833, 722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667,
      667, 611, 333, 278, 333, 584, 556, 333, 556, 611, 556, 611, 556, 333, 611, 611, 278, 278, 556,
      278, 889, 611, 611, 611, 611, 389, 556, 333, 611, 556, 778, 556, 556, 500, 389, 280, 389, 584};
};

}  // namespace tarvis
