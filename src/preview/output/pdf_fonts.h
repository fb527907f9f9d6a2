// The fonts of a PDF: the toolkit's own PDF painter subsets them into a helper file.
#pragma once

#include <qpdf/QPDF.hh>

#include "preview/output/pdf_glyphs.h"

namespace tarvis {

struct PdfFonts {
  QPDFObjectHandle Dictionary;
  // False where boxes are shown in place of glyphs: archives take no character that no font has.
  bool HaveAllGlyphs = true;
};

// The fonts of all `glyphs` by the names that page content gives them, "F" and their number.
// Glyphs of a face that can't be embedded are boxes, so that every document can be saved.
PdfFonts MakeFonts(QPDF& pdf, const PdfGlyphs& glyphs, ReportFont& font);

}  // namespace tarvis
