// Takes the points out of a dense line that no eye can tell apart.
#pragma once

#include <QPolygonF>

namespace tarvis {

// The same line within `tolerance`, with fewer points where they lie dense. Of the points that share a column
// or a row as wide as the tolerance, the first, the two outermost and the last stay.
QPolygonF ThinnedLine(QPolygonF line, double tolerance);

}  // namespace tarvis
