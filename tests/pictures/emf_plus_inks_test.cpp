// Brushes, caps, text and points of extended records.
#include <gtest/gtest.h>

#include <QPicture>

#include "pixel_colors.h"
#include "plus_writer.h"

namespace tarvis {
namespace {

ByteWriter Rect(float x, float y, float width, float height) {
  return ByteWriter().F32(x).F32(y).F32(width).F32(height);
}

// How much ink there is in all.
long InkSum(const QImage& image) {
  long sum = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) sum += 255 - qGreen(image.pixel(x, y));
  return sum;
}

PlusWriter& FillWith(PlusWriter& plus, const ByteWriter& brush, const ByteWriter& rect) {
  return plus.Object(1, 0, brush).Add(0x400A, 0, ByteWriter().U32(0).U32(1).Add(rect));
}

ByteWriter PathGradientBrush(const std::vector<std::uint32_t>& around) {
  ByteWriter brush = ByteWriter().U32(PlusVersion).U32(3).U32(0).U32(4).U32(OpaqueWhite).F32(50).F32(50);
  brush.U32(static_cast<std::uint32_t>(around.size()));
  for (const std::uint32_t color : around) brush.U32(color);
  return brush.U32(4).F32(0).F32(0).F32(100).F32(0).F32(100).F32(100).F32(0).F32(100);
}

TEST(EmfPlusBrushes, APathGradientRunsFromItsOutlineToItsCentre) {
  PlusWriter plus;
  const QImage shown = FillWith(plus, PathGradientBrush({OpaqueBlue}), Rect(0, 0, 100, 100)).Show();
  EXPECT_GT(shown.pixelColor(50, 50).red(), 235);
  EXPECT_LT(shown.pixelColor(2, 50).red(), 25);
  EXPECT_NEAR(shown.pixelColor(25, 50).red(), 128, 12);
  EXPECT_NEAR(shown.pixelColor(25, 40).red(), 128,
              12);  // along the side, for the outline is a box and no circle
}

TEST(EmfPlusBrushes, APathGradientMayHaveAColorForEachCorner) {
  PlusWriter plus;
  const auto brush = PathGradientBrush({OpaqueRed, OpaqueRed, OpaqueBlue, OpaqueBlue});
  const QImage shown = FillWith(plus, brush, Rect(0, 0, 100, 100)).Show();
  EXPECT_GT(shown.pixelColor(50, 3).red(), 200);
  EXPECT_LT(shown.pixelColor(50, 3).blue(), 80);
  EXPECT_GT(shown.pixelColor(50, 97).blue(), 200);
}

TEST(EmfPlusBrushes, APathGradientStaysInsideWhatItFills) {
  PlusWriter plus;
  const QImage shown = FillWith(plus, PathGradientBrush({OpaqueBlue}), Rect(0, 0, 40, 100)).Show();
  EXPECT_NE(shown.pixelColor(20, 50), White);
  EXPECT_EQ(InkedPixels(shown, QRect(42, 0, 58, 100)), 0);
}

TEST(EmfPlusBrushes, APathGradientWithoutAnOutlineIsCounted) {
  ByteWriter brush = ByteWriter().U32(PlusVersion).U32(3).U32(0).U32(4).U32(OpaqueWhite).F32(50).F32(50);
  brush.U32(2).U32(OpaqueRed).U32(OpaqueBlue).U32(0);
  PlusWriter plus;
  FillWith(plus, brush, Rect(0, 0, 9, 9));
  EXPECT_EQ(Play(plus.FillRect(OpaqueRed, 0, 0, 9, 9).Emf().Bytes())->SkippedRecords(), 1);
}

TEST(EmfPlusBrushes, ATextureIsMappedByItsTransform) {
  ByteWriter brush = ByteWriter().U32(PlusVersion).U32(2).U32(2).U32(0);
  brush.F32(50).F32(0).F32(0).F32(50).F32(0).F32(0);
  brush.U32(PlusVersion).U32(1).U32(2).U32(1).U32(8).U32(0x26200A).U32(0).U32(OpaqueRed).U32(OpaqueBlue);
  PlusWriter plus;
  const QImage shown = FillWith(plus, brush, Rect(0, 0, 100, 100)).Show();
  EXPECT_EQ(shown.pixelColor(25, 50), Red);
  EXPECT_EQ(shown.pixelColor(75, 50), Blue);
}

TEST(EmfPlusBrushes, FineHatchesHaveMoreInkThanWideOnes) {
  const auto ink = [](std::uint32_t hatch) {
    PlusWriter plus;
    const ByteWriter brush = ByteWriter().U32(PlusVersion).U32(1).U32(hatch).U32(OpaqueRed).U32(OpaqueWhite);
    return InkedPixels(FillWith(plus, brush, Rect(0, 0, 100, 100)).Show());
  };
  constexpr std::uint32_t vertical = 1, lightVertical = 24, darkVertical = 28;
  EXPECT_GT(ink(lightVertical), 1.5 * ink(vertical));
  EXPECT_GT(ink(darkVertical), 1.5 * ink(lightVertical));
}

ByteWriter HatchBrush(std::uint32_t style) {
  return ByteWriter().U32(PlusVersion).U32(1).U32(style).U32(OpaqueRed).U32(OpaqueWhite);
}

constexpr std::uint32_t HatchStyles = 53;

TEST(EmfPlusBrushes, AllHatchesFillTheirAreaInAPatternOfTheirOwn) {
  constexpr std::uint32_t outlinedDiamond = 51;
  constexpr std::size_t diagonalCross = 5;
  std::vector<QImage> shown;
  for (std::uint32_t style = 0; style < HatchStyles; ++style) {
    PlusWriter plus;
    FillWith(plus, HatchBrush(style), Rect(0, 0, 100, 100));
    EXPECT_EQ(Play(plus.Emf().Bytes())->SkippedRecords(), 0) << style;
    const QImage picture = plus.Show();
    EXPECT_GT(InkedPixels(picture), 100) << style;
    EXPECT_LT(InkedPixels(picture), 9999) << style;
    // Diamonds are the crossed diagonals, which differ only in their edges where these are smoothed.
    for (std::size_t other = 0; other < shown.size(); ++other) {
      if (style == outlinedDiamond && other == diagonalCross) continue;
      EXPECT_NE(shown[other], picture) << other << " and " << style;
    }
    shown.push_back(picture);
  }
}

TEST(EmfPlusBrushes, DotsOfHatchesHaveTheirPublishedPlaces) {
  constexpr std::uint32_t largeCheckers = 50;
  PlusWriter plus;
  const QImage shown = FillWith(plus, HatchBrush(largeCheckers), Rect(0, 0, 100, 100)).Show();
  for (int y = 0; y < 96; ++y)
    for (int x = 0; x < 96; ++x)
      EXPECT_EQ(shown.pixelColor(x, y), (x / 4 + y / 4) % 2 == 0 ? Red : White) << x << ", " << y;
}

// As on paper and in a PDF, where dots are lines with a pattern.
TEST(EmfPlusBrushes, DotsOfHatchesAreTheSameOnADeviceWithoutPixels) {
  for (std::uint32_t style = 0; style < HatchStyles; ++style) {
    PlusWriter plus;
    const auto picture = Play(FillWith(plus, HatchBrush(style), Rect(8, 8, 64, 64)).Emf().Bytes());
    QPicture recorded;  // has an engine without pixels
    QPainter recorder(&recorded);
    picture->Paint(recorder, QRectF(0, 0, 100, 100));
    recorder.end();
    QImage played(100, 100, QImage::Format_RGB32);
    played.fill(Qt::white);
    QPainter player(&played);
    player.drawPicture(0, 0, recorded);
    player.end();
    const double ratio = static_cast<double>(InkSum(played)) / static_cast<double>(InkSum(plus.Show()));
    EXPECT_NEAR(ratio, 1, 0.15) << style;
  }
}

TEST(EmfPlusBrushes, HatchesBeyondTheLastAreCounted) {
  PlusWriter plus;
  FillWith(plus, HatchBrush(HatchStyles), Rect(0, 0, 9, 9));
  EXPECT_EQ(Play(plus.FillRect(OpaqueRed, 0, 0, 9, 9).Emf().Bytes())->SkippedRecords(),
            2);  // it, and its fill
}

TEST(EmfPlusImages, ShowIndexedColors) {
  ByteWriter image = ByteWriter().U32(PlusVersion).U32(1).U32(2).U32(1).U32(4).U32(0x30803).U32(0);
  image.U32(0).U32(2).U32(OpaqueRed).U32(OpaqueBlue).U8(0).U8(1).U16(0);
  ByteWriter draw = ByteWriter().U32(0).U32(2).Add(Rect(0, 0, 2, 1)).Add(Rect(0, 0, 100, 100));
  const QImage shown = PlusWriter().Object(5, 0, image).Add(0x401A, 0, draw).Show();
  EXPECT_EQ(shown.pixelColor(10, 50), Red);
  EXPECT_EQ(shown.pixelColor(90, 50), Blue);
}

TEST(EmfPlusPoints, MayEachBeRelativeToTheLast) {
  // From 10, 10: 80 to the right (in two bytes), then 60 down, then back.
  const std::string steps("\x0A\x0A\x80\x50\x00\x00\x3C\xFF\xB0\x00", 10);
  const ByteWriter polygon = ByteWriter().U32(OpaqueRed).U32(4).Text(steps);
  const QImage shown = PlusWriter().Add(0x400C, 0x8800, polygon).Show();
  EXPECT_EQ(shown.pixelColor(12, 40), Red);
  EXPECT_EQ(shown.pixelColor(88, 68), Red);
  EXPECT_EQ(shown.pixelColor(95, 40), White);
  EXPECT_EQ(shown.pixelColor(50, 73), White);
}

ByteWriter PenWithEnd(std::uint32_t flags, const ByteWriter& cap) {
  ByteWriter pen = ByteWriter().U32(PlusVersion).U32(0).U32(flags).U32(0).F32(6).Add(cap);
  return pen.U32(PlusVersion).U32(0).U32(OpaqueRed);
}

QImage LineWith(const ByteWriter& pen) {
  const ByteWriter line = ByteWriter().U32(2).I16(10).I16(50).I16(90).I16(50);
  return PlusWriter().Object(2, 0, pen).Add(0x400D, 0x4000, line).Show();
}

TEST(EmfPlusPens, EndInArrows) {
  const QImage anchor = LineWith(PenWithEnd(0x4, ByteWriter().U32(0x14)));
  ByteWriter arrow =
      ByteWriter().U32(PlusVersion).U32(1).F32(4).F32(4).F32(0).U32(1).Zeros(16).F32(1).Zeros(16);
  const QImage own =
      LineWith(PenWithEnd(0x1000, ByteWriter().U32(static_cast<std::uint32_t>(arrow.Size())).Add(arrow)));
  for (const QImage& shown : {anchor, own}) {
    EXPECT_EQ(shown.pixelColor(81, 53), Red);  // beside the line, under the head
    EXPECT_EQ(shown.pixelColor(30, 54), White);
    EXPECT_EQ(shown.pixelColor(88, 52), White);  // the tip is sharp
  }
  EXPECT_EQ(own.pixelColor(69, 59), Red);
}

TEST(EmfPlusPens, DrawWithTheirGradient) {
  ByteWriter pen =
      ByteWriter().U32(PlusVersion).U32(0).U32(0).U32(0).F32(20).U32(PlusVersion).U32(4).U32(0).U32(0);
  pen.Add(Rect(10, 0, 80, 100)).U32(OpaqueRed).U32(OpaqueBlue).U32(0).U32(0);
  const QImage shown = LineWith(pen);
  EXPECT_GT(shown.pixelColor(14, 50).red(), 220);
  EXPECT_GT(shown.pixelColor(86, 50).blue(), 220);
}

QImage TextIn(const ByteWriter& box, std::uint32_t formatFlags) {
  const std::string words = "HH HH HH";
  ByteWriter font = ByteWriter().U32(PlusVersion).F32(20).U32(2).U32(0).U32(0).U32(5);
  for (const char c : std::string("Arial")) font.U16(static_cast<unsigned char>(c));
  const ByteWriter format = ByteWriter().U32(PlusVersion).U32(formatFlags).U32(0).U32(0).U32(0).Zeros(40);
  ByteWriter text = ByteWriter().U32(OpaqueRed).U32(1).U32(static_cast<std::uint32_t>(words.size())).Add(box);
  for (const char c : words) text.U16(static_cast<unsigned char>(c));
  return PlusWriter().Object(6, 0, font).Object(7, 1, format).Add(0x401C, 0x8000, text).Show();
}

TEST(EmfPlusText, WrapsBetweenWords) {
  const QImage shown = TextIn(Rect(0, 0, 50, 100), 0);
  EXPECT_EQ(InkedPixels(shown, QRect(52, 0, 48, 100)), 0);
  EXPECT_GT(InkedPixels(shown, QRect(0, 50, 50, 20)), 0);
}

TEST(EmfPlusText, StaysOnOneLineWhereItsFormatSaysSo) {
  const QImage shown = TextIn(Rect(0, 0, 50, 100), 0x1000);
  EXPECT_GT(InkedPixels(shown, QRect(52, 0, 48, 25)), 0);
  EXPECT_EQ(InkedPixels(shown, QRect(0, 28, 100, 72)), 0);
}

TEST(EmfPlus, ACurveMayShowSomeOfItsSegmentsOnly) {
  const ByteWriter curve =
      ByteWriter().F32(0).U32(1).U32(1).U32(3).I16(0).I16(50).I16(50).I16(50).I16(100).I16(50);
  const QImage shown = PlusWriter().Pen(0, OpaqueRed, 4).Add(0x4018, 0x4000, curve).Show();
  EXPECT_EQ(shown.pixelColor(75, 50), Red);
  EXPECT_EQ(InkedPixels(shown, QRect(0, 0, 48, 100)), 0);
}

TEST(EmfPlus, APageWithoutAScaleHasOne) {
  EXPECT_EQ(PlusWriter().Add(0x4030, 2).FillRect(OpaqueRed, 10, 10, 30, 30).Show().pixelColor(35, 35), Red);
}

}  // namespace
}  // namespace tarvis
