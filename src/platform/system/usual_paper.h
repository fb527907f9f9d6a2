// The paper that is usual in the user's country.
#pragma once

#include <QPageSize>

#include "platform/system/paper_size.h"

namespace tarvis {

// A4 or Letter.
QPageSize UsualPaper();

// The size of that paper when it is upright.
PaperSize UprightSize(const QPageSize& paper);

}  // namespace tarvis
