// Filling with brushes and drawing with pens of the extended records.
#include <cmath>

#include "pictures/metafile/emf_plus/emf_plus_playback.h"

namespace tarvis {
namespace {

constexpr int RingsOfOne = 48;
constexpr int MostRings = 3000;  // in a whole picture
constexpr int MostCorners = 400;
constexpr int MostCappedElements = 20000;

QColor ColorAt(const QGradientStops& stops, double place) {
  for (qsizetype i = 1; i < stops.size(); ++i) {
    if (stops[i].first < place) continue;
    const double span = std::max(stops[i].first - stops[i - 1].first, 1e-9);
    const auto part = static_cast<float>(std::clamp((place - stops[i - 1].first) / span, 0.0, 1.0));
    const QColor &a = stops[i - 1].second, &b = stops[i].second;
    const auto mix = [part](float from, float to) { return from + (to - from) * part; };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()),
                            mix(a.alphaF(), b.alphaF()));
  }
  return stops.isEmpty() ? QColor(Qt::black) : stops.last().second;
}

// One open line of a path: where it ends, and where it comes from there.
struct LineEnds {
  QPointF Start, AfterStart, BeforeEnd, End;
};

std::vector<LineEnds> OpenLines(const QPainterPath& path) {
  std::vector<LineEnds> lines;
  const int count = path.elementCount();
  for (int first = 0, next = 0; first < count; first = next) {
    for (next = first + 1; next < count && !path.elementAt(next).isMoveTo();) ++next;
    const QPointF start = path.elementAt(first), end = path.elementAt(next - 1);
    if (next - first < 2 || start == end) continue;
    lines.push_back({start, path.elementAt(first + 1), path.elementAt(next - 2), end});
  }
  return lines;
}

// From widths of a pen to the picture, for a cap at `at` of a line that comes from `from`.
QTransform CapPlace(QPointF from, QPointF at, double width) {
  const QPointF way = at - from;
  const double length = std::hypot(way.x(), way.y());
  if (length <= 0) return QTransform(0, 0, 0, 0, at.x(), at.y());
  const QPointF along = way / length * width;
  return QTransform(-along.y(), along.x(), along.x(), along.y(), at.x(), at.y());
}

// The path with its straight ends moved back, so that caps with a tip stay sharp.
QPainterPath Shortened(const QPainterPath& path, double startInset, double endInset) {
  const int last = path.elementCount() - 1;
  if (last < 1 || OpenLines(path).size() != 1) return path;
  QPainterPath cut = path;
  const auto move = [&cut](int end, int neighbour, double inset) {
    const QLineF line(cut.elementAt(end), cut.elementAt(neighbour));
    if (inset <= 0 || line.length() <= inset) return;
    const QPointF to = line.pointAt(inset / line.length());
    cut.setElementPositionAt(end, to.x(), to.y());
  };
  if (path.elementAt(1).isLineTo()) move(0, 1, startInset);
  if (path.elementAt(last).isLineTo()) move(last, last - 1, endInset);
  return cut;
}

}  // namespace

PlusBrush PlusPlayback::BrushOf(std::uint32_t flags, std::uint32_t brush) const {
  if ((flags & PlusColorFlag) != 0) return {ListBrush{QBrush(PlusColor(brush))}, nullptr};
  auto plus = At<PlusBrush>(brush);
  QBrush& list = plus.List.Brush;
  if (list.gradient() != nullptr || plus.List.Placed)
    list.setTransform(list.transform() * Draw.Context().ToDevice());
  return plus;
}

void PlusPlayback::Fill(const QPainterPath& path, std::uint32_t flags, std::uint32_t brush) {
  const PlusBrush plus = BrushOf(flags, brush);
  if (plus.Path != nullptr) return FillPathGradient(path, *plus.Path);
  Draw.Areas().Paint(path, nullptr, &plus.List);
}

