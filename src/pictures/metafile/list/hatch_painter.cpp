#include "pictures/metafile/list/hatch_painter.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <span>

namespace tarvis {
namespace {

constexpr double MostHatchLines = 4000;
constexpr std::size_t DotsAcross = 8;
constexpr double Overlap = 1.04;  // rows of dots that touch must leave no seam

// Calls `add` with each multiple of `step` from `from` to before `to`.
template <typename Add>
void ForEachStep(double from, double to, double step, Add add) {
  const auto last = static_cast<std::int64_t>(std::ceil(to / step));
  for (auto i = static_cast<std::int64_t>(std::ceil(from / step)); i < last; ++i)
    add(static_cast<double>(i) * step);
}

QList<QLineF> HatchLines(const QRectF& box, Qt::BrushStyle style, double step) {
  const bool across = style == Qt::HorPattern || style == Qt::CrossPattern;
  const bool down = style == Qt::VerPattern || style == Qt::CrossPattern;
  const bool falling = style == Qt::FDiagPattern || style == Qt::DiagCrossPattern;
  const bool rising = style == Qt::BDiagPattern || style == Qt::DiagCrossPattern;
  QList<QLineF> lines;
  if (across)
    ForEachStep(box.top(), box.bottom(), step,
                [&](double y) { lines << QLineF(box.left(), y, box.right(), y); });
  if (down)
    ForEachStep(box.left(), box.right(), step,
                [&](double x) { lines << QLineF(x, box.top(), x, box.bottom()); });
  if (falling)  // x - y is the same all along
    ForEachStep(box.left() - box.bottom(), box.right() - box.top(), step,
                [&](double c) { lines << QLineF(c + box.top(), box.top(), c + box.bottom(), box.bottom()); });
  if (rising)  // x + y is the same all along
    ForEachStep(box.left() + box.top(), box.right() + box.bottom(), step,
                [&](double c) { lines << QLineF(c - box.top(), box.top(), c - box.bottom(), box.bottom()); });
  return lines;
}

// The dots as a picture of one pixel each.
QImage DotImage(const ListBrush& brush) {
  constexpr int side = static_cast<int>(DotsAcross);
  QImage image(side, side, QImage::Format_ARGB32);
  const QRgb background = brush.Background.isValid() ? brush.Background.rgba() : 0;
  for (int y = 0; y < side; ++y)
    for (int x = 0; x < side; ++x)
      image.setPixel(x, y, IsDot(brush.Dots, x, y) ? brush.Brush.color().rgba() : background);
  return image;
}

// One row of dots: where a run of dots starts, and the lengths of runs and gaps by turns.
struct DotRow {
  std::size_t Start = 0;
  QList<qreal> Dashes;  // none: the row is full
};

DotRow RunsOf(std::uint8_t row) {
  std::array<bool, 2 * DotsAcross> dots{};  // the row, and again what follows it
  for (std::size_t x = 0; x < dots.size(); ++x) dots[x] = (row >> (DotsAcross - 1 - x % DotsAcross) & 1) != 0;
  DotRow runs;
  if (row == 0xFF) return runs;
  runs.Start = 1;
  while (runs.Start < DotsAcross && (dots[runs.Start - 1] || !dots[runs.Start])) ++runs.Start;
  int run = 0;
  for (std::size_t x = 0; x < DotsAcross; ++x) {
    ++run;
    const bool here = dots[(runs.Start + x) % DotsAcross];
    if (x + 1 < DotsAcross && here == dots[(runs.Start + x + 1) % DotsAcross]) continue;
    runs.Dashes << run;
    run = 0;
  }
  return runs;
}

// Each row of dots is a dashed line, so that an area takes a line for each of its rows and not a box for each
// of its dots.
void DotLines(QPainter& painter, const QRectF& box, const ListBrush& brush, double dot) {
  const double tile = dot * static_cast<double>(DotsAcross);
  const double left = std::floor(box.left() / tile) * tile;
  for (std::size_t y = 0; y < brush.Dots.size(); ++y) {
    const std::uint8_t row = brush.Dots[y];
    const std::span<const std::uint8_t> above(brush.Dots.data(), y);
    const bool isDrawnAlready = std::ranges::find(above, row) != above.end();
    if (row == 0 || isDrawnAlready) continue;
    const DotRow runs = RunsOf(row);
    QPen pen(brush.Brush.color(), dot * Overlap, Qt::SolidLine, Qt::FlatCap);
    QList<qreal> dashes = runs.Dashes;
    for (qreal& dash : dashes) dash /= Overlap;
    if (!dashes.isEmpty()) pen.setDashPattern(dashes);
    QList<QLineF> lines;
    const double start = runs.Dashes.isEmpty() ? left : left - tile + static_cast<double>(runs.Start) * dot;
    ForEachStep(box.top() - dot, box.bottom(), dot, [&](double top) {
      constexpr auto rows = static_cast<std::int64_t>(DotsAcross);
      const auto here = static_cast<std::size_t>((std::llround(top / dot) % rows + rows) % rows);
      if (brush.Dots[here] == row) lines << QLineF(start, top + dot / 2, box.right(), top + dot / 2);
    });
    painter.setPen(pen);
    painter.drawLines(lines);
  }
}

// What the eye sees of dots that are too many to be drawn.
QColor MixedColor(const ListBrush& brush) {
  int dots = 0;
  for (const std::uint8_t row : brush.Dots) dots += std::popcount(row);
  QColor color = brush.Brush.color();
  if (!brush.Background.isValid()) {
    color.setAlpha(color.alpha() * dots / 64);
    return color;
  }
  const auto mix = [dots](int a, int b) { return (a * dots + b * (64 - dots)) / 64; };
  const QColor& background = brush.Background;
  return QColor(mix(color.red(), background.red()), mix(color.green(), background.green()),
                mix(color.blue(), background.blue()), mix(color.alpha(), background.alpha()));
}

void PaintDots(QPainter& painter, const QPainterPath& path, const ListBrush& brush, const QRectF& box,
               const DeviceUnits& units) {
  const double dot = units.ScreenDot;
  if (std::max(box.width(), box.height()) > MostHatchLines * dot)
    return painter.fillPath(path, MixedColor(brush));
  if (units.OnScreen) {
    QBrush dots(DotImage(brush));
    dots.setTransform(QTransform::fromScale(dot, dot));
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    return painter.fillPath(path, dots);
  }
  if (brush.Background.isValid()) painter.fillPath(path, brush.Background);
  painter.setClipPath(path, Qt::IntersectClip);
  DotLines(painter, box, brush, dot);
}

void PaintLines(QPainter& painter, const QPainterPath& path, const ListBrush& brush, const QRectF& box,
                const DeviceUnits& units) {
  if (brush.Background.isValid()) painter.fillPath(path, brush.Background);
  if (box.isEmpty()) return;
  painter.setClipPath(path, Qt::IntersectClip);
  painter.setPen(QPen(brush.Brush.color(), std::max(units.Hairline, brush.HatchLine * units.ScreenDot)));
  painter.setRenderHint(QPainter::Antialiasing, !units.OnScreen);
  const double step =
      std::max(brush.HatchStep * units.ScreenDot, (box.width() + box.height()) / MostHatchLines);
  painter.drawLines(HatchLines(box, brush.Brush.style(), step));
}

}  // namespace

void PaintHatch(QPainter& painter, const QPainterPath& path, const ListBrush& brush, const QRectF& target,
                const DeviceUnits& units) {
  const QRectF box = path.boundingRect() & target;
  painter.save();
  if (HasDots(brush.Dots)) {
    if (!box.isEmpty()) PaintDots(painter, path, brush, box, units);
  } else {
    PaintLines(painter, path, brush, box, units);
  }
  painter.restore();
}

}  // namespace tarvis
