#include "preview/output/pdf_sheets.h"

#include <numeric>

#include "preview/paint/toolkit_geometry.h"

namespace tarvis {

PdfSheets PdfSheets::AllOf(const Document& document) {
  PdfSheets sheets;
  sheets.Pages.resize(document.Pages.size());
  std::iota(sheets.Pages.begin(), sheets.Pages.end(), 0);
  sheets.Paper = PaperSizeOf(document);
  return sheets;
}

}  // namespace tarvis
