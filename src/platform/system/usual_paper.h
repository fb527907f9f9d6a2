// The paper that is usual in the user's country.
#pragma once

#include <QPageSize>
#include <QSizeF>

namespace tarvis {

// A4 or Letter.
QPageSize UsualPaper();

// Width and height of that paper when it is upright, in whole twips.
QSizeF UprightTwips(const QPageSize& paper);

}  // namespace tarvis
