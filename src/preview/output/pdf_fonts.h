// The fonts of a PDF: the toolkit's own PDF painter subsets them into a helper file.
#pragma once

#include <qpdf/QPDF.hh>

#include "preview/output/pdf_glyphs.h"

namespace tarvis {

// The fonts of all `glyphs` by the names that page content gives them, "F" and a number. Throws
// std::runtime_error if a font can't be embedded.
QPDFObjectHandle MakeFonts(QPDF& pdf, const PdfGlyphs& glyphs, ReportFont& font);

}  // namespace tarvis
