// Mappings, paths, clips and raster operations of enhanced metafiles.
#include <gtest/gtest.h>

#include "metafile_writer.h"
#include "pixel_colors.h"

namespace tarvis {
namespace {

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

TEST(EmfPaths, AFigureOfCurvesClosesToItsOwnStart) {
  EmfWriter emf;
  emf.Pen(RedInk, 2).NoBrush().Add(59);
  for (const int y : {10, 60}) {
    ByteWriter curve = Box32(0, 0, 0, 0).U32(3).I32(20).I32(y).I32(60).I32(y).I32(90).I32(y);
    emf.Pair(27, 10, y).Add(5, curve).Pair(54, 90, y + 20).Add(61);
  }
  const QImage shown = emf.Add(60).Add(64, Box32(0, 0, 99, 99)).Show();
  EXPECT_EQ(shown.pixelColor(50, 60), Red);
  EXPECT_EQ(InkedPixels(shown, QRect(0, 35, 100, 20)), 0);  // nothing from figure to figure
  EXPECT_GT(InkedPixels(shown, QRect(45, 65, 10, 10)), 0);  // the closing line
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
  const auto size = static_cast<std::uint32_t>(region.Size());
  EmfWriter emf;
  emf.Brush(RedInk).Brush(BlueInk);
  emf.Add(71, Box32(0, 0, 0, 0).U32(size).U32(1).Add(region));
  emf.Add(72, Box32(0, 0, 0, 0).U32(size).U32(2).I32(5).I32(5).Add(region));
  const QImage shown = emf.Show();
  EXPECT_EQ(shown.pixelColor(50, 50), Red);
  EXPECT_EQ(shown.pixelColor(22, 50), Blue);
}

TEST(EmfRasterOperations, APenActsAsOnWhitePaper) {
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
