#include "pictures/metafile/list/line_thinning.h"

#include <cmath>

namespace tarvis {
namespace {

constexpr qsizetype ShortLine = 64;

// Where the run of points that starts at `first` and keeps to one column (or row) ends.
template <typename Across>
qsizetype EndOfRun(const QPolygonF& line, qsizetype first, double tolerance, Across across) {
  const double start = across(line[first]);
  qsizetype end = first + 1;
  while (end < line.size() && std::abs(across(line[end]) - start) < tolerance) ++end;
  return end;
}

// Adds the outermost points of a run along it, in their order, and its last.
template <typename Along>
void AddRun(const QPolygonF& line, qsizetype first, qsizetype end, Along along, QPolygonF& thinned) {
  qsizetype low = first, high = first;
  for (qsizetype i = first; i < end; ++i) {
    if (along(line[i]) < along(line[low])) low = i;
    if (along(line[i]) > along(line[high])) high = i;
  }
  const qsizetype kept[] = {first, std::min(low, high), std::max(low, high), end - 1};
  qsizetype last = -1;
  for (const qsizetype i : kept) {
    if (i == last) continue;
    thinned.append(line[i]);
    last = i;
  }
}

}  // namespace

QPolygonF ThinnedLine(QPolygonF line, double tolerance) {
  if (line.size() < ShortLine) return line;
  const auto x = [](const QPointF& point) { return point.x(); };
  const auto y = [](const QPointF& point) { return point.y(); };
  QPolygonF thinned;
  for (qsizetype i = 0; i < line.size();) {
    const qsizetype column = EndOfRun(line, i, tolerance, x);
    const qsizetype row = EndOfRun(line, i, tolerance, y);
    if (column >= row) {
      AddRun(line, i, column, y, thinned);
    } else {
      AddRun(line, i, row, x, thinned);
    }
    i = std::max(column, row);
  }
  return thinned;
}

}  // namespace tarvis
