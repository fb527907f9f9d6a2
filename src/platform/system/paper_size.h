// Sizes of paper.
#pragma once

namespace tarvis {

// In twips.
struct PaperSize {
  float Width = 0;
  float Height = 0;
};

// Rounded to whole twips.
PaperSize PaperOfMillimetres(double width, double height);

}  // namespace tarvis
