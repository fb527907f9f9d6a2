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

struct PictureContent {
  Inks Ink = Inks::AsTheyAre;           // as far as the content is understood
  bool NamesPrivateCharacters = false;  // as level A of archives asks
};

// The contents of pictures are added to `contents`, as they are wanted.
[[nodiscard]] PdfResources MakeResources(QPDF& pdf, const PdfGlyphs& glyphs, PdfPictures& pictures,
                                         ReportFont& font, PdfContents& contents,
                                         const PictureContent& wanted);

}  // namespace tarvis
