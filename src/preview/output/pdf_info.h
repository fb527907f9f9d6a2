// What a PDF says about itself.
#pragma once

#include <QDateTime>
#include <QString>

namespace tarvis {

struct PdfInfo {
  QString Title;
  QString Author;     // empty for none
  QDateTime Created;  // invalid: no dates, so that the same document gives the same bytes
};

}  // namespace tarvis
