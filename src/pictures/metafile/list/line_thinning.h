// Removes points from a dense line that make no visible difference.
#pragma once

#include <QPolygonF>

namespace tarvis {

// The same line within `tolerance`, with fewer points where they lie dense. Of the points that share a column
// or a row as wide as the tolerance, the first, the two outermost and the last stay.
QPolygonF ThinnedLine(QPolygonF line, double tolerance);

}  // namespace tarvis
