// Fonts and pictures of a PDF. The toolkit's own PDF painter subsets the fonts and paints the pictures into a
// helper file in memory; its objects are then taken over.
#pragma once

#include <qpdf/QPDF.hh>

#include "preview/output/pdf_canvas.h"
#include "preview/output/pdf_contents.h"
#include "preview/output/pdf_glyphs.h"

namespace tarvis {

// The resources of pages: fonts "F" and pictures "P" with their numbers.
struct PdfResources {
  QPDFObjectHandle Dictionary;  // all pages of a document share it
  bool HasAllGlyphs = true;     // of pages and pictures; see PdfFonts
};

// The contents of pictures are added to `contents`.
PdfResources MakeResources(QPDF& pdf, const PdfGlyphs& glyphs, const PdfPictures& pictures, ReportFont& font,
                           PdfContents& contents);

}  // namespace tarvis
