// Sizes of paper by their names.
#pragma once

#include <string>

#include "platform/system/paper_size.h"

namespace tarvis {

// A4, A5 or Letter, upright, in any letter case, or width and height in millimetres: "210x297". Throws
// PdfError for anything else, and for a size that leaves no room beside the margins.
PaperSize PaperNamed(const std::string& name);

}  // namespace tarvis
