// Fonts and pictures of a PDF. The toolkit's own PDF painter subsets the fonts and paints the pictures into
// helper files in memory; their objects are then taken over.
#pragma once

#include <qpdf/QPDF.hh>
#include <set>

#include "preview/output/pdf_contents.h"
#include "preview/output/pdf_glyphs.h"
#include "preview/output/pdf_pictures.h"
#include "preview/output/pdf_rounding.h"

namespace tarvis {

// The resources of pages: fonts "F" and pictures "P" with their numbers.
struct PdfResources {
  QPDFObjectHandle Dictionary;      // all pages of a document share it
  std::set<QPDFObjGen> InkedForms;  // pictures whose inks are as they were asked for
};

// The contents of pictures are added to `contents`, with these inks as far as their content is understood.
[[nodiscard]] PdfResources MakeResources(QPDF& pdf, const PdfGlyphs& glyphs, PdfPictures& pictures,
                                         ReportFont& font, PdfContents& contents, Inks inks);

}  // namespace tarvis
