// What a PDF says about itself: its title, author, makers and dates, and which kind of archive it is.
#pragma once

#include <QDateTime>
#include <QString>
#include <optional>
#include <qpdf/QPDF.hh>

namespace tarvis {

struct PdfInfo {
  QString Title;
  QString Author;     // empty for none
  QDateTime Created;  // invalid: no dates, so that the same document gives the same bytes
};

// The part of ISO 19005 that a document keeps to, with the level within it.
struct PdfConformance {
  int Part = 2;
  char Level = 'U';
};

// Writes both forms that the format knows, the dictionary and XMP; they say the same. Without `conformance`
// the document doesn't say that it is an archive.
void AddMetadata(QPDF& pdf, const PdfInfo& info, std::optional<PdfConformance> conformance);

}  // namespace tarvis
