// What makes a PDF an archive beside its pages: what its colours mean, its language, its title as its name.
#pragma once

#include <qpdf/QPDF.hh>

namespace tarvis {

// `codePage`: that of the texts, which shows their language; 0 if it isn't known.
void MakeArchive(QPDF& pdf, int codePage);

}  // namespace tarvis
