#include "pictures/metafile/context/area_painter.h"

#include "pictures/metafile/context/raster_ops.h"

namespace tarvis {
namespace {

constexpr int MostFineTriangles = 200;
constexpr int FineSteps = 12;

QColor Mix(const std::vector<QColor>& colors, double a, double b) {
  const double c = 1 - a - b;
  const auto part = [&](auto channel) {
    return static_cast<float>(std::clamp(static_cast<double>((colors[0].*channel)()) * c +
                                             static_cast<double>((colors[1].*channel)()) * a +
                                             static_cast<double>((colors[2].*channel)()) * b,
                                         0.0, 1.0));
  };
  return QColor::fromRgbF(part(&QColor::redF), part(&QColor::greenF), part(&QColor::blueF),
                          part(&QColor::alphaF));
}

}  // namespace

QPainterPath AreaPainter::RegionPath(const MetaRegion& region) {
  constexpr std::size_t elementsOfBox = 5;
  surface_.Budget().TakeElements(region.size() * elementsOfBox);
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  for (const QRectF& box : region) path.addRect(box);
  return path;
}

void AreaPainter::Paint(const QPainterPath& logical, const ListPen* pen, const ListBrush* brush) {
  surface_.ClippedList().AddShape(ToDevice().map(logical), pen, brush);
}

void AreaPainter::Pixel(QPointF point, QColor color) {
  const QPointF device = ToDevice().map(point);
  QPainterPath path;
  path.addRect(QRectF(device, QSizeF(1, 1)));
  surface_.Fill(path, {MetaBrush::Kind::Solid, color, Qt::SolidPattern, {}, false});
}

void AreaPainter::Box(const QRectF& box, QColor color) {
  QPainterPath path;
  path.addRect(box);
  surface_.Fill(ToDevice().map(path), color);
}

void AreaPainter::Region(const MetaRegion& region, const MetaBrush& brush) {
  surface_.Fill(ToDevice().map(RegionPath(region)), brush);
}

void AreaPainter::FrameRegion(const MetaRegion& region, const MetaBrush& brush, QSizeF size) {
  MetaRegion frame;
  for (const QRectF& box : region) {
    const double width = std::min(std::abs(size.width()), box.width());
    const double height = std::min(std::abs(size.height()), box.height());
    frame.push_back({box.left(), box.top(), box.width(), height});
    frame.push_back({box.left(), box.bottom() - height, box.width(), height});
    frame.push_back({box.left(), box.top(), width, box.height()});
    frame.push_back({box.right() - width, box.top(), width, box.height()});
  }
  Region(frame, brush);
}

void AreaPainter::InvertRegion(const MetaRegion& region) {
  Region(region, {MetaBrush::Kind::Solid, Qt::black, Qt::SolidPattern, {}, false});
}

void AreaPainter::PatternBlock(const QRectF& box, std::uint32_t rop) {
  if (surface_.State().Brush->Is == MetaBrush::Kind::Null && (rop >> 16 & 0xFF) == PatternCopy >> 16) return;
  QPainterPath path;
  path.addRect(box.normalized());
  const QPainterPath device = ToDevice().map(path);
  if ((rop >> 16 & 0xFF) == PatternCopy >> 16) return surface_.Fill(device, *surface_.State().Brush);
  const std::optional<QColor> color = PatternOnWhite(rop, surface_.State().Brush->Color);
  if (color) Box(box.normalized(), *color);
}

void AreaPainter::GradientBox(const QRectF& box, QColor from, QColor to, bool down) {
  const QTransform toDevice = ToDevice();
  QLinearGradient gradient(toDevice.map(box.topLeft()),
                           toDevice.map(down ? box.bottomLeft() : box.topRight()));
  gradient.setColorAt(0, from);
  gradient.setColorAt(1, to);
  QPainterPath path;
  path.addRect(box);
  const ListBrush brush{QBrush(gradient)};
  surface_.ClippedList().AddShape(toDevice.map(path), nullptr, &brush);
}

// In small triangles of one colour each.
void AreaPainter::GradientTriangle(const std::vector<QPointF>& corners, const std::vector<QColor>& colors) {
  const int steps = ++triangles_ <= MostFineTriangles ? FineSteps : 1;
  const QTransform toDevice = ToDevice();
  const auto at = [&](double a, double b) {
    return toDevice.map(corners[0] * (1 - a - b) + corners[1] * a + corners[2] * b);
  };
  const auto draw = [&](double a, double b, double step) {
    QPainterPath path(at(a, b));
    path.lineTo(at(a + step, b));
    path.lineTo(at(a, b + step));
    path.closeSubpath();
    const QColor color = Mix(colors, a + step / 3, b + step / 3);
    const ListBrush brush{QBrush(color)};
    const ListPen pen{QPen(color), 0, true};  // closes the seam to the next
    surface_.ClippedList().AddShape(path, &pen, &brush);
  };
  const double step = 1.0 / steps;
  for (int i = 0; i < steps; ++i) {
    for (int j = 0; i + j < steps; ++j) {
      draw(i * step, j * step, step);
      if (i + j + 1 < steps) draw((i + 1) * step, (j + 1) * step, -step);
    }
  }
}

}  // namespace tarvis
