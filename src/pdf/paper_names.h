// Sizes of paper by their names.
#pragma once

#include <string>

namespace tarvis {

// In twips.
struct PaperSize {
  float Width = 0;
  float Height = 0;
};

// A4, A5 or Letter, upright, in any letter case, or width and height in millimetres: "210x297". Throws
// PdfError for anything else, and for a size that leaves no room beside the margins.
PaperSize PaperNamed(const std::string& name);

}  // namespace tarvis
