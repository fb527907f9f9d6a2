// The fonts of a PDF: the toolkit's own PDF painter subsets them into a helper file.
#pragma once

#include <qpdf/QPDF.hh>

#include "preview/output/pdf_glyphs.h"

namespace tarvis {

// The fonts of all `glyphs`, a dictionary by the names that page content gives them, "F" and their number.
// Glyphs of a face that can't be embedded are boxes, so that every document can be saved and archived.
[[nodiscard]] QPDFObjectHandle MakeFonts(QPDF& pdf, const PdfGlyphs& glyphs, ReportFont& font);

// A font whose only glyph, of code 1, is the box of the report's own face; it is copied as U+FFFD.
[[nodiscard]] QPDFObjectHandle MakeBoxFont(QPDF& pdf, ReportFont& font);

}  // namespace tarvis
