// The pages of a PDF: their contents, and the fonts and pictures that they share.
//
// The page total is content of its own, so that pages can be painted and compressed before it is known how
// many there are.
#pragma once

#include <map>
#include <qpdf/QPDF.hh>
#include <string>
#include <vector>

#include "preview/output/pdf_canvas.h"
#include "preview/output/pdf_contents.h"
#include "preview/output/pdf_glyphs.h"
#include "preview/output/pdf_sheets.h"
#include "preview/output/tagged_canvas.h"
#include "report/engine/document.h"

namespace tarvis {

// A length as PDFs have it.
QPDFObjectHandle Points(double twips);

// The marked content of each page of the document, by index.
using PdfMarks = std::map<int, std::vector<PdfMark>>;

class PdfPages {
 public:
  // `pdf` must outlive it. `codePage` is that of the texts. Content is marked as `tags` say, if there are
  // any; they must outlive it, too.
  PdfPages(QPDF& pdf, const PdfLook& look, int codePage, const PdfTagPlan* tags);

  // Adds a sheet with page `page` of `document`, which is page `number` of the whole document. It is painted
  // but for the page total; further sheets with the same number share its content.
  void Add(const Document& document, std::size_t page, std::size_t number);
  // Completes the sheets, of whose pages `document` has at least the page totals, and puts them into the PDF.
  // To be called once, as the last one.
  void Finish(const Document& document);

  // The page of each sheet.
  const std::vector<int>& Sheets() const { return sheets_; }
  const PdfMarks& Marks() const { return marks_; }

 private:
  std::string ContentOf(const Document& document, std::size_t page, int number);
  QPDFObjectHandle NewStream(std::string content);
  QPDFObjectHandle WholeContent(const Document& document, int page);
  QPDFObjectHandle NewPage(const QPDFObjectHandle& content, const QPDFObjectHandle& resources);

  QPDF& pdf_;
  PdfLook look_;
  PdfGlyphs glyphs_;
  PdfPictures pictures_;
  PdfContents compressed_;
  const PdfTagPlan* tags_;
  PdfMarks marks_;
  std::vector<int> sheets_;
  std::map<int, QPDFObjectHandle> contents_;        // by page
  std::map<std::string, QPDFObjectHandle> totals_;  // by content, which is mostly the same on all pages
};

}  // namespace tarvis
