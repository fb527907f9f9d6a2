#include "pictures/metafile/list/dash_finder.h"

#include <algorithm>
#include <cmath>

#include "pictures/metafile/list/outlines.h"

namespace tarvis {
namespace {

constexpr std::size_t FewestDashes = 6;
constexpr std::size_t LongestPattern = 4;  // dashes before it repeats

double Distance(QPointF a, QPointF b) {
  return std::hypot(b.x() - a.x(), b.y() - a.y());
}

// Lengths of the lines and of the gaps that follow them.
struct Measure {
  double Dash = 0;
  double Gap = 0;
};

std::vector<Measure> MeasureDashes(std::span<const QPolygonF> lines) {
  std::vector<Measure> measures;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const double gap = i + 1 < lines.size() ? Distance(lines[i].last(), lines[i + 1].first()) : 0;
    measures.push_back({LengthOf(lines[i]), gap});
  }
  return measures;
}

// The mean of each of the first `period` dashes and gaps and of those that repeat them.
std::vector<Measure> MeanPattern(std::span<const Measure> dashes, std::size_t period) {
  std::vector<Measure> sums(period);
  std::vector<double> counts(period);
  for (std::size_t i = 0; i + 1 < dashes.size(); ++i) {
    sums[i % period].Dash += dashes[i].Dash;
    sums[i % period].Gap += dashes[i].Gap;
    ++counts[i % period];
  }
  for (std::size_t i = 0; i < period; ++i) {
    sums[i].Dash /= std::max(counts[i], 1.0);
    sums[i].Gap /= std::max(counts[i], 1.0);
  }
  return sums;
}

// Whether each dash starts and ends where the pattern has it. Writers round the ends of dashes, and cut short
// the gaps in which a line bends; the last dash may be cut off by the end of the line.
bool KeepsTo(std::span<const Measure> pattern, std::span<const Measure> dashes, double tolerance) {
  double drift = 0;
  for (std::size_t i = 0; i < dashes.size(); ++i) {
    const Measure& wanted = pattern[i % pattern.size()];
    const double most = 2 * tolerance + wanted.Gap * 0.15;
    drift += dashes[i].Dash - wanted.Dash;
    if (i + 1 == dashes.size()) return drift < most;
    if (std::abs(drift) > most) return false;
    drift += dashes[i].Gap - wanted.Gap;
    if (std::abs(drift) > most) return false;
  }
  return true;
}

// How many of the lines follow each other: none turns back, or sharply, where it starts.
std::size_t Connected(std::span<const QPolygonF> lines) {
  for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
    const QPolygonF& line = lines[i];
    const QPointF way = lines[i + 1].first() - line.last();
    const QPointF before = line.last() - line[line.size() - 2];
    const double cosine = way.x() * before.x() + way.y() * before.y();
    if (cosine <= 0.5 * Distance({}, way) * Distance({}, before)) return i + 1;
  }
  return lines.size();
}

double DistanceToLine(QPointF point, QPointF from, QPointF to) {
  const double length = Distance(from, to);
  if (length == 0) return Distance(point, from);
  const QPointF way = (to - from) / length;
  const QPointF offset = point - from;
  return std::abs(offset.x() * way.y() - offset.y() * way.x());
}

// Leaves out the points that lie on the way from their neighbours, from `first` to the last one.
QPolygonF WithoutStraightPoints(const QPolygonF& line, double tolerance) {
  QPolygonF kept;
  for (qsizetype start = 0; start < line.size();) {
    kept.append(line[start]);
    qsizetype end = start + 1;
    const auto isStraight = [&](qsizetype to) {
      for (qsizetype i = start + 1; i < to; ++i)
        if (DistanceToLine(line[i], line[start], line[to]) > tolerance) return false;
      return true;
    };
    // Doubled steps keep long straight lines from costing the square of their points.
    qsizetype step = 1;
    while (end + step < line.size() && isStraight(end + step)) end += step, step *= 2;
    while (step > 0) {
      if (end + step < line.size() && isStraight(end + step)) {
        end += step;
      } else {
        step /= 2;
      }
    }
    start = end;
  }
  return kept;
}

DashedLine MakeDashedLine(std::span<const QPolygonF> lines, std::span<const Measure> pattern,
                          double tolerance) {
  DashedLine found;
  found.Count = lines.size();
  for (const Measure& measure : pattern) {
    found.Dashes.push_back(measure.Dash);
    found.Dashes.push_back(measure.Gap);
  }
  QPolygonF all;
  for (const QPolygonF& line : lines) all += line;
  found.Line = WithoutStraightPoints(all, tolerance);
  return found;
}

}  // namespace

std::optional<DashedLine> FindDashedLine(std::span<const QPolygonF> lines, double tolerance) {
  if (lines.size() < FewestDashes) return {};
  const std::span<const QPolygonF> connected = lines.first(Connected(lines));
  const std::vector<Measure> measures = MeasureDashes(connected);
  for (std::size_t count = connected.size(); count >= FewestDashes; count = count * 3 / 4) {
    const std::span<const Measure> dashes = std::span(measures).first(count);
    for (std::size_t period = 1; period <= LongestPattern && count >= 3 * period; ++period) {
      const std::vector<Measure> pattern = MeanPattern(dashes, period);
      if (KeepsTo(pattern, dashes, tolerance))
        return MakeDashedLine(connected.first(count), pattern, tolerance);
    }
  }
  return {};
}

}  // namespace tarvis
