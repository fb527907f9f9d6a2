#include "pictures/metafile/context/geometry.h"

#include <cmath>
#include <numbers>

namespace tarvis {
namespace {

constexpr double Degree = std::numbers::pi / 180;

// Degrees of the ray from the middle of `box`, clockwise with y downwards, as if the ellipse were a circle.
double RayDegrees(const QRectF& box, const QPointF& ray) {
  const double x = (ray.x() - box.center().x()) / std::max(box.width(), 1e-9);
  const double y = (ray.y() - box.center().y()) / std::max(box.height(), 1e-9);
  return std::atan2(y, x) / Degree;
}

QPointF PointAt(const QRectF& box, double degrees) {
  return {box.center().x() + box.width() / 2 * std::cos(degrees * Degree),
          box.center().y() + box.height() / 2 * std::sin(degrees * Degree)};
}

QPointF TangentAt(const QRectF& box, double degrees) {
  return {-box.width() / 2 * std::sin(degrees * Degree), box.height() / 2 * std::cos(degrees * Degree)};
}

}  // namespace

void AddArc(QPainterPath& path, const QRectF& box, double startDegrees, double sweepDegrees, bool connect) {
  const double sweep = std::fmod(sweepDegrees, 360.0) == 0 && sweepDegrees != 0
                           ? std::copysign(360.0, sweepDegrees)
                           : std::clamp(sweepDegrees, -360.0, 360.0);
  const QPointF start = PointAt(box, startDegrees);
  if (connect && path.elementCount() > 0) {
    path.lineTo(start);
  } else {
    path.moveTo(start);
  }
  const int pieces = std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / 90 - 1e-9)));
  const double step = sweep / pieces;
  const double pull = 4.0 / 3 * std::tan(step * Degree / 4);
  for (int i = 0; i < pieces; ++i) {
    const double from = startDegrees + i * step;
    const double to = from + step;
    path.cubicTo(PointAt(box, from) + pull * TangentAt(box, from),
                 PointAt(box, to) - pull * TangentAt(box, to), PointAt(box, to));
  }
}

QPointF ArcPoint(const QRectF& box, const QPointF& ray) {
  return PointAt(box, RayDegrees(box, ray));
}

QPainterPath ArcPath(const ArcShape& arc, ArcKind kind) {
  const double start = RayDegrees(arc.Box, arc.Start);
  double sweep = RayDegrees(arc.Box, arc.End) - start;
  if (arc.Clockwise) {
    while (sweep <= 0) sweep += 360;
  } else {
    while (sweep >= 0) sweep -= 360;
  }
  QPainterPath path;
  if (kind == ArcKind::Pie) path.moveTo(arc.Box.center());
  AddArc(path, arc.Box, start, sweep, kind == ArcKind::Pie);
  if (kind != ArcKind::Open) path.closeSubpath();
  return path;
}

}  // namespace tarvis
