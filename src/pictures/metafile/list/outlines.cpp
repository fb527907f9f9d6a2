#include "pictures/metafile/list/outlines.h"

#include <algorithm>
#include <cmath>

namespace tarvis {
double LengthOf(const QPolygonF& line) {
  double length = 0;
  for (qsizetype i = 1; i < line.size(); ++i)
    length += std::hypot(line[i].x() - line[i - 1].x(), line[i].y() - line[i - 1].y());
  return length;
}

std::size_t Outlines::BytesOf(const QPainterPath& path) {
  return sizeof(Outline) + static_cast<std::size_t>(path.elementCount()) * (sizeof(ListPoint) + sizeof(Verb));
}

std::size_t Outlines::BytesOf(const QPolygonF& line) {
  return sizeof(Outline) + static_cast<std::size_t>(line.size()) * sizeof(ListPoint);
}

void Outlines::AddPoint(double x, double y) {
  const auto cut = [this](double value) {
    return static_cast<float>(std::isfinite(value) ? std::clamp(value, -reach_, reach_) : 0.0);
  };
  points_.push_back({cut(x), cut(y)});
}

std::uint32_t Outlines::Add(const QPainterPath& path) {
  Outline outline{ListNumber(points_.size()), 0, ListNumber(verbs_.size()), 0};
  for (int i = 0; i < path.elementCount(); ++i) {
    const QPainterPath::Element element = path.elementAt(i);
    AddPoint(element.x, element.y);
    if (element.type == QPainterPath::CurveToDataElement) continue;
    verbs_.push_back(element.isMoveTo() ? Verb::Move : element.isLineTo() ? Verb::Line : Verb::Curve);
  }
  outline.PointCount = ListNumber(points_.size()) - outline.FirstPoint;
  outline.VerbCount = ListNumber(verbs_.size()) - outline.FirstVerb;
  outlines_.push_back(outline);
  return ListNumber(outlines_.size() - 1);
}

std::uint32_t Outlines::Add(const QPolygonF& line) {
  outlines_.push_back({ListNumber(points_.size()), ListNumber(static_cast<std::size_t>(line.size())), 0, 0});
  for (const QPointF& point : line) AddPoint(point.x(), point.y());
  return ListNumber(outlines_.size() - 1);
}

QRectF Outlines::Bounds() const {
  if (points_.empty()) return {};
  const auto [left, right] = std::ranges::minmax(points_, {}, &ListPoint::X);
  const auto [top, bottom] = std::ranges::minmax(points_, {}, &ListPoint::Y);
  return {QPointF(static_cast<double>(left.X), static_cast<double>(top.Y)),
          QPointF(static_cast<double>(right.X), static_cast<double>(bottom.Y))};
}

}  // namespace tarvis
