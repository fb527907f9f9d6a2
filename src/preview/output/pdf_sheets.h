// Which pages of a document a PDF has, on which paper.
#pragma once

#include <QSizeF>
#include <vector>

#include "report/engine/document.h"

namespace tarvis {

// What all sheets of a PDF have in common.
struct PdfLook {
  QSizeF Paper;      // twips
  double Scale = 1;  // below 1 the pages are shrunk towards their top left corner
  bool Greys = false;
};

struct PdfSheets : PdfLook {
  std::vector<int> Pages;  // indexes, in the order of the sheets; a page may be there more than once

  // Every page once, as it was composed.
  static PdfSheets AllOf(const Document& document);
};

}  // namespace tarvis
