// A composed document as a PDF file: real text in embedded subset fonts, contents as outline, metadata.
#pragma once

#include <QDateTime>
#include <QString>

#include "preview/output/background_job.h"
#include "report/engine/document.h"

namespace tarvis {

struct PdfInfo {
  QString Title;
  QString Author;     // empty for none
  QDateTime Created;  // invalid: no dates, so that the same document gives the same bytes
};

// Writes to a temporary file beside `path` first and replaces `path` only by a whole file, so that nothing is
// lost on a failure or when `progress` cancels. Returns an error text for the user, empty if all is well or
// cancelled.
QString ExportPdf(const Document& document, const QString& path, const PdfInfo& info,
                  const Progress& progress);

}  // namespace tarvis