void PlusPlayback::FillPathGradient(const QPainterPath& path, const PathGradient& gradient) {
  if (gradient.Outline.elementCount() < 2) throw SkipRecord();
  const auto clip = Draw.State().Clip;
  const QTransform world = Draw.State().World;
  Draw.Clip().Select(Draw.Context().ToDevice().map(path), ClipMode::And);
  Draw.State().World = gradient.Transform * world;
  const bool wedges = gradient.Around.size() > 1 && gradient.Outline.elementCount() <= MostCorners;
  if (wedges) {
    Wedges(gradient);
  } else {
    Rings(gradient);
  }
  Draw.State().World = world;
  Draw.State().Clip = clip;
}

// The outline shrinks towards the centre, ring by ring.
void PlusPlayback::Rings(const PathGradient& gradient) {
  const int rings = (rings_ += RingsOfOne) <= MostRings ? RingsOfOne : 4;
  for (int i = 0; i < rings; ++i) {
    const auto place = static_cast<double>(i) / rings;
    const ListBrush brush{QBrush(ColorAt(gradient.Stops, place + 0.5 / rings))};
    const QPointF center = gradient.Center;
    const QTransform shrink = QTransform::fromTranslate(-center.x(), -center.y()) *
                              QTransform::fromScale(1 - place, 1 - place) *
                              QTransform::fromTranslate(center.x(), center.y());
    Draw.Areas().Paint(shrink.map(gradient.Outline), nullptr, &brush);
  }
}

// A triangle from each side of the outline to the centre.
void PlusPlayback::Wedges(const PathGradient& gradient) {
  const std::vector<QColor>& around = gradient.Around;
  const auto color = [&](std::size_t i) { return around[std::min(i, around.size() - 1)]; };
  const auto sides = static_cast<std::size_t>(gradient.Outline.elementCount()) - 1;
  for (std::size_t i = 0; i < sides; ++i) {
    const std::size_t next = i + 1 == sides ? 0 : i + 1;
    const auto corner = [&](std::size_t k) {
      return QPointF(gradient.Outline.elementAt(static_cast<int>(k)));
    };
    Draw.Areas().GradientTriangle({gradient.Center, corner(i), corner(i + 1)},
                                  {gradient.Inside, color(i), color(next)});
  }
}

void PlusPlayback::Stroke(const QPainterPath& path, std::uint32_t pen) {
  const auto& plus = At<PlusPen>(pen & 0xFF);
  ListPen list = plus.Pen;
  const double scale = Draw.Context().Scale();
  list.Width = plus.InPixels ? plus.Width : plus.Width * scale;
  list.Hairline = list.Width == 0;
  if (list.Pen.brush().gradient() != nullptr) {
    QBrush brush = list.Pen.brush();
    brush.setTransform(brush.transform() * Draw.Context().ToDevice());
    list.Pen.setBrush(brush);
  }
  const bool capped = !plus.Start.Shape.isEmpty() || !plus.End.Shape.isEmpty();
  if (!capped || path.elementCount() > MostCappedElements) return Draw.Areas().Paint(path, &list, nullptr);
  const double width = plus.InPixels && scale > 0 ? plus.Width / scale : plus.Width;
  Draw.Areas().Paint(Shortened(path, plus.Start.Inset * width, plus.End.Inset * width), &list, nullptr);
  Caps(path, plus, width);
}

void PlusPlayback::Caps(const QPainterPath& path, const PlusPen& pen, double width) {
  const ListBrush brush{pen.Pen.Pen.color()};
  for (const LineEnds& line : OpenLines(path)) {
    Draw.Areas().Paint(CapPlace(line.AfterStart, line.Start, width).map(pen.Start.Shape), nullptr, &brush);
    Draw.Areas().Paint(CapPlace(line.BeforeEnd, line.End, width).map(pen.End.Shape), nullptr, &brush);
  }
}

}  // namespace tarvis
