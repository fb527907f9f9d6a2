// Areas with thousands of corners look as the toolkit fills them.
#include "pictures/metafile/list/area_coverage.h"

#include <gtest/gtest.h>

#include <random>

#include "metafile_writer.h"

namespace tarvis {
namespace {

QImage OnWhite(const QImage& area) {
  QImage paper(area.size(), QImage::Format_RGB32);
  paper.fill(Qt::white);
  QPainter painter(&paper);
  painter.drawImage(0, 0, area);
  return paper;
}

QImage FilledByTheToolkit(const std::vector<QPolygonF>& area, Qt::FillRule rule, QSize size) {
  QImage paper(size, QImage::Format_RGB32);
  paper.fill(Qt::white);
  QPainter painter(&paper);
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath path;
  path.setFillRule(rule);
  for (const QPolygonF& polygon : area) path.addPolygon(polygon);
  painter.fillPath(path, Qt::red);
  return paper;
}

int LargestDifference(const QImage& a, const QImage& b) {
  int largest = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x)
      largest = std::max(largest, std::abs(qGreen(a.pixel(x, y)) - qGreen(b.pixel(x, y))));
  return largest;
}

TEST(AreaCoverage, IsThatOfTheToolkitUnderBothRules) {
  const std::vector<QPolygonF> star{QPolygonF({{50, 2}, {80, 95}, {3, 37}, {97.5, 37.5}, {20, 95}}),
                                    QPolygonF({{10, 10}, {90, 10.5}, {90, 60.25}, {10, 60}})};
  for (const Qt::FillRule rule : {Qt::WindingFill, Qt::OddEvenFill}) {
    const QImage ours = OnWhite(AreaInColor(star, rule, QRect(0, 0, 100, 100), Qt::red));
    EXPECT_LE(LargestDifference(ours, FilledByTheToolkit(star, rule, {100, 100})), 10) << rule;
  }
}

TEST(AreaCoverage, GivesAPartTheValuesThatItHasInTheWhole) {
  const std::vector<QPolygonF> area{QPolygonF({{-500, 20}, {50, -300}, {700, 90}, {40, 400}})};
  const QImage whole = AreaInColor(area, Qt::OddEvenFill, QRect(0, 0, 100, 100), Qt::blue);
  const QImage part = AreaInColor(area, Qt::OddEvenFill, QRect(30, 40, 50, 20), Qt::blue);
  EXPECT_EQ(part, whole.copy(30, 40, 50, 20));
}

// The area below a curve that jumps up and down from point to point.
QPolygonF NoisyArea(int points) {
  std::mt19937 random(7);
  QPolygonF area({QPointF(0, 100)});
  for (int i = 0; i < points; ++i)
    area << QPointF(100.0 * i / points, static_cast<double>(random() % 9000) / 100);
  return area << QPointF(100, 100);
}

TEST(AreaCoverage, FillsANoisyAreaOfAFileAsTheToolkitDoes) {
  const QPolygonF area = NoisyArea(1500);
  ByteWriter polygon = Box32(0, 0, 0, 0).U32(static_cast<std::uint32_t>(area.size()));
  for (const QPointF& point : area)
    polygon.I32(static_cast<int>(point.x() * 100)).I32(static_cast<int>(point.y() * 100));
  EmfWriter emf;
  emf.Set(17, 8).Pair(9, 10000, 10000).Pair(11, 100, 100).NoPen().Brush(Rgb(255, 0, 0)).Add(3, polygon);
  const QImage shown = emf.Show({400, 400});
  const QImage whole =
      FilledByTheToolkit({QTransform::fromScale(4, 4).map(area)}, Qt::OddEvenFill, {400, 400});
  long difference = 0;
  for (int y = 0; y < 400; ++y)
    for (int x = 0; x < 400; ++x)
      difference += std::abs(qGreen(shown.pixel(x, y)) - qGreen(whole.pixel(x, y)));
  EXPECT_LT(static_cast<double>(difference) / 255 / (400 * 400), 0.02);
}

}  // namespace
}  // namespace tarvis
