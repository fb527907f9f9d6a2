#include "pictures/metafile/list/area_coverage.h"

#include <QColor>
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace tarvis {
namespace {

// Each edge adds to the pixels that it passes by how much the covered part of their row changes there; the
// sums from the left are what is covered.
class CoverageChanges {
 public:
  explicit CoverageChanges(QSize size)
      : width_(static_cast<std::size_t>(size.width())),
        height_(size.height()),
        changes_((width_ + 2) * static_cast<std::size_t>(size.height())) {}

  void AddEdge(QPointF from, QPointF to) {
    if (from.y() == to.y()) return;
    const double direction = from.y() < to.y() ? 1 : -1;
    if (direction < 0) std::swap(from, to);
    const double slope = (to.x() - from.x()) / (to.y() - from.y());
    const double top = std::max(from.y(), 0.0);
    const double bottom = std::min(to.y(), static_cast<double>(height_));
    if (!(top < bottom)) return;
    double x = from.x() + (top - from.y()) * slope;
    for (int row = static_cast<int>(top); row < height_ && row < bottom; ++row) {
      const double high = std::max(static_cast<double>(row), top);
      const double low = std::min(static_cast<double>(row + 1), bottom);
      const double next = x + (low - high) * slope;
      AddInRow(row, x, next, (low - high) * direction);
      x = next;
    }
  }

  const float* Row(int row) const { return changes_.data() + static_cast<std::size_t>(row) * (width_ + 2); }

 private:
  // A piece of an edge inside one row: it changes what is covered by `change`, spread from `from` to `to`.
  void AddInRow(int row, double from, double to, double change) {
    const auto inside = [this](double x) { return std::clamp(x, 0.0, static_cast<double>(width_)); };
    const double left = inside(std::min(from, to)), right = inside(std::max(from, to));
    float* changes = changes_.data() + static_cast<std::size_t>(row) * (width_ + 2);
    const auto first = static_cast<std::size_t>(left), last = static_cast<std::size_t>(right);
    if (first == last) {
      const double middle = (left + right) / 2 - static_cast<double>(first);
      changes[first] += static_cast<float>(change * (1 - middle));
      changes[first + 1] += static_cast<float>(change * middle);
      return;
    }
    // What lies left of x of the piece is covered so far: an integral of its ramp over each pixel.
    double before = 0;
    const auto covered = [&](double x) {
      const double along = std::clamp(x, left, right) - left;
      return along * along / 2 + std::max(x - right, 0.0) * (right - left);
    };
    double sum = 0;
    for (std::size_t pixel = first; pixel <= last + 1; ++pixel) {
      const double upTo = covered(static_cast<double>(pixel + 1)) / (right - left);
      const double here = upTo - before;  // of this pixel
      changes[std::min(pixel, width_ + 1)] += static_cast<float>(change * (here - sum));
      sum = here;
      before = upTo;
    }
  }

  std::size_t width_;
  int height_;
  std::vector<float> changes_;
};

double Covered(double sum, Qt::FillRule rule) {
  const double all = std::abs(sum);
  if (rule == Qt::WindingFill) return std::min(all, 1.0);
  const double part = std::fmod(all, 2.0);
  return part > 1 ? 2 - part : part;
}

}  // namespace

QImage AreaInColor(std::span<const QPolygonF> area, Qt::FillRule rule, const QRect& pixels,
                   const QColor& color) {
  QImage image(pixels.size(), QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) return image;
  CoverageChanges changes(pixels.size());
  const QPointF corner(pixels.topLeft());
  for (const QPolygonF& polygon : area)
    for (qsizetype i = 0; i < polygon.size(); ++i)
      changes.AddEdge(polygon[i] - corner, polygon[i + 1 == polygon.size() ? 0 : i + 1] - corner);
  std::array<QRgb, 256> shades{};
  for (int i = 0; i < 256; ++i)
    shades[static_cast<std::size_t>(i)] =
        qPremultiply(qRgba(color.red(), color.green(), color.blue(), color.alpha() * i / 255));
  for (int y = 0; y < pixels.height(); ++y) {
    const float* row = changes.Row(y);
    auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
    double sum = 0;
    for (int x = 0; x < pixels.width(); ++x) {
      sum += static_cast<double>(row[x]);
      to[x] = shades[static_cast<std::size_t>(std::lround(Covered(sum, rule) * 255))];
    }
  }
  return image;
}

}  // namespace tarvis
