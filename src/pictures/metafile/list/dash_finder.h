// Finds the dashes that a writer drew one by one, so that a dashed line is one line with a pattern again.
#pragma once

#include <QPolygonF>
#include <optional>
#include <span>
#include <vector>

namespace tarvis {

// A line and the lengths of its dashes and gaps by turns, in units of the picture.
struct DashedLine {
  QPolygonF Line;
  std::vector<double> Dashes;
  std::size_t Count = 0;  // of the lines that it replaces
};

// The longest dashed line that the first of `lines` start, all of them drawn with one pen; none if they are
// too few or keep to no pattern. It deviates from them by about `tolerance`.
std::optional<DashedLine> FindDashedLine(std::span<const QPolygonF> lines, double tolerance);

}  // namespace tarvis
