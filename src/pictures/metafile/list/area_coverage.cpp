#include "pictures/metafile/list/area_coverage.h"

#include <QColor>
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace tarvis {
namespace {

// Each edge changes what is covered from there to the right: of the pixels that it passes by the part that
// lies right of it, of the next pixel by the rest. Inside one column of pixels this grows evenly from row to
// row, so a steep edge needs two entries only, where it starts and where it ends, however many rows it
// passes:
//
//   row of a start   Value += v   Growth += g     each row adds the growth to the value of the row above it
//   row of an end    Value -= v + rows * g   Growth -= g
class CoverageChanges {
 public:
  explicit CoverageChanges(QSize size)
      : width_(size.width()),
        height_(size.height()),
        changes_(static_cast<std::size_t>(width_ + 2) * static_cast<std::size_t>(height_ + 1)) {}

  void AddEdge(QPointF from, QPointF to) {
    if (from.y() == to.y()) return;
    const double direction = from.y() < to.y() ? 1 : -1;
    if (direction < 0) std::swap(from, to);
    const double top = std::max(from.y(), 0.0);
    const double bottom = std::min(to.y(), static_cast<double>(height_));
    if (!(top < bottom)) return;
    const double slope = (to.x() - from.x()) / (to.y() - from.y());
    const auto xAt = [&](double y) { return from.x() + (y - from.y()) * slope; };
    const auto yAt = [&](double x) { return std::clamp(from.y() + (x - from.x()) / slope, top, bottom); };
    const double left = std::min(xAt(top), xAt(bottom)), right = std::max(xAt(top), xAt(bottom));
    const Line line{slope, direction};
    // What lies left of all pixels covers whole rows.
    if (right <= 0) return AddInColumn(0, {top, bottom, 0}, {0, direction});
    if (left < 0) AddInColumn(0, slope > 0 ? Span{top, yAt(0), 0} : Span{yAt(0), bottom, 0}, {0, direction});
    const int last = right < width_ ? static_cast<int>(right) : width_ - 1;
    for (int column = left > 0 ? static_cast<int>(std::min(left, 1.0 * width_)) : 0; column <= last;
         ++column) {
      Span span{top, bottom, 0};
      if (column > left) (slope > 0 ? span.Top : span.Bottom) = yAt(column);
      if (column + 1 < right) (slope > 0 ? span.Bottom : span.Top) = yAt(column + 1);
      span.Offset = xAt(span.Top) - column;
      AddInColumn(column, span, line);
    }
  }

  // Calls `row` for each row with the sums of its changes from the left, a number for each pixel.
  template <typename Row>
  void ForEachRow(Row row) const {
    const auto width = static_cast<std::size_t>(width_);
    std::vector<double> values(width), growths(width);
    std::vector<float> sums(width);
    for (int y = 0; y < height_; ++y) {
      const Change* changes = &changes_[Index(y, 0)];
      double sum = 0;
      for (std::size_t x = 0; x < width; ++x) {
        values[x] += growths[x] + static_cast<double>(changes[x].Value);
        growths[x] += static_cast<double>(changes[x].Growth);
        sum += values[x];
        sums[x] = static_cast<float>(sum);
      }
      row(y, sums);
    }
  }

 private:
  struct Change {
    float Value = 0;
    float Growth = 0;
  };
  struct Line {
    double Slope;      // sideways from row to row
    double Direction;  // 1 downwards, -1 upwards
  };
  // A piece of an edge inside one column; `Offset` is how far from the column's left it starts.
  struct Span {
    double Top, Bottom, Offset;
  };

  std::size_t Index(int row, int column) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(width_ + 2) +
           static_cast<std::size_t>(column);
  }

  void AddInColumn(int column, const Span& span, const Line& line) {
    if (!(span.Top < span.Bottom)) return;
    const int firstRow = static_cast<int>(span.Top), lastRow = static_cast<int>(span.Bottom);
    if (firstRow == lastRow) return AddInPixel(firstRow, column, span, line);
    int wholeRow = firstRow;
    if (span.Top > firstRow) {
      wholeRow = firstRow + 1;
      AddInPixel(firstRow, column, {span.Top, 1.0 * wholeRow, span.Offset}, line);
    }
    const auto offsetAt = [&](double y) { return span.Offset + (y - span.Top) * line.Slope; };
    if (span.Bottom > lastRow)
      AddInPixel(lastRow, column, {1.0 * lastRow, span.Bottom, offsetAt(lastRow)}, line);
    const double middle = offsetAt(wholeRow + 0.5) * line.Direction, growth = line.Slope * line.Direction;
    AddRows(wholeRow, lastRow, column, line.Direction - middle, -growth);
    AddRows(wholeRow, lastRow, column + 1, middle, growth);
  }

  void AddInPixel(int row, int column, const Span& span, const Line& line) {
    const double height = span.Bottom - span.Top;
    const double middle = std::clamp(span.Offset + height / 2 * line.Slope, 0.0, 1.0);
    AddRows(row, row + 1, column, height * (1 - middle) * line.Direction, 0);
    AddRows(row, row + 1, column + 1, height * middle * line.Direction, 0);
  }

  // Adds `value` in the first row, and `growth` more in each that follows before `end`.
  void AddRows(int first, int end, int column, double value, double growth) {
    if (first >= end) return;
    Change& start = changes_[Index(first, column)];
    start.Value += static_cast<float>(value);
    start.Growth += static_cast<float>(growth);
    Change& after = changes_[Index(end, column)];
    after.Value -= static_cast<float>(value + (end - first) * growth);
    after.Growth -= static_cast<float>(growth);
  }

  int width_;
  int height_;
  std::vector<Change> changes_;
};

float Covered(float sum, Qt::FillRule rule) {
  const float all = std::abs(sum);
  if (rule == Qt::WindingFill) return std::min(all, 1.0F);
  const float part = all - 2 * std::floor(all / 2);
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
  changes.ForEachRow([&](int y, std::span<const float> sums) {
    auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (const float sum : sums) *to++ = shades[static_cast<std::size_t>(Covered(sum, rule) * 255 + 0.5F)];
  });
  return image;
}

}  // namespace tarvis
