// What lines, shapes, pens, brushes and mappings of an enhanced metafile look like on paper.
#include <gtest/gtest.h>

#include "metafile_writer.h"
#include "pixel_colors.h"

namespace tarvis {
namespace {

TEST(EmfShapes, ARectangleIsFilledInItsPlace) {
  const QImage shown = EmfWriter().Brush(RedInk).NoPen().Rectangle(20, 30, 60, 80).Show();
  EXPECT_EQ(shown.pixelColor(21, 31), Red);
  EXPECT_EQ(shown.pixelColor(59, 79), Red);
  EXPECT_EQ(shown.pixelColor(18, 50), White);
  EXPECT_EQ(shown.pixelColor(62, 50), White);
}

TEST(EmfShapes, TheFrameFillsTheTarget) {
  EmfWriter emf;
  emf.Frame(5000, 5000, 10000, 10000).Brush(RedInk).NoPen().Rectangle(50, 50, 75, 100);
  const QImage shown = emf.Show();
  EXPECT_EQ(shown.pixelColor(2, 2), Red);
  EXPECT_EQ(shown.pixelColor(48, 97), Red);
  EXPECT_EQ(shown.pixelColor(52, 50), White);
}

TEST(EmfShapes, TheBoundsFillTheTargetWhereAFrameIsMissing) {
  EmfWriter emf;
  emf.Frame(0, 0, 0, 0).Bounds(0, 0, 49, 49).Brush(RedInk).NoPen().Rectangle(0, 0, 25, 50);
  const QImage shown = emf.Show();
  EXPECT_EQ(shown.pixelColor(48, 50), Red);
  EXPECT_EQ(shown.pixelColor(52, 50), White);
}

TEST(EmfShapes, BoxesThinnerThanADotLeaveNoPaperBetweenThem) {
  EmfWriter emf;
  emf.Set(17, 8).Pair(9, 100, 1000).Pair(11, 100, 100).Brush(RedInk).NoPen();
  for (int y = 100; y < 900; y += 3) emf.Rectangle(10, y, 90, y + 3);
  const QImage shown = emf.Show();
  for (int y = 11; y < 89; ++y) EXPECT_EQ(shown.pixelColor(50, y), Red) << y;
}

TEST(EmfShapes, NothingIsPaintedOutsideTheTarget) {
  const std::string bytes = EmfWriter().Brush(RedInk).Rectangle(-500, -500, 500, 500).Bytes();
  QImage paper(100, 100, QImage::Format_RGB32);
  paper.fill(Qt::white);
  QPainter painter(&paper);
  Play(bytes)->Paint(painter, QRectF(20, 20, 30, 30));
  painter.end();
  EXPECT_EQ(paper.pixelColor(35, 35), Red);
  EXPECT_EQ(InkedPixels(paper), 900);
}

TEST(EmfShapes, PolygonsFillByTheirMode) {
  // Two squares, one in the other, both turning the same way.
  const ByteWriter squares = Box32(0, 0, 0, 0)
                                 .U32(2)
                                 .U32(8)
                                 .U32(4)
                                 .U32(4)
                                 .I16(10)
                                 .I16(10)
                                 .I16(90)
                                 .I16(10)
                                 .I16(90)
                                 .I16(90)
                                 .I16(10)
                                 .I16(90)
                                 .I16(30)
                                 .I16(30)
                                 .I16(70)
                                 .I16(30)
                                 .I16(70)
                                 .I16(70)
                                 .I16(30)
                                 .I16(70);
  const auto shown = [&](std::uint32_t mode) {
    return EmfWriter().Brush(RedInk).NoPen().Set(19, mode).Add(91, squares).Show().pixelColor(50, 50);
  };
  EXPECT_EQ(shown(1), White);
  EXPECT_EQ(shown(2), Red);
}

TEST(EmfShapes, LinesOfSmallAndLargePointsLookTheSame) {
  const ByteWriter small = Box32(0, 0, 0, 0).U32(2).I16(10).I16(50).I16(90).I16(50);
  const ByteWriter large = Box32(0, 0, 0, 0).U32(2).I32(10).I32(50).I32(90).I32(50);
  EXPECT_EQ(EmfWriter().Pen(RedInk, 4).Add(87, small).Show(),
            EmfWriter().Pen(RedInk, 4).Add(4, large).Show());
  EXPECT_EQ(EmfWriter().Pen(RedInk, 4).Add(4, large).Show().pixelColor(50, 50), Red);
}

TEST(EmfShapes, LinesGoOnFromThePosition) {
  const QImage shown = EmfWriter().Pen(RedInk, 4).Pair(27, 10, 20).Pair(54, 90, 20).Pair(54, 90, 80).Show();
  EXPECT_EQ(shown.pixelColor(50, 20), Red);
  EXPECT_EQ(shown.pixelColor(90, 50), Red);
  EXPECT_EQ(shown.pixelColor(50, 80), White);
}

TEST(EmfShapes, ACurvePassesThroughItsMiddle) {
  const ByteWriter curve =
      Box32(0, 0, 0, 0).U32(4).I16(10).I16(90).I16(10).I16(10).I16(90).I16(10).I16(90).I16(90);
  const QImage shown = EmfWriter().Pen(BlueInk, 6).Add(85, curve).Show();
  EXPECT_EQ(shown.pixelColor(50, 30), Blue);
  EXPECT_EQ(shown.pixelColor(50, 90), White);
}

TEST(EmfShapes, AnEllipseLeavesItsCorners) {
  const QImage shown = EmfWriter().Brush(GreenInk).NoPen().Add(42, Box32(0, 0, 100, 100)).Show();
  EXPECT_EQ(shown.pixelColor(50, 50), Green);
  EXPECT_EQ(shown.pixelColor(8, 8), White);
}

TEST(EmfShapes, RoundRectanglesAreRound) {
  const QImage shown =
      EmfWriter().Brush(GreenInk).NoPen().Add(44, Box32(0, 0, 100, 100).I32(60).I32(60)).Show();
  EXPECT_EQ(shown.pixelColor(3, 3), White);
  EXPECT_EQ(shown.pixelColor(50, 2), Green);
}

// From the right ray to the top ray, against the clock: the upper right quarter.
const ByteWriter Quarter = Box32(0, 0, 100, 100).I32(100).I32(50).I32(50).I32(0);

TEST(EmfShapes, APieTurnsAgainstTheClock) {
  const QImage shown = EmfWriter().Brush(RedInk).NoPen().Add(47, Quarter).Show();
  EXPECT_EQ(shown.pixelColor(60, 40), Red);
  EXPECT_EQ(shown.pixelColor(40, 40), White);
  EXPECT_EQ(shown.pixelColor(40, 60), White);
}

TEST(EmfShapes, APieTurnsClockwiseByTheArcDirection) {
  const QImage shown = EmfWriter().Brush(RedInk).NoPen().Set(57, 2).Add(47, Quarter).Show();
  EXPECT_EQ(shown.pixelColor(60, 40), White);
  EXPECT_EQ(shown.pixelColor(40, 60), Red);
}

TEST(EmfShapes, AChordLeavesTheMiddle) {
  const QImage shown = EmfWriter().Brush(RedInk).NoPen().Add(46, Quarter).Show();
  EXPECT_EQ(shown.pixelColor(55, 45), White);
  EXPECT_EQ(shown.pixelColor(80, 25), Red);
}

TEST(EmfShapes, AnArcIsOnlyALine) {
  const QImage shown = EmfWriter().Brush(RedInk).Pen(BlueInk, 4).Add(45, Quarter).Show();
  EXPECT_EQ(shown.pixelColor(85, 15), Blue);
  EXPECT_EQ(shown.pixelColor(70, 30), White);
}

TEST(EmfShapes, AnArcByAngleStartsWithALineFromThePosition) {
  const QImage shown = EmfWriter()
                           .Pen(RedInk, 4)
                           .Pair(27, 50, 50)
                           .Add(41, ByteWriter().I32(50).I32(50).U32(40).F32(0).F32(90))
                           .Show();
  EXPECT_EQ(shown.pixelColor(70, 50), Red);
  EXPECT_EQ(shown.pixelColor(78, 22), Red);
  EXPECT_EQ(shown.pixelColor(22, 78), White);
}

TEST(EmfShapes, MixedPointsDrawLinesAndCurves) {
  const ByteWriter points =
      Box32(0, 0, 0, 0).U32(3).I16(10).I16(10).I16(90).I16(10).I16(90).I16(90).U8(6).U8(2).U8(3);
  const QImage shown = EmfWriter().Pen(RedInk, 4).Add(92, points).Show();
  EXPECT_EQ(shown.pixelColor(50, 10), Red);
  EXPECT_EQ(shown.pixelColor(90, 50), Red);
  EXPECT_EQ(shown.pixelColor(50, 50), Red);  // the line that closes the figure
}

TEST(EmfShapes, APixelShows) {
  EXPECT_EQ(EmfWriter().Add(15, ByteWriter().I32(40).I32(60).U32(RedInk)).Show().pixelColor(40, 60), Red);
}

TEST(EmfPens, ThinLinesStaySeen) {
  EXPECT_GT(InkedPixels(EmfWriter().Pen(0).Pair(27, 0, 50).Pair(54, 100, 50).Show()), 90);
  EXPECT_GT(InkedPixels(EmfWriter().Pen(0, 1).Pair(27, 0, 50).Pair(54, 1000, 50).Show({10, 10})), 5);
}

TEST(EmfPens, AWidePenShrinksToALineThatIsAsDark) {
  const auto darkest = [](const QImage& image) {
    int dark = 255;
    for (int y = 0; y < image.height(); ++y) dark = std::min(dark, qGray(image.pixel(50, y)));
    return dark;
  };
  EmfWriter emf;
  emf.Set(17, 8).Pair(9, 10000, 10000).Pair(11, 100, 100).Pen(0, 1).Pair(27, 0, 5050).Pair(54, 10000, 5050);
  EXPECT_LT(darkest(emf.Show()), 20);
}

TEST(EmfPens, CosmeticPensWithAWidthHaveIt) {
  EmfWriter emf;
  emf.WidePen(RedInk, 10, 0).Pair(27, 10, 50).Pair(54, 90, 50);
  EXPECT_EQ(emf.Show().pixelColor(50, 47), Red);
}

TEST(EmfPens, ANullPenDrawsNothing) {
  EXPECT_EQ(
      InkedPixels(
          EmfWriter().NoPen().Pair(27, 0, 50).Pair(54, 100, 50).Brush(0, 1).Rectangle(1, 1, 9, 9).Show()),
      0);
}

TEST(EmfPens, DashesLeaveGaps) {
  for (const std::uint32_t style : {1u, 2u, 3u, 4u}) {
    const int inked = InkedPixels(EmfWriter().Pen(0, 4, style).Pair(27, 0, 50).Pair(54, 100, 50).Show());
    EXPECT_GT(inked, 100) << style;
    EXPECT_LT(inked, 390) << style;
  }
}

TEST(EmfPens, DashesOfTheUsersOwnCountInLogicalUnits) {
  const QImage shown =
      EmfWriter().WidePen(0, 4, 0x10000 | 0x200 | 7, {20, 10}).Pair(27, 0, 50).Pair(54, 100, 50).Show();
  EXPECT_EQ(shown.pixelColor(10, 50), Black);
  EXPECT_EQ(shown.pixelColor(25, 50), White);
  EXPECT_EQ(shown.pixelColor(40, 50), Black);
}

TEST(EmfPens, CapsEndLinesByTheirStyle) {
  const auto beyond = [](std::uint32_t cap) {
    return EmfWriter()
        .WidePen(0, 20, 0x10000 | cap)
        .Pair(27, 30, 50)
        .Pair(54, 70, 50)
        .Show()
        .pixelColor(77, 42);
  };
  EXPECT_EQ(beyond(0x100), Black);  // square
  EXPECT_EQ(beyond(0x200), White);  // flat
  EXPECT_NE(beyond(0x000), Black);  // round: the corner is cut
}

TEST(EmfPens, JoinsMeetByTheirStyle) {
  const auto corner = [](std::uint32_t join) {
    return EmfWriter()
        .WidePen(0, 20, 0x10000 | 0x200 | join)
        .Add(87, Box32(0, 0, 0, 0).U32(3).I16(10).I16(30).I16(70).I16(30).I16(70).I16(90))
        .Show()
        .pixelColor(78, 22);
  };
  EXPECT_EQ(corner(0x2000), Black);  // miter
  EXPECT_EQ(corner(0x1000), White);  // bevel
}

TEST(EmfBrushes, HatchesShowLinesAndTheBackground) {
  for (std::uint32_t hatch = 0; hatch < 6; ++hatch) {
    EmfWriter emf;
    emf.Set(25, GreenInk).Brush(RedInk, 2, hatch).NoPen().Rectangle(0, 0, 100, 100);
    const QImage shown = emf.Show();
    int red = 0, green = 0;
    for (int i = 0; i < 100 * 100; ++i) {
      const QColor pixel = shown.pixelColor(i % 100, i / 100);
      red += pixel.red() > 200 ? 1 : 0;
      green += pixel == Green ? 1 : 0;
    }
    EXPECT_GT(red, 500) << hatch;
    EXPECT_GT(green, 3000) << hatch;
  }
}

TEST(EmfBrushes, HatchesBeyondThePatternsAreSolid) {
  for (std::uint32_t hatch = 6; hatch < 12; ++hatch)
    EXPECT_EQ(EmfWriter().Brush(RedInk, 2, hatch).Rectangle(0, 0, 100, 100).Show().pixelColor(50, 50), Red);
}

TEST(EmfBrushes, ATransparentBackgroundLeavesThePaperBetweenHatchLines) {
  const QImage shown =
      EmfWriter().Set(18, 1).Set(25, GreenInk).Brush(RedInk, 2, 0).NoPen().Rectangle(0, 0, 100, 100).Show();
  for (int y = 0; y < 100; ++y) EXPECT_NE(shown.pixelColor(50, y), Green);
}

TEST(EmfBrushes, APatternOfADibRepeats) {
  const ByteWriter dib = Dib24(2, 2, [](int x, int) { return x == 0 ? Red : Blue; });
  ByteWriter brush;
  brush.U32(9).U32(0).U32(32).U32(40).U32(72).U32(static_cast<std::uint32_t>(dib.Size() - 40)).Add(dib);
  const QImage shown = EmfWriter().Add(94, brush).Select(9).NoPen().Rectangle(0, 0, 100, 100).Show();
  EXPECT_EQ(shown.pixelColor(40, 40), Red);
  EXPECT_EQ(shown.pixelColor(41, 40), Blue);
}

TEST(EmfBrushes, AMonochromePatternTakesTheColorsOfTextAndBackground) {
  ByteWriter brush;
  brush.U32(9).U32(2).U32(32).U32(40).U32(72).U32(8);
  brush.I32(40).I32(2).I32(2).U16(1).U16(1).Zeros(24).U32(0x40).U32(0x40);
  EmfWriter emf;
  emf.Set(24, RedInk).Set(25, BlueInk).Add(93, brush).Select(9).NoPen().Rectangle(0, 0, 100, 100);
  EXPECT_EQ(emf.Show().pixelColor(40, 40), Red);
  EXPECT_EQ(emf.Show().pixelColor(41, 40), Blue);
}

}  // namespace
}  // namespace tarvis
