// What lines, shapes, pens, brushes and mappings of an enhanced metafile look like on paper.
#include <gtest/gtest.h>

#include "metafile_writer.h"

namespace tarvis {
namespace {

const QColor Red(255, 0, 0), Green(0, 255, 0), Blue(0, 0, 255), White(255, 255, 255), Black(0, 0, 0);
constexpr std::uint32_t RedInk = Rgb(255, 0, 0), GreenInk = Rgb(0, 255, 0), BlueInk = Rgb(0, 0, 255);

TEST(EmfShapes, ARectangleIsFilledWhereItStands) {
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

TEST(EmfShapes, WithoutAFrameTheBoundsFillTheTarget) {
  EmfWriter emf;
  emf.Frame(0, 0, 0, 0).Bounds(0, 0, 49, 49).Brush(RedInk).NoPen().Rectangle(0, 0, 25, 50);
  const QImage shown = emf.Show();
  EXPECT_EQ(shown.pixelColor(48, 50), Red);
  EXPECT_EQ(shown.pixelColor(52, 50), White);
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

TEST(EmfShapes, LinesOfSmallAndLargePointsLookAlike) {
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

TEST(EmfShapes, APieTurnsWithTheClockWhenTold) {
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

TEST(EmfPens, CapsEndLinesAsTold) {
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

TEST(EmfPens, JoinsMeetAsTold) {
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

TEST(EmfMapping, WindowAndViewportStretch) {
  EmfWriter emf;
  emf.Set(17, 8).Pair(10, 1000, 1000).Pair(9, 2000, 2000).Pair(12, 10, 20).Pair(11, 50, 50);
  const QImage shown = emf.Brush(RedInk).NoPen().Rectangle(1000, 1000, 2000, 3000).Show();
  EXPECT_EQ(shown.pixelColor(11, 21), Red);
  EXPECT_EQ(shown.pixelColor(34, 69), Red);
  EXPECT_EQ(shown.pixelColor(36, 50), White);
  EXPECT_EQ(shown.pixelColor(20, 71), White);
}

TEST(EmfMapping, NegativeExtentsTurnTheAxisRound) {
  EmfWriter emf;
  emf.Set(17, 8).Pair(9, 100, -100).Pair(11, 100, 100).Pair(12, 0, 100);
  const QImage shown = emf.Brush(RedInk).NoPen().Rectangle(0, 0, 100, 20).Show();
  EXPECT_EQ(shown.pixelColor(50, 90), Red);
  EXPECT_EQ(shown.pixelColor(50, 10), White);
}

TEST(EmfMapping, AnIsotropicWindowKeepsItsProportions) {
  EmfWriter emf;
  emf.Set(17, 7).Pair(9, 100, 100).Pair(11, 100, 50);
  const QImage shown = emf.Brush(RedInk).NoPen().Rectangle(0, 0, 100, 100).Show();
  EXPECT_EQ(shown.pixelColor(48, 48), Red);
  EXPECT_EQ(shown.pixelColor(52, 25), White);
}

TEST(EmfMapping, MetricUnitsPointUpwards) {
  // A tenth of a millimetre each; the device has a pixel to the millimetre.
  const QImage shown =
      EmfWriter().Set(17, 2).Pair(12, 0, 100).Brush(RedInk).NoPen().Rectangle(0, 0, 500, 300).Show();
  EXPECT_EQ(shown.pixelColor(48, 72), Red);
  EXPECT_EQ(shown.pixelColor(52, 80), White);
  EXPECT_EQ(shown.pixelColor(25, 68), White);
}

TEST(EmfMapping, ExtentsScale) {
  const ByteWriter half = ByteWriter().I32(1).I32(2).I32(1).I32(2);
  EmfWriter emf;
  emf.Set(17, 8).Pair(9, 100, 100).Pair(11, 100, 100).Add(31, half);
  const QImage shown = emf.Brush(RedInk).NoPen().Rectangle(0, 0, 100, 100).Show();
  EXPECT_EQ(shown.pixelColor(48, 48), Red);
  EXPECT_EQ(shown.pixelColor(52, 52), White);
}

ByteWriter Transform(float a, float b, float c, float d, float x, float y) {
  return ByteWriter().F32(a).F32(b).F32(c).F32(d).F32(x).F32(y);
}

TEST(EmfMapping, TheWorldTransformTurnsAndMoves) {
  const QImage shown = EmfWriter()
                           .Add(35, Transform(0, 1, -1, 0, 100, 0))
                           .Brush(RedInk)
                           .NoPen()
                           .Rectangle(0, 0, 50, 20)
                           .Show();
  EXPECT_EQ(shown.pixelColor(90, 25), Red);
  EXPECT_EQ(shown.pixelColor(90, 55), White);
  EXPECT_EQ(shown.pixelColor(70, 25), White);
}

TEST(EmfMapping, TransformsMultiplyFromLeftOrRight) {
  const auto left = [](std::uint32_t mode) {
    const QImage shown = EmfWriter()
                             .Add(35, Transform(2, 0, 0, 2, 0, 0))
                             .Add(36, Transform(1, 0, 0, 1, 20, 0).U32(mode))
                             .Brush(RedInk)
                             .NoPen()
                             .Rectangle(0, 0, 10, 10)
                             .Show();
    int x = 0;
    while (x < 99 && shown.pixelColor(x, 5) != Red) ++x;
    return x;
  };
  EXPECT_EQ(left(2), 40);
  EXPECT_EQ(left(3), 20);
}

TEST(EmfMapping, SavedStatesComeBack) {
  const QImage shown = EmfWriter()
                           .Brush(RedInk)
                           .NoPen()
                           .Add(33)
                           .Brush(BlueInk)
                           .Add(35, Transform(1, 0, 0, 1, 50, 0))
                           .Add(33)
                           .Set(34, static_cast<std::uint32_t>(-2))
                           .Rectangle(0, 0, 20, 20)
                           .Show();
  EXPECT_EQ(shown.pixelColor(10, 10), Red);
}

TEST(EmfPaths, AreFilledStrokedOrBoth) {
  const auto shown = [](std::uint32_t record) {
    return EmfWriter()
        .Brush(RedInk)
        .Pen(BlueInk, 6)
        .Add(59)
        .Pair(27, 20, 20)
        .Pair(54, 80, 20)
        .Pair(54, 80, 80)
        .Add(61)
        .Add(60)
        .Add(record, Box32(0, 0, 0, 0))
        .Show();
  };
  EXPECT_EQ(shown(62).pixelColor(70, 35), Red);
  EXPECT_EQ(shown(62).pixelColor(50, 18), White);
  EXPECT_EQ(shown(64).pixelColor(50, 20), Blue);
  EXPECT_EQ(shown(64).pixelColor(70, 35), White);
  EXPECT_EQ(shown(63).pixelColor(70, 35), Red);
  EXPECT_EQ(shown(63).pixelColor(50, 50), Blue);  // the closing side
}

TEST(EmfClips, APathClips) {
  const QImage shown = EmfWriter()
                           .Add(59)
                           .Add(42, Box32(20, 20, 80, 80))
                           .Add(60)
                           .Set(67, 5)
                           .Brush(RedInk)
                           .NoPen()
                           .Rectangle(0, 0, 100, 100)
                           .Show();
  EXPECT_EQ(shown.pixelColor(50, 50), Red);
  EXPECT_EQ(shown.pixelColor(25, 25), White);
}

ByteWriter Region(const std::vector<ByteWriter>& boxes) {
  ByteWriter region;
  region.U32(32).U32(1).U32(static_cast<std::uint32_t>(boxes.size())).U32(0).Zeros(16);
  for (const ByteWriter& box : boxes) region.Add(box);
  return region;
}

TEST(EmfClips, RegionsAndRectanglesClip) {
  const ByteWriter region = Region({Box32(10, 10, 40, 90), Box32(60, 10, 90, 90)});
  EmfWriter emf;
  emf.Add(75, ByteWriter().U32(static_cast<std::uint32_t>(region.Size())).U32(5).Add(region));
  emf.Add(30, Box32(0, 50, 100, 100)).Add(29, Box32(0, 70, 100, 80));
  const QImage shown = emf.Brush(RedInk).NoPen().Rectangle(0, 0, 100, 100).Show();
  EXPECT_EQ(shown.pixelColor(20, 60), Red);
  EXPECT_EQ(shown.pixelColor(70, 60), Red);
  EXPECT_EQ(shown.pixelColor(50, 60), White);
  EXPECT_EQ(shown.pixelColor(20, 40), White);
  EXPECT_EQ(shown.pixelColor(20, 75), White);
  EXPECT_EQ(shown.pixelColor(20, 85), Red);
}

TEST(EmfClips, EndWithTheStateThatHadThem) {
  EmfWriter emf;
  emf.Add(33).Add(30, Box32(0, 0, 10, 10)).Set(34, static_cast<std::uint32_t>(-1));
  EXPECT_EQ(emf.Brush(RedInk).NoPen().Rectangle(0, 0, 100, 100).Show().pixelColor(50, 50), Red);
}

TEST(EmfClips, RegionsAddUp) {
  const ByteWriter region = Region({Box32(50, 50, 100, 100)});
  EmfWriter emf;
  emf.Add(30, Box32(0, 0, 50, 50));
  emf.Add(75, ByteWriter().U32(static_cast<std::uint32_t>(region.Size())).U32(2).Add(region));
  const QImage shown = emf.Brush(RedInk).NoPen().Rectangle(0, 0, 100, 100).Show();
  EXPECT_EQ(shown.pixelColor(25, 25), Red);
  EXPECT_EQ(shown.pixelColor(75, 75), Red);
  EXPECT_EQ(shown.pixelColor(75, 25), White);
}

TEST(EmfRegions, AreFilledAndFramed) {
  const ByteWriter region = Region({Box32(20, 20, 80, 80)});
  const std::uint32_t size = static_cast<std::uint32_t>(region.Size());
  EmfWriter emf;
  emf.Brush(RedInk).Brush(BlueInk);
  emf.Add(71, Box32(0, 0, 0, 0).U32(size).U32(1).Add(region));
  emf.Add(72, Box32(0, 0, 0, 0).U32(size).U32(2).I32(5).I32(5).Add(region));
  const QImage shown = emf.Show();
  EXPECT_EQ(shown.pixelColor(50, 50), Red);
  EXPECT_EQ(shown.pixelColor(22, 50), Blue);
}

TEST(EmfRasterOperations, OfPensActAsOnWhitePaper) {
  const auto color = [](std::uint32_t rop2, std::uint32_t ink) {
    return EmfWriter().Set(20, rop2).Brush(ink).NoPen().Rectangle(0, 0, 100, 100).Show().pixelColor(50, 50);
  };
  EXPECT_EQ(color(13, RedInk), Red);
  EXPECT_EQ(color(1, RedInk), Black);
  EXPECT_EQ(color(16, RedInk), White);
  EXPECT_EQ(color(11, RedInk), White);
  EXPECT_EQ(color(9, RedInk), Red);
  EXPECT_EQ(color(4, RedInk), QColor(0, 255, 255));
  EXPECT_EQ(color(7, RedInk), QColor(0, 255, 255));
  EXPECT_EQ(color(7, 0), White);
  EXPECT_EQ(color(6, RedInk), Black);
}

TEST(EmfGradients, RunAcrossAndDown) {
  ByteWriter gradient = Box32(0, 0, 0, 0).U32(2).U32(1).U32(0);
  gradient.I32(0).I32(0).U16(0xFF00).U16(0).U16(0).U16(0).I32(100).I32(100).U16(0).U16(0).U16(0xFF00).U16(0);
  const QImage shown = EmfWriter().Add(118, gradient.U32(0).U32(1)).Show();
  EXPECT_GT(shown.pixelColor(3, 50).red(), 240);
  EXPECT_GT(shown.pixelColor(97, 50).blue(), 240);
  EXPECT_NEAR(shown.pixelColor(50, 50).red(), 127, 6);
}

TEST(EmfGradients, FillTriangles) {
  ByteWriter gradient = Box32(0, 0, 0, 0).U32(3).U32(1).U32(2);
  gradient.I32(0).I32(0).U16(0xFF00).U16(0).U16(0).U16(0).I32(100).I32(0).U16(0).U16(0xFF00).U16(0).U16(0);
  gradient.I32(0).I32(100).U16(0).U16(0).U16(0xFF00).U16(0).U32(0).U32(1).U32(2);
  const QImage shown = EmfWriter().Add(118, gradient).Show();
  EXPECT_GT(shown.pixelColor(3, 3).red(), 200);
  EXPECT_GT(shown.pixelColor(92, 3).green(), 200);
  EXPECT_GT(shown.pixelColor(3, 92).blue(), 200);
  EXPECT_EQ(shown.pixelColor(80, 80), White);
}

TEST(EmfColors, MayComeFromThePalette) {
  const ByteWriter palette = ByteWriter().U32(7).U16(0x300).U16(2).U32(0).U8(255).U8(0).U8(0).U8(0);
  const QImage shown = EmfWriter()
                           .Add(49, palette)
                           .Add(48, ByteWriter().U32(7))
                           .Brush(0x01000001)
                           .NoPen()
                           .Rectangle(0, 0, 100, 100)
                           .Show();
  EXPECT_EQ(shown.pixelColor(50, 50), Red);
}

}  // namespace
}  // namespace tarvis
