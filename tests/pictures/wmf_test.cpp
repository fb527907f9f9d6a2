// Old-style metafiles on paper.
#include <gtest/gtest.h>

#include "metafile_writer.h"
#include "pixel_colors.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

WmfWriter Plain() {
  WmfWriter wmf;
  wmf.Words(0x0103, {8}).Window(0, 0, 100, 100);
  return wmf;
}

TEST(Wmf, TheWindowFillsTheTarget) {
  WmfWriter wmf;
  wmf.Words(0x0103, {8}).Window(1000, 2000, 400, 400).Brush(RedInk).NoPen();
  const QImage shown = wmf.Words(0x041B, {2200, 1400, 2000, 1000}).Show();
  EXPECT_EQ(shown.pixelColor(50, 47), Red);
  EXPECT_EQ(shown.pixelColor(50, 53), White);
}

TEST(Wmf, APlaceableBoxIsTheWindowOfAFileThatSetsNone) {
  WmfWriter wmf;
  wmf.Placeable(-100, -50, 100, 50, 96).Brush(RedInk).NoPen().Words(0x041B, {50, 0, -50, -100});
  const auto picture = Play(wmf.Bytes());
  EXPECT_FLOAT_EQ(picture->NaturalWidth(), 200 * 1440.0f / 96);
  EXPECT_FLOAT_EQ(picture->NaturalHeight(), 100 * 1440.0f / 96);
  EXPECT_EQ(wmf.Show().pixelColor(47, 50), Red);
  EXPECT_EQ(wmf.Show().pixelColor(53, 50), White);
}

TEST(Wmf, AWindowOfItsOwnFillsThePlaceableBox) {
  WmfWriter wmf;
  wmf.Placeable(0, 0, 2000, 1000, 1000).Window(0, 0, 100, 100).Brush(RedInk).NoPen();
  const QImage shown = wmf.Words(0x041B, {100, 50, 0, 0}).Show();
  EXPECT_EQ(shown.pixelColor(47, 97), Red);
  EXPECT_EQ(shown.pixelColor(53, 50), White);
}

TEST(Wmf, AnInchOfZeroIsReadAsTwips) {
  WmfWriter wmf;
  wmf.Placeable(0, 0, 1440, 720, 0).Brush(RedInk).Words(0x041B, {720, 1440, 0, 0});
  EXPECT_FLOAT_EQ(Play(wmf.Bytes())->NaturalWidth(), 1440);
}

TEST(Wmf, NegativeExtentsTurnTheAxisRound) {
  WmfWriter wmf;
  wmf.Words(0x0103, {8}).Window(0, 100, 100, -100).Brush(RedInk).NoPen();
  const QImage shown = wmf.Words(0x041B, {0, 100, 20, 0}).Show();
  EXPECT_EQ(shown.pixelColor(50, 90), Red);
  EXPECT_EQ(shown.pixelColor(50, 10), White);
}

TEST(Wmf, TheDrawingFillsTheTargetWhereNoWindowIsSet) {
  WmfWriter wmf;
  wmf.Brush(RedInk)
      .NoPen()
      .Words(0x041B, {320, 220, 300, 200})
      .Brush(BlueInk)
      .Words(0x041B, {340, 240, 320, 220});
  const QImage shown = wmf.Show();
  EXPECT_EQ(shown.pixelColor(10, 10), Red);
  EXPECT_EQ(shown.pixelColor(90, 90), Blue);
}

TEST(Wmf, ShapesShow) {
  WmfWriter wmf = Plain();
  wmf.Brush(RedInk).NoPen();
  wmf.Words(0x0324, {3, 0, 0, 40, 0, 0, 40});   // polygon
  wmf.Words(0x0418, {40, 100, 0, 60});          // ellipse
  wmf.Words(0x061C, {20, 20, 100, 40, 60, 0});  // round rectangle
  wmf.Words(0x0538, {2, 3, 3, 60, 60, 70, 60, 60, 70, 90, 90, 100, 90, 90, 100});
  const QImage shown = wmf.Show();
  EXPECT_EQ(shown.pixelColor(8, 8), Red);
  EXPECT_EQ(shown.pixelColor(36, 36), White);
  EXPECT_EQ(shown.pixelColor(80, 20), Red);
  EXPECT_EQ(shown.pixelColor(62, 2), White);
  EXPECT_EQ(shown.pixelColor(20, 80), Red);
  EXPECT_EQ(shown.pixelColor(1, 61), White);
  EXPECT_EQ(shown.pixelColor(62, 62), Red);
  EXPECT_EQ(shown.pixelColor(92, 92), Red);
}

