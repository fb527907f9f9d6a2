#include "pictures/metafile/context/shape_painter.h"

#include <cmath>

#include "pictures/metafile/context/inks.h"

namespace tarvis {
namespace {

QPainterPath BezierPath(QPointF start, std::span<const QPointF> points) {
  QPainterPath path(start);
  for (std::size_t i = 0; i + 2 < points.size(); i += 3)
    path.cubicTo(points[i], points[i + 1], points[i + 2]);
  return path;
}

}  // namespace

void ShapePainter::MoveTo(QPointF point) {
  State().Position = point;
  if (path_.IsOpen()) path_.MoveTo(ToDevice().map(point));
}

void ShapePainter::LineTo(QPointF point) {
  PolylineTo({point});
}

void ShapePainter::Polyline(const Points& points) {
  if (points.size() < 2) return;
  const QTransform toDevice = ToDevice();
  if (path_.IsOpen()) {
    path_.MoveTo(toDevice.map(points[0]));
    for (const QPointF& point : points) path_.LineTo(toDevice.map(point));
    return;
  }
  Points mapped(points.size());
  for (std::size_t i = 0; i < points.size(); ++i) mapped[i] = toDevice.map(points[i]);
  surface_.Polyline(mapped);
}

void ShapePainter::PolylineTo(const Points& points) {
  if (points.empty()) return;
  if (path_.IsOpen()) {
    const QTransform toDevice = ToDevice();
    path_.Join(toDevice.map(State().Position));
    for (const QPointF& point : points) path_.LineTo(toDevice.map(point));
  } else {
    Points line{State().Position};
    line.insert(line.end(), points.begin(), points.end());
    Polyline(line);
  }
  State().Position = points.back();
}

void ShapePainter::Bezier(const Points& points, bool fromPosition) {
  if (points.size() < (fromPosition ? 3 : 4)) return;
  const std::span<const QPointF> all(points);
  const QPainterPath path =
      fromPosition ? BezierPath(State().Position, all) : BezierPath(all[0], all.subspan(1));
  const QPainterPath device = ToDevice().map(path);
  if (!path_.IsOpen()) {
    surface_.Shape(device, false, true);
  } else if (fromPosition) {
    path_.Continue(device);
  } else {
    path_.Add(device);
  }
  if (fromPosition) State().Position = path.currentPosition();
}

void ShapePainter::Polygons(const std::vector<Points>& polygons) {
  QPainterPath path;
  for (const Points& points : polygons) {
    if (points.size() < 2) continue;
    path.moveTo(points[0]);
    for (std::size_t i = 1; i < points.size(); ++i) path.lineTo(points[i]);
    path.closeSubpath();
  }
  Shape(path, true, true);
}

void ShapePainter::PolyPolyline(const std::vector<Points>& lines) {
  for (const Points& line : lines) Polyline(line);
}

void ShapePainter::Shape(const QPainterPath& logical, bool fill, bool stroke) {
  QPainterPath device = ToDevice().map(logical);
  device.setFillRule(FillRuleOf(State()));
  if (path_.IsOpen()) {
    path_.Add(device);
  } else {
    surface_.Shape(device, fill, stroke);
  }
}

void ShapePainter::Rectangle(const QRectF& box) {
  QPainterPath path;
  path.addRect(box);
  Shape(path, true, true);
}

void ShapePainter::RoundRectangle(const QRectF& box, QSizeF corner) {
  QPainterPath path;
  path.addRoundedRect(box, std::min(std::abs(corner.width()), box.width()) / 2,
                      std::min(std::abs(corner.height()), box.height()) / 2);
  Shape(path, true, true);
}

void ShapePainter::Ellipse(const QRectF& box) {
  QPainterPath path;
  path.addEllipse(box);
  Shape(path, true, true);
}

void ShapePainter::Arc(const ArcShape& arc, ArcKind kind, bool to) {
  const QPainterPath path = ArcPath(arc, kind);
  if (!to) return Shape(path, kind != ArcKind::Open, true);
  LineTo(path.elementAt(0));
  const QPainterPath device = ToDevice().map(path);
  if (path_.IsOpen()) {
    path_.Continue(device);
  } else {
    surface_.Shape(device, false, true);
  }
  State().Position = path.currentPosition();
}

void ShapePainter::Path(bool fill, bool stroke) {
  const QPainterPath path = path_.Take(FillRuleOf(State()));
  if (!fill) return surface_.Shape(path, false, stroke);
  surface_.Shape(path, true, false);
  if (!stroke) return;
  // Filling closes the figures, and so does the pen that follows.
  QPainterPath closed;
  for (int i = 0; i < path.elementCount(); ++i) {
    const auto element = path.elementAt(i);
    if (element.isMoveTo() && i > 0) closed.closeSubpath();
    if (element.isMoveTo()) closed.moveTo(element);
    if (element.isLineTo()) closed.lineTo(element);
    if (element.isCurveTo()) closed.cubicTo(element, path.elementAt(i + 1), path.elementAt(i + 2));
  }
  closed.closeSubpath();
  surface_.Shape(closed, false, true);
}

void ShapePainter::WidenPath() {
  const auto pen = CurrentPen(surface_.Context());
  if (!pen) throw SkipRecord();
  path_.Widen(*pen, surface_.Budget());
}

}  // namespace tarvis
