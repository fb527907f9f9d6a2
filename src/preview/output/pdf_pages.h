// The pages of a PDF: their contents, and the fonts and pictures that they share.
#pragma once

#include <map>
#include <qpdf/QPDF.hh>
#include <string>
#include <vector>

#include "preview/output/pdf_canvas.h"
#include "preview/output/pdf_contents.h"
#include "preview/output/pdf_glyphs.h"
#include "preview/output/pdf_sheets.h"
#include "report/engine/document.h"

namespace tarvis {

// A length as PDFs have it.
QPDFObjectHandle Points(double twips);

class PdfPages {
 public:
  // `pdf` must outlive it. `codePage` is that of the texts.
  PdfPages(QPDF& pdf, const PdfLook& look, int codePage);

  // Adds a sheet with a page; further sheets with the same page share its content.
  void Add(const Document& document, std::size_t page);
  // Puts the sheets into the PDF. Returns whether it has a glyph for each character. To be called once, as
  // the last one.
  [[nodiscard]] bool Finish();

  // The page of each sheet.
  const std::vector<int>& Sheets() const { return sheets_; }

 private:
  QPDFObjectHandle NewPage(const QPDFObjectHandle& content, const QPDFObjectHandle& resources);

  QPDF& pdf_;
  PdfLook look_;
  PdfGlyphs glyphs_;
  PdfPictures pictures_;
  PdfContents compressed_;
  std::vector<int> sheets_;
  std::map<int, QPDFObjectHandle> contents_;  // by page
};

}  // namespace tarvis
