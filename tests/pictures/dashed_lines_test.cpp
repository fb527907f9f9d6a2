// Dashes that a writer drew one by one are one line with a pattern again.
#include <gtest/gtest.h>

#include <cmath>

#include "metafile_writer.h"
#include "pictures/metafile/list/dash_finder.h"

namespace tarvis {
namespace {

// Dashes of 12 and gaps of 6 along a curve, their ends rounded to whole units.
std::vector<QPolygonF> DashesAlongACurve(int count) {
  const auto at = [](double along) {
    return QPointF(std::round(along), std::round(200 + 100 * std::sin(along / 300)));
  };
  std::vector<QPolygonF> lines;
  for (int i = 0; i < count; ++i) lines.push_back(QPolygonF({at(18.0 * i), at(18.0 * i + 12)}));
  return lines;
}

TEST(DashedLines, AreFoundInAStraightLine) {
  std::vector<QPolygonF> lines;
  for (int i = 0; i < 100; ++i) lines.push_back(QPolygonF({QPointF(18 * i, 0), QPointF(18 * i + 12, 0)}));
  const auto found = FindDashedLine(lines, 0.75);
  ASSERT_TRUE(found);
  EXPECT_EQ(found->Count, 100u);
  EXPECT_EQ(found->Line, QPolygonF({QPointF(0, 0), QPointF(18 * 99 + 12, 0)}));
  EXPECT_EQ(found->Dashes, (std::vector<double>{12, 6}));
}

TEST(DashedLines, KeepThePatternOfDashesAndDots) {
  std::vector<QPolygonF> lines;
  for (int i = 0; i < 20; ++i) {
    lines.push_back(QPolygonF({QPointF(0, 30 * i), QPointF(0, 30 * i + 14)}));
    lines.push_back(QPolygonF({QPointF(0, 30 * i + 20), QPointF(0, 30 * i + 24)}));
  }
  const auto found = FindDashedLine(lines, 0.75);
  ASSERT_TRUE(found);
  EXPECT_EQ(found->Dashes, (std::vector<double>{14, 6, 4, 6}));
}

TEST(DashedLines, AlongACurveNeedFarFewerPoints) {
  const std::vector<QPolygonF> lines = DashesAlongACurve(100);
  std::size_t taken = 0;
  qsizetype points = 0;
  while (taken < lines.size()) {
    const auto found = FindDashedLine(std::span(lines).subspan(taken), 0.75);
    if (!found) break;
    taken += found->Count;
    points += found->Line.size();
  }
  EXPECT_GT(taken, 90u);
  EXPECT_LT(points, 70);
}

TEST(DashedLines, AreNoneOfLinesThatTurnOrKeepNoPattern) {
  std::vector<QPolygonF> ticks, uneven;
  for (int i = 0; i < 50; ++i) {
    ticks.push_back(QPolygonF({QPointF(10 * i, 0), QPointF(10 * i, 5)}));
    uneven.push_back(QPolygonF({QPointF(100 * i, 0), QPointF(100 * i + i * i % 90, 0)}));
  }
  EXPECT_FALSE(FindDashedLine(ticks, 0.75));
  EXPECT_FALSE(FindDashedLine(uneven, 0.75));
  EXPECT_FALSE(FindDashedLine(std::span(ticks).first(2), 0.75));
}

EmfWriter CurveOfDashes() {
  EmfWriter emf;
  emf.Set(17, 8).Pair(9, 1800, 1800).Pair(11, 100, 100).Pen(0, 8);
  for (const QPolygonF& dash : DashesAlongACurve(100)) {
    emf.Pair(27, static_cast<int>(dash[0].x()), static_cast<int>(dash[0].y()));
    emf.Pair(54, static_cast<int>(dash[1].x()), static_cast<int>(dash[1].y()));
  }
  return emf;
}

TEST(DashedLines, LookAsTheDashesThatTheyReplace) {
  const QImage shown = CurveOfDashes().Show({1800, 1800});
  QImage drawn(1800, 1800, QImage::Format_RGB32);
  drawn.fill(Qt::white);
  QPainter painter(&drawn);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Qt::black, 8, Qt::SolidLine, Qt::RoundCap));
  for (const QPolygonF& dash : DashesAlongACurve(100)) painter.drawLine(dash[0], dash[1]);
  painter.end();
  int different = 0;
  for (int y = 0; y < 1800; ++y)
    for (int x = 0; x < 1800; ++x)
      different += std::abs(qGray(shown.pixel(x, y)) - qGray(drawn.pixel(x, y))) > 128 ? 1 : 0;
  EXPECT_LT(different, InkedPixels(drawn) / 12);
}

TEST(DashedLines, BecomeFewDrawingStepsOfAFile) {
  EXPECT_LT(Play(CurveOfDashes().Bytes())->List().Commands().size(), 40u);
}

TEST(JoinedLines, AreOneIfTheyGoOnWhereTheLastEnded) {
  EmfWriter emf;
  emf.Pen(0, 3).Pair(27, 5, 5);
  for (int i = 1; i < 50; ++i) emf.Pair(54, 5 + i, 5 + i % 7);
  EXPECT_EQ(Play(emf.Bytes())->List().Commands().size(), 1u);
}

TEST(JoinedLines, KeepTheirFlatEndsApart) {
  constexpr std::uint32_t geometricFlat = 0x10000 | 0x200;
  EmfWriter emf;
  emf.WidePen(0, 6, geometricFlat).Pair(27, 5, 5).Pair(54, 50, 5).Pair(54, 50, 50);
  EXPECT_EQ(Play(emf.Bytes())->List().Commands().size(), 2u);
}

}  // namespace
}  // namespace tarvis
