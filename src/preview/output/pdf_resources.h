// Fonts and pictures of a PDF. The toolkit's own PDF painter subsets the fonts and paints the pictures into a
// helper file in memory; its objects are then taken over.
#pragma once

#include <qpdf/QPDF.hh>

#include "preview/output/pdf_canvas.h"
#include "preview/output/pdf_glyphs.h"

namespace tarvis {

// The resource dictionary that all pages of `pdf` share: fonts "F" and pictures "P" with their numbers.
QPDFObjectHandle MakeResources(QPDF& pdf, const PdfGlyphs& glyphs, const PdfPictures& pictures,
                               ReportFont& font);

}  // namespace tarvis