TEST(Wmf, LinesShow) {
  WmfWriter wmf = Plain();
  wmf.Pen(RedInk, 4).Words(0x0214, {20, 10}).Words(0x0213, {20, 90});
  wmf.Words(0x0325, {2, 10, 60, 90, 60});
  EXPECT_EQ(wmf.Show().pixelColor(50, 20), Red);
  EXPECT_EQ(wmf.Show().pixelColor(50, 60), Red);
}

TEST(Wmf, ArcsTurnAgainstTheClockWhicheverWayTheAxesPoint) {
  // Right ray to top ray.
  EXPECT_EQ(
      Plain().Brush(RedInk).NoPen().Words(0x081A, {0, 50, 50, 100, 100, 100, 0, 0}).Show().pixelColor(60, 40),
      Red);
  WmfWriter up;
  up.Words(0x0103, {8}).Window(0, 100, 100, -100).Brush(RedInk).NoPen();
  up.Words(0x081A, {100, 50, 50, 100, 100, 100, 0, 0});
  EXPECT_EQ(up.Show().pixelColor(60, 40), Red);
  EXPECT_EQ(up.Show().pixelColor(40, 60), White);
}

TEST(Wmf, FreedObjectNumbersAreGivenOutAgain) {
  WmfWriter wmf = Plain();
  wmf.Add(0x02FA, ByteWriter().U16(5).I16(0).I16(0).U32(0));  // pen 0
  wmf.Add(0x02FC, ByteWriter().U16(0).U32(BlueInk).U16(0));   // brush 1
  wmf.Words(0x012D, {0}).Words(0x01F0, {1});
  wmf.Add(0x02FC, ByteWriter().U16(0).U32(RedInk).U16(0)).Words(0x012D, {1});
  EXPECT_EQ(wmf.Words(0x041B, {100, 100, 0, 0}).Show().pixelColor(50, 50), Red);
}

TEST(Wmf, ObjectsThatCantBePlayedKeepTheirNumber) {
  WmfWriter wmf = Plain();
  wmf.Add(0x01F9, ByteWriter().Zeros(40));  // a pattern without extent takes number 0
  wmf.Add(0x02FC, ByteWriter().U16(0).U32(RedInk).U16(0)).Words(0x012D, {1});
  EXPECT_EQ(wmf.Words(0x041B, {100, 100, 0, 0}).Show().pixelColor(50, 50), Red);
}

TEST(Wmf, TextShowsInBothForms) {
  WmfWriter plain = Plain();
  plain.Words(0x0102, {1}).Font(-40, "Arial").Add(0x0521, ByteWriter().U16(2).Text("HI").I16(20).I16(10));
  WmfWriter extended = Plain();
  extended.Words(0x0102, {1}).Font(-40, "Arial");
  extended.Add(0x0A32, ByteWriter().I16(20).I16(10).U16(2).U16(0).Text("HI"));
  EXPECT_GT(InkedPixels(plain.Show()), 100);
  EXPECT_EQ(plain.Show(), extended.Show());
}

TEST(Wmf, TextKeepsItsWidths) {
  WmfWriter wmf = Plain();
  wmf.Words(0x0102, {1}).Font(-20, "Arial");
  wmf.Add(0x0A32, ByteWriter().I16(20).I16(0).U16(3).U16(0).Text("III").U8(0).I16(30).I16(40).I16(10));
  const QImage shown = wmf.Show();
  EXPECT_EQ(InkedPixels(shown, QRect(12, 0, 17, 100)), 0);
  EXPECT_GT(InkedPixels(shown, QRect(30, 0, 10, 100)), 0);
  EXPECT_GT(InkedPixels(shown, QRect(70, 0, 10, 100)), 0);
}

TEST(Wmf, TextMayRiseFromCharacterToCharacter) {
  const QImage shown =
      Plain()
          .Words(0x0102, {1})
          .Words(0x012E, {24})
          .Font(-20, "Arial")
          .Add(0x0A32,
               ByteWriter().I16(90).I16(5).U16(2).U16(0x2000).Text("HH").I16(40).I16(50).I16(0).I16(0))
          .Show();
  EXPECT_GT(InkedPixels(shown, QRect(0, 70, 30, 25)), 0);
  EXPECT_EQ(InkedPixels(shown, QRect(40, 60, 60, 40)), 0);
  EXPECT_GT(InkedPixels(shown, QRect(40, 20, 60, 25)), 0);
}

TEST(Wmf, OldBitmapsOfTrueColorsShow) {
  ByteWriter bitmap;  // two pixels: red and blue, in 32 bits
  bitmap.U16(0).I16(2).I16(1).U16(8).U8(1).U8(32).U32(0xFFFF0000).U32(0xFF0000FF);
  ByteWriter block = ByteWriter().U32(0x00CC0020).I16(1).I16(2).I16(0).I16(0).I16(100).I16(100).I16(0).I16(0);
  const QImage shown = Plain().Add(0x0B23, block.Add(bitmap)).Show();
  EXPECT_EQ(shown.pixelColor(20, 50), Red);
  EXPECT_EQ(shown.pixelColor(80, 50), Blue);
}

