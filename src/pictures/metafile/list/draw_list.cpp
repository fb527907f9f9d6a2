#include "pictures/metafile/list/draw_list.h"

#include <algorithm>
#include <cmath>

namespace tarvis {
namespace {

constexpr std::size_t PathElementBytes = 24;

std::uint32_t Count(std::size_t size) {
  return static_cast<std::uint32_t>(size);  // the budget keeps all sizes far below 32 bits
}

}  // namespace

void DrawList::AddPoint(double x, double y) {
  const auto cut = [this](double value) {
    return static_cast<float>(std::isfinite(value) ? std::clamp(value, -reach_, reach_) : 0.0);
  };
  points_.push_back({cut(x), cut(y)});
}

void DrawList::AddCommand(ListCommand command) {
  if (clipPending_) {
    clipPending_ = false;
    budget_->TakeKeptBytes(sizeof(ListCommand) + sizeof(clip_));
    if (clip_ == nullptr) clip_ = std::make_shared<ListClip>();
    for (const auto& path : clip_->Paths)
      budget_->TakeKeptBytes(64 + static_cast<std::size_t>(path->elementCount()) * PathElementBytes);
    commands_.push_back({.Kind = ListKind::Clip, .Index = Count(clips_.size())});
    clips_.push_back(clip_);
  }
  budget_->TakeKeptBytes(sizeof(ListCommand));
  commands_.push_back(command);
}

std::int32_t DrawList::PenIndex(const ListPen* pen) {
  if (pen == nullptr) return -1;
  if (pens_.empty() || !(pens_.back() == *pen)) {
    budget_->TakeKeptBytes(256);
    pens_.push_back(*pen);
  }
  return static_cast<std::int32_t>(pens_.size()) - 1;
}

std::int32_t DrawList::BrushIndex(const ListBrush* brush) {
  if (brush == nullptr) return -1;
  if (brushes_.empty() || !(brushes_.back() == *brush)) {
    budget_->TakeKeptBytes(256 + static_cast<std::size_t>(brush->Brush.textureImage().sizeInBytes()));
    brushes_.push_back(*brush);
  }
  return static_cast<std::int32_t>(brushes_.size()) - 1;
}

void DrawList::AddShape(const QPainterPath& path, const ListPen* pen, const ListBrush* brush) {
  if (path.isEmpty() || (pen == nullptr && brush == nullptr)) return;
  const auto elements = static_cast<std::size_t>(path.elementCount());
  budget_->TakeElements(elements);
  budget_->TakeKeptBytes(sizeof(Outline) + elements * (sizeof(ListPoint) + sizeof(Verb)));
  Outline outline{Count(points_.size()), 0, Count(verbs_.size()), 0};
  for (int i = 0; i < path.elementCount(); ++i) {
    const QPainterPath::Element element = path.elementAt(i);
    AddPoint(element.x, element.y);
    if (element.type == QPainterPath::CurveToDataElement) continue;
    verbs_.push_back(element.isMoveTo() ? Verb::Move : element.isLineTo() ? Verb::Line : Verb::Curve);
  }
  outline.PointCount = Count(points_.size()) - outline.FirstPoint;
  outline.VerbCount = Count(verbs_.size()) - outline.FirstVerb;
  outlines_.push_back(outline);
  AddCommand({.Kind = ListKind::Shape,
              .Winding = path.fillRule() == Qt::WindingFill,
              .Pen = PenIndex(pen),
              .Brush = BrushIndex(brush),
              .Index = Count(outlines_.size() - 1)});
}

void DrawList::AddPolyline(std::span<const QPointF> points, const ListPen& pen) {
  if (points.size() < 2) return;
  budget_->TakeElements(points.size());
  budget_->TakeKeptBytes(sizeof(Outline) + points.size() * sizeof(ListPoint));
  outlines_.push_back({Count(points_.size()), Count(points.size()), 0, 0});
  for (const QPointF& point : points) AddPoint(point.x(), point.y());
  AddCommand({.Kind = ListKind::Shape, .Pen = PenIndex(&pen), .Index = Count(outlines_.size() - 1)});
}

void DrawList::AddImage(ListImage image) {
  budget_->TakeKeptBytes(sizeof(ListImage) + static_cast<std::size_t>(image.Image.sizeInBytes()));
  images_.push_back(std::move(image));
  AddCommand({.Kind = ListKind::Image, .Index = Count(images_.size() - 1)});
}

bool DrawList::DropLastImages(std::size_t count) {
  if (commands_.size() < count) return false;
  const auto first = commands_.end() - static_cast<std::ptrdiff_t>(count);
  if (!std::all_of(first, commands_.end(), [](const ListCommand& c) { return c.Kind == ListKind::Image; }))
    return false;
  commands_.erase(first, commands_.end());
  images_.resize(images_.size() - count);
  return true;
}

void DrawList::Truncate(std::size_t first) {
  commands_.resize(std::min(first, commands_.size()));
  asked_ = std::make_shared<ListClip>();  // whatever clip comes next is new
}

void DrawList::SetClip(std::shared_ptr<const ListClip> clip) {
  if (clip == asked_) return;
  asked_ = clip;
  clip_ = std::move(clip);
  clipPending_ = true;
}

QRectF DrawList::Bounds() const {
  QRectF bounds;
  for (const ListImage& image : images_) bounds |= image.Place.mapRect(image.Source);
  if (points_.empty()) return bounds;
  const auto [left, right] = std::ranges::minmax(points_, {}, &ListPoint::X);
  const auto [top, bottom] = std::ranges::minmax(points_, {}, &ListPoint::Y);
  const QRectF box(QPointF(static_cast<double>(left.X), static_cast<double>(top.Y)),
                   QPointF(static_cast<double>(right.X), static_cast<double>(bottom.Y)));
  return bounds.isNull() ? box : bounds.united(box);
}

}  // namespace tarvis
