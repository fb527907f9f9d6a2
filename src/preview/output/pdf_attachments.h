// Files inside a PDF that belong to the whole document.
#pragma once

#include <QDateTime>
#include <qpdf/QPDF.hh>
#include <vector>

#include "text/named_bytes.h"

namespace tarvis {

// Texts of the host, in its code page. `changed` is the date that they show, invalid for none: the files' own
// dates depend on how they were copied.
void AttachData(QPDF& pdf, const std::vector<NamedBytes>& files, const QDateTime& changed);

}  // namespace tarvis
