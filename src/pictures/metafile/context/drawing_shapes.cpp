#include <cmath>

#include "pictures/metafile/context/drawing.h"
#include "pictures/metafile/context/raster_ops.h"

namespace tarvis {
namespace {

QPainterPath BezierPath(QPointF start, std::span<const QPointF> points) {
  QPainterPath path(start);
  for (std::size_t i = 0; i + 2 < points.size(); i += 3)
    path.cubicTo(points[i], points[i + 1], points[i + 2]);
  return path;
}

Qt::FillRule RuleOf(const DcState& state) {
  return state.PolyFillMode == WindingFillMode ? Qt::WindingFill : Qt::OddEvenFill;
}

}  // namespace

void Drawing::Select(const MetaObject& object) {
  if (const auto* pen = std::get_if<PenPtr>(&object)) State().Pen = *pen;
  if (const auto* brush = std::get_if<BrushPtr>(&object)) State().Brush = *brush;
  if (const auto* font = std::get_if<FontPtr>(&object)) State().Font = *font;
  if (const auto* palette = std::get_if<PalettePtr>(&object)) State().Palette = *palette;
  if (std::holds_alternative<std::monostate>(object)) throw SkipRecord();
}

QPainterPath Drawing::RegionPath(const MetaRegion& region) {
  constexpr std::size_t elementsOfBox = 5;
  Budget().TakeElements(region.size() * elementsOfBox);
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  for (const QRectF& box : region) path.addRect(box);
  return path;
}

void Drawing::Emit(const QPainterPath& device, bool fill, bool stroke) {
  ListPen pen;
  ListBrush brush;
  const bool hasPen = stroke && MakePen(pen);
  const bool hasBrush = fill && MakeBrush(*State().Brush, brush);
  if (!hasPen && !hasBrush) return;
  list_.SetClip(State().Clip);
  list_.AddShape(device, hasPen ? &pen : nullptr, hasBrush ? &brush : nullptr);
  if (hasBrush && State().Rop2 != XorPen) FollowCopyFill(device);
  if (hasBrush && State().Rop2 == XorPen && !hasPen) FollowXorFill(device);
}

void Drawing::EmitFill(const QPainterPath& device, const MetaBrush& metaBrush) {
  ListBrush brush;
  if (!MakeBrush(metaBrush, brush)) return;
  list_.SetClip(State().Clip);
  list_.AddShape(device, nullptr, &brush);
}

void Drawing::JoinPath(QPointF device) {
  if (path_.elementCount() == 0 || path_.currentPosition() != device) path_.moveTo(device);
}

// Adds the curves of `device` to the open figure, so that the figure still closes to its own start.
void Drawing::ContinuePath(const QPainterPath& device) {
  JoinPath(device.elementAt(0));
  for (int i = 1; i + 2 < device.elementCount(); i += 3)
    path_.cubicTo(device.elementAt(i), device.elementAt(i + 1), device.elementAt(i + 2));
}

void Drawing::MoveTo(QPointF point) {
  State().Position = point;
  if (inPath_) path_.moveTo(ToDevice().map(point));
}

void Drawing::LineTo(QPointF point) {
  PolylineTo({point});
}

void Drawing::Polyline(const Points& points) {
  if (points.size() < 2) return;
  const QTransform toDevice = ToDevice();
  if (inPath_) {
    path_.moveTo(toDevice.map(points[0]));
    for (const QPointF& point : points) path_.lineTo(toDevice.map(point));
    return;
  }
  ListPen pen;
  if (!MakePen(pen)) return;
  Points mapped(points.size());
  for (std::size_t i = 0; i < points.size(); ++i) mapped[i] = toDevice.map(points[i]);
  list_.SetClip(State().Clip);
  list_.AddPolyline(mapped, pen, dc_.Scale());
}

void Drawing::PolylineTo(const Points& points) {
  if (points.empty()) return;
  if (inPath_) {
    const QTransform toDevice = ToDevice();
    JoinPath(toDevice.map(State().Position));
    for (const QPointF& point : points) path_.lineTo(toDevice.map(point));
  } else {
    Points line{State().Position};
    line.insert(line.end(), points.begin(), points.end());
    Polyline(line);
  }
  State().Position = points.back();
}

void Drawing::Bezier(const Points& points, bool fromPosition) {
  if (points.size() < (fromPosition ? 3 : 4)) return;
  const std::span<const QPointF> all(points);
  const QPainterPath path =
      fromPosition ? BezierPath(State().Position, all) : BezierPath(all[0], all.subspan(1));
  const QPainterPath device = ToDevice().map(path);
  if (!inPath_) {
    Emit(device, false, true);
  } else if (fromPosition) {
    ContinuePath(device);
  } else {
    path_.addPath(device);
  }
  if (fromPosition) State().Position = path.currentPosition();
}

void Drawing::Polygons(const std::vector<Points>& polygons) {
  QPainterPath path;
  for (const Points& points : polygons) {
    if (points.size() < 2) continue;
    path.moveTo(points[0]);
    for (std::size_t i = 1; i < points.size(); ++i) path.lineTo(points[i]);
    path.closeSubpath();
  }
  Shape(path, true, true);
}

void Drawing::PolyPolyline(const std::vector<Points>& lines) {
  for (const Points& line : lines) Polyline(line);
}

void Drawing::Shape(const QPainterPath& logical, bool fill, bool stroke) {
  QPainterPath device = ToDevice().map(logical);
  device.setFillRule(RuleOf(State()));
  if (inPath_) {
    path_.addPath(device);
  } else {
    Emit(device, fill, stroke);
  }
}

void Drawing::Rectangle(const QRectF& box) {
  QPainterPath path;
  path.addRect(box);
  Shape(path, true, true);
}

void Drawing::RoundRectangle(const QRectF& box, QSizeF corner) {
  QPainterPath path;
  path.addRoundedRect(box, std::min(std::abs(corner.width()), box.width()) / 2,
                      std::min(std::abs(corner.height()), box.height()) / 2);
  Shape(path, true, true);
}

void Drawing::Ellipse(const QRectF& box) {
  QPainterPath path;
  path.addEllipse(box);
  Shape(path, true, true);
}

void Drawing::Arc(const ArcShape& arc, ArcKind kind, bool to) {
  const QPainterPath path = ArcPath(arc, kind);
  if (!to) return Shape(path, kind != ArcKind::Open, true);
  LineTo(path.elementAt(0));
  const QPainterPath device = ToDevice().map(path);
  if (inPath_) {
    ContinuePath(device);
  } else {
    Emit(device, false, true);
  }
  State().Position = path.currentPosition();
}

void Drawing::Paint(const QPainterPath& logical, const ListPen* pen, const ListBrush* brush) {
  list_.SetClip(State().Clip);
  list_.AddShape(ToDevice().map(logical), pen, brush);
}

void Drawing::Pixel(QPointF point, QColor color) {
  const QPointF device = ToDevice().map(point);
  QPainterPath path;
  path.addRect(QRectF(device, QSizeF(1, 1)));
  EmitFill(path, {MetaBrush::Kind::Solid, color, Qt::SolidPattern, {}, false});
}

void Drawing::FillBox(const QRectF& box, QColor color) {
  QPainterPath path;
  path.addRect(box);
  list_.SetClip(State().Clip);
  const ListBrush brush{QBrush(color)};
  list_.AddShape(ToDevice().map(path), nullptr, &brush);
}

void Drawing::FillRegion(const MetaRegion& region, const MetaBrush& brush) {
  EmitFill(ToDevice().map(RegionPath(region)), brush);
}

void Drawing::FrameRegion(const MetaRegion& region, const MetaBrush& brush, QSizeF size) {
  MetaRegion frame;
  for (const QRectF& box : region) {
    const double width = std::min(std::abs(size.width()), box.width());
    const double height = std::min(std::abs(size.height()), box.height());
    frame.push_back({box.left(), box.top(), box.width(), height});
    frame.push_back({box.left(), box.bottom() - height, box.width(), height});
    frame.push_back({box.left(), box.top(), width, box.height()});
    frame.push_back({box.right() - width, box.top(), width, box.height()});
  }
  FillRegion(frame, brush);
}

void Drawing::InvertRegion(const MetaRegion& region) {
  FillRegion(region, {MetaBrush::Kind::Solid, Qt::black, Qt::SolidPattern, {}, false});
}

void Drawing::BeginPath() {
  path_ = QPainterPath();
  inPath_ = true;
}

void Drawing::AbortPath() {
  path_ = QPainterPath();
  inPath_ = false;
}

void Drawing::CloseFigure() {
  if (!inPath_ || path_.elementCount() == 0) return;
  path_.closeSubpath();
}

void Drawing::DrawPath(bool fill, bool stroke) {
  inPath_ = false;
  QPainterPath path = std::exchange(path_, QPainterPath());
  path.setFillRule(RuleOf(State()));
  if (!fill) return Emit(path, false, stroke);
  Emit(path, true, false);
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
  Emit(closed, false, true);
}

void Drawing::WidenPath() {
  ListPen pen;
  constexpr int mostElements = 20000;
  constexpr std::size_t costOfElement = 32;  // a widened line has many more points
  if (!MakePen(pen) || path_.elementCount() > mostElements) throw SkipRecord();
  Budget().TakeElements(static_cast<std::size_t>(path_.elementCount()) * costOfElement);
  pen.Pen.setWidthF(std::clamp(pen.Width, 1.0, 30000.0));
  path_ = QPainterPathStroker(pen.Pen).createStroke(path_);
}

void Drawing::ClipToPath(ClipMode mode) {
  inPath_ = false;
  QPainterPath path = std::exchange(path_, QPainterPath());
  path.setFillRule(RuleOf(State()));
  SelectClip(path, mode);
}

}  // namespace tarvis
