// What a PDF says about itself, written into it: title, author, makers, dates, and to which standards it
// keeps.
#pragma once

#include <QString>
#include <qpdf/QPDF.hh>

#include "preview/output/pdf_info.h"

namespace tarvis {

// The part of ISO 19005 that a document keeps to, with the level within it.
struct PdfConformance {
  int Part = 2;
  char Level = 'U';
  bool IsAccessible = false;  // it keeps to ISO 14289-1, too
};

// As the format writes dates.
[[nodiscard]] QString PdfDate(const QDateTime& date);

// Writes both forms that the format knows, the dictionary and XMP; they say the same.
void AddMetadata(QPDF& pdf, const PdfInfo& info, const PdfConformance& conformance);

}  // namespace tarvis
