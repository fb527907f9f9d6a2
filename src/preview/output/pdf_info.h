// What a PDF says about itself, and which files are in it.
#pragma once

#include <QDateTime>
#include <QString>
#include <vector>

#include "text/named_bytes.h"

namespace tarvis {

struct PdfInfo {
  QString Title;
  QString Author;                     // empty for none
  QDateTime Created;                  // invalid: no dates, so that the same document gives the same bytes
  std::vector<NamedBytes> Data = {};  // files that the document is made of, to be put into it
  bool IsTagged = false;              // with its structure, for those who have it read to them
};

}  // namespace tarvis
