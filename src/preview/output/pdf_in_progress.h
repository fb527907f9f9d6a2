// A PDF that gets its pages one by one.
#pragma once

#include <qpdf/QPDF.hh>
#include <string>

#include "preview/output/pdf_info.h"
#include "preview/output/pdf_pages.h"
#include "preview/output/pdf_sheets.h"
#include "report/engine/document.h"

namespace tarvis {

// Belongs to the thread that made it, as its fonts do.
class PdfInProgress {
 public:
  // `codePage` is that of the texts. The PDF is tagged if there are `tags`, which must outlive it.
  PdfInProgress(const PdfLook& look, int codePage, const PdfTagPlan* tags = nullptr);

  // Adds a sheet with that page of `document`, which is page `number` of the whole document; both count from
  // 0.
  void Add(const Document& document, std::size_t page, std::size_t number) {
    pages_.Add(document, page, number);
  }

  // The bytes of the PDF. `document` has at least contents and page totals. To be called once, as the last
  // one.
  std::string Finish(const Document& document, const PdfInfo& info);

 private:
  PdfLook look_;
  const PdfTagPlan* tags_;
  QPDF pdf_;
  PdfPages pages_;
};

}  // namespace tarvis