TEST(Wmf, OldBitmapsThatAreCutAreSkippedAndCounted) {
  ByteWriter block = ByteWriter().U32(0x00CC0020).I16(8).I16(8).I16(0).I16(0).I16(100).I16(100).I16(0).I16(0);
  block.U16(0).I16(8).I16(8).U16(2).U8(1).U8(1).Zeros(4);
  WmfWriter wmf = Plain();
  wmf.Words(0x041B, {50, 50, 10, 10}).Add(0x0B23, block);
  EXPECT_EQ(Play(wmf.Bytes())->SkippedRecords(), 1);
}

TEST(Wmf, ARegionThatIsMiscountedIsCountedAndKeepsItsNumber) {
  WmfWriter wmf = Plain();
  wmf.Add(0x06FF, ByteWriter().Zeros(10).U16(9).Zeros(10).U16(2).I16(0))
      .Add(0x02FC, ByteWriter().U16(0).U32(RedInk).U16(0));
  wmf.Words(0x012D, {1}).Words(0x041B, {90, 90, 10, 10});
  EXPECT_EQ(Play(wmf.Bytes())->SkippedRecords(), 1);
  EXPECT_EQ(wmf.Show().pixelColor(50, 50), Red);
}

TEST(Wmf, WidthsOfDoubleByteTextCountByBytes) {
  WmfWriter wmf = Plain();
  wmf.Words(0x0102, {1}).Font(-20, "Arial", 128);
  // A character of two bytes (40 + 20 wide), then a stroke at 60.
  wmf.Add(0x0A32, ByteWriter().I16(20).I16(0).U16(3).U16(0).Text("\x83\x65|").U8(0).I16(40).I16(20).I16(10));
  EXPECT_GT(InkedPixels(wmf.Show(), QRect(60, 0, 10, 100)), 10);
}

TEST(Wmf, ClipsAndRegionsActAndEnd) {
  WmfWriter wmf = Plain();
  wmf.Words(0x001E, {}).Words(0x0416, {50, 50, 0, 0}).Brush(RedInk).NoPen().Words(0x041B, {100, 100, 0, 0});
  wmf.Words(0x0127, {-1}).Brush(BlueInk).NoPen().Words(0x041B, {100, 100, 80, 80});
  const QImage shown = wmf.Show();
  EXPECT_EQ(shown.pixelColor(25, 25), Red);
  EXPECT_EQ(shown.pixelColor(60, 60), White);
  EXPECT_EQ(shown.pixelColor(90, 90), Blue);
}

TEST(Wmf, BitmapsShow) {
  const ByteWriter dib = Dib24(2, 2, [](int x, int y) { return y == 1 ? Green : x == 0 ? Red : Blue; });
  const auto check = [](const QImage& shown) {
    EXPECT_EQ(shown.pixelColor(10, 10), Red);
    EXPECT_EQ(shown.pixelColor(90, 10), Blue);
    EXPECT_EQ(shown.pixelColor(50, 90), Green);
  };
  const auto sizes = [](ByteWriter out) {
    return out.I16(2).I16(2).I16(0).I16(0).I16(100).I16(100).I16(0).I16(0);
  };
  check(Plain().Add(0x0F43, sizes(ByteWriter().U32(0x00CC0020).U16(0)).Add(dib)).Show());
  check(Plain().Add(0x0B41, sizes(ByteWriter().U32(0x00CC0020)).Add(dib)).Show());
}

TEST(Wmf, ABlockWithoutBitmapIsFilledByTheBrush) {
  WmfWriter wmf = Plain();
  wmf.Brush(RedInk).Add(0x061D, ByteWriter().U32(0x00F00021).I16(40).I16(40).I16(10).I16(10));
  wmf.Add(0x0940, ByteWriter().U32(0x00000042).I16(0).I16(0).I16(0).I16(20).I16(20).I16(80).I16(80));
  EXPECT_EQ(wmf.Show().pixelColor(30, 30), Red);
  EXPECT_EQ(wmf.Show().pixelColor(90, 90), Black);
}

TEST(Wmf, UnknownRecordsAreSkippedAndCounted) {
  WmfWriter wmf = Plain();
  wmf.Words(0x0419, {0, 0, 0, 0}).Words(0x7777, {1}).Brush(RedInk).Words(0x041B, {100, 100, 0, 0});
  EXPECT_EQ(Play(wmf.Bytes())->SkippedRecords(), 2);
}

}  // namespace
}  // namespace tarvis
