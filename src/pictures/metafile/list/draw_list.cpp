#include "pictures/metafile/list/draw_list.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "pictures/metafile/list/dash_finder.h"

namespace tarvis {
namespace {

constexpr std::size_t PathElementBytes = 24;
constexpr std::size_t MostLinesAtATime = 512;
constexpr double FinestParts = 2000;  // of the picture's extent that the end of a dash may be off

// Whether two lines look the same with a joint between them as each with its ends.
bool JoinsUnseen(const ListPen& pen) {
  const bool isRound = pen.Pen.capStyle() == Qt::RoundCap && pen.Pen.joinStyle() == Qt::RoundJoin;
  return (pen.Hairline || isRound) && pen.Pen.style() == Qt::SolidLine;
}

}  // namespace

void DrawList::AddCommand(ListCommand command) {
  if (clipPending_) {
    clipPending_ = false;
    budget_->TakeKeptBytes(sizeof(ListCommand) + sizeof(clip_));
    if (clip_ == nullptr) clip_ = std::make_shared<ListClip>();
    for (const auto& path : clip_->Paths)
      budget_->TakeKeptBytes(64 + static_cast<std::size_t>(path->elementCount()) * PathElementBytes);
    commands_.push_back({.Kind = ListKind::Clip, .Index = ListNumber(clips_.size())});
    clips_.push_back(clip_);
  }
  budget_->TakeKeptBytes(sizeof(ListCommand));
  commands_.push_back(command);
}

void DrawList::AddShape(const QPainterPath& path, const ListPen* pen, const ListBrush* brush) {
  if (path.isEmpty() || (pen == nullptr && brush == nullptr)) return;
  FlushLines();
  const auto elements = static_cast<std::size_t>(path.elementCount());
  budget_->TakeElements(elements);
  budget_->TakeKeptBytes(Outlines::BytesOf(path));
  const std::uint32_t outline = outlines_.Add(path);
  AddCommand({.Kind = ListKind::Shape,
              .Winding = path.fillRule() == Qt::WindingFill,
              .Pen = inks_.Add(pen, *budget_),
              .Brush = inks_.Add(brush, *budget_),
              .Index = outline});
}

void DrawList::AddText(const QPainterPath& outline, ListText text) {
  const ListBrush brush{QBrush(text.Color)};
  if (outline.isEmpty()) return;  // nothing but blanks
  AddShape(outline, nullptr, &brush);
  budget_->TakeKeptBytes(sizeof(ListText) +
                         text.Characters.size() * (sizeof(char32_t) + 2 * sizeof(QPointF)));
  commands_.back().Text = static_cast<std::int32_t>(texts_.size());
  texts_.push_back(std::move(text));
}

void DrawList::AddPolyline(std::span<const QPointF> points, const ListPen& pen, double unit) {
  if (points.size() < 2) return;
  budget_->TakeElements(points.size());
  if (!(linePen_ == pen) || lineUnit_ != unit || lines_.size() >= MostLinesAtATime) FlushLines();
  linePen_ = pen;
  lineUnit_ = unit;
  const bool goesOn = !lines_.empty() && lines_.back().last() == points.front() && JoinsUnseen(pen);
  if (!goesOn) lines_.emplace_back();
  for (const QPointF& point : goesOn ? points.subspan(1) : points) lines_.back().append(point);
}

void DrawList::FlushLines() {
  const std::vector<QPolygonF> lines = std::exchange(lines_, {});
  const bool isSolid = linePen_.Pen.style() == Qt::SolidLine;
  const double tolerance = std::min(lineUnit_, extent_ / FinestParts) * 0.75;
  for (std::size_t i = 0; i < lines.size();) {
    const std::span<const QPolygonF> rest = std::span(lines).subspan(i);
    const auto dashed = isSolid ? FindDashedLine(rest, tolerance) : std::nullopt;
    if (!dashed) {
      EmitLine(lines[i++], linePen_);
      continue;
    }
    ListPen pen = linePen_;
    pen.PlacedDashes = true;
    pen.Pen.setDashPattern(QList<qreal>(dashed->Dashes.begin(), dashed->Dashes.end()));
    EmitLine(dashed->Line, pen);
    i += dashed->Count;
  }
}

void DrawList::EmitLine(const QPolygonF& points, const ListPen& pen) {
  budget_->TakeKeptBytes(Outlines::BytesOf(points));
  const std::uint32_t outline = outlines_.Add(points);
  AddCommand({.Kind = ListKind::Shape, .Pen = inks_.Add(&pen, *budget_), .Index = outline});
}

void DrawList::AddImage(ListImage image) {
  FlushLines();
  const auto bytes = static_cast<std::size_t>(image.Image.sizeInBytes());
  budget_->TakeKeptBytes(sizeof(ListImage) + bytes);
  imageBytes_ += bytes;
  images_.push_back(std::move(image));
  AddCommand({.Kind = ListKind::Image, .Index = ListNumber(images_.size() - 1)});
}

std::size_t DrawList::PaintedElements() const {
  return outlines_.PointCount() + commands_.size() + elementsOfParts_;
}

void DrawList::AddPart(ListPart part) {
  FlushLines();
  const std::size_t elements = part.List->PaintedElements();
  budget_->TakeElements(elements);
  budget_->TakeKeptBytes(sizeof(ListPart) + part.List->imageBytes_);
  elementsOfParts_ += elements;
  imageBytes_ += part.List->imageBytes_;
  parts_.push_back(std::move(part));
  AddCommand({.Kind = ListKind::Part, .Index = ListNumber(parts_.size() - 1)});
}

bool DrawList::DropLastImages(std::size_t count) {
  FlushLines();
  if (commands_.size() < count) return false;
  const auto first = commands_.end() - static_cast<std::ptrdiff_t>(count);
  if (!std::all_of(first, commands_.end(), [](const ListCommand& c) { return c.Kind == ListKind::Image; }))
    return false;
  commands_.erase(first, commands_.end());
  images_.resize(images_.size() - count);
  return true;
}

void DrawList::Truncate(std::size_t first) {
  FlushLines();
  commands_.resize(std::min(first, commands_.size()));
  asked_ = std::make_shared<ListClip>();  // whatever clip comes next is new
}

void DrawList::SetClip(std::shared_ptr<const ListClip> clip) {
  if (clip == asked_) return;
  FlushLines();
  asked_ = clip;
  clip_ = std::move(clip);
  clipPending_ = true;
}

bool DrawList::ShowsInk() const {
  const auto isInk = [](const QBrush& brush) {
    const bool isPlain = brush.style() == Qt::SolidPattern;
    return !isPlain || (brush.color() != QColor(Qt::white) && brush.color().alpha() > 0);
  };
  return std::ranges::any_of(commands_, [&](const ListCommand& command) {
    if (command.Kind == ListKind::Image) return true;
    if (command.Kind == ListKind::Clip) return false;
    if (command.Kind == ListKind::Part) return parts_[command.Index].List->ShowsInk();
    return (command.Pen >= 0 && isInk(inks_.Pen(command.Pen).Pen.brush())) ||
           (command.Brush >= 0 &&
            (HasDots(inks_.Brush(command.Brush).Dots) || isInk(inks_.Brush(command.Brush).Brush)));
  });
}

QRectF DrawList::Bounds() const {
  QRectF bounds;
  for (const ListImage& image : images_) bounds |= image.Place.mapRect(image.Source);
  for (const ListPart& part : parts_) bounds |= part.Place.mapRect(part.Frame);
  if (outlines_.PointCount() == 0) return bounds;
  const QRectF box = outlines_.Bounds();
  return bounds.isNull() ? box : bounds.united(box);
}

}  // namespace tarvis
