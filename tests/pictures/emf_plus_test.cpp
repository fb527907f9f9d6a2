// Enhanced metafiles with extended records.
#include <gtest/gtest.h>

#include <QBuffer>

#include "pixel_colors.h"
#include "plus_writer.h"

namespace tarvis {
namespace {

TEST(EmfPlus, FillsRectangles) {
  const QImage shown = PlusWriter().FillRect(OpaqueRed, 10, 10, 30, 30).Show();
  EXPECT_EQ(shown.pixelColor(20, 20), Red);
  EXPECT_EQ(shown.pixelColor(50, 50), White);
}

TEST(EmfPlus, ADualFilePlaysItsPlainRecords) {
  EmfWriter emf = PlusWriter(true).FillRect(OpaqueRed, 0, 0, 100, 100).Emf();
  emf.Brush(Rgb(0, 255, 0)).NoPen().Rectangle(0, 0, 50, 50);
  EXPECT_EQ(emf.Show().pixelColor(20, 20), Green);
  EXPECT_EQ(emf.Show().pixelColor(70, 70), White);
}

TEST(EmfPlus, ADualFileWhosePlainRecordsDrawNothingPlaysItsExtendedOnes) {
  EmfWriter emf = PlusWriter(true).FillRect(OpaqueRed, 10, 10, 30, 30).Emf();
  EXPECT_EQ(emf.Add(33).Set(34, 0xFFFFFFFF).Show().pixelColor(20, 20), Red);
}

TEST(EmfPlus, PlainRecordsAreLeftAloneUnlessTheContextIsGiven) {
  EmfWriter emf = PlusWriter().FillRect(OpaqueRed, 0, 0, 100, 100).Emf();
  emf.Brush(Rgb(0, 255, 0)).NoPen().Rectangle(0, 0, 50, 50);
  EXPECT_EQ(emf.Show().pixelColor(20, 20), Red);
  EmfWriter given = PlusWriter().FillRect(OpaqueRed, 0, 0, 100, 100).Add(0x4004, 0).Emf();
  given.Brush(Rgb(0, 255, 0)).NoPen().Rectangle(0, 0, 50, 50);
  EXPECT_EQ(given.Show().pixelColor(20, 20), Green);
}

TEST(EmfPlus, DrawsLinesWithItsPen) {
  PlusWriter plus;
  plus.Pen(1, OpaqueBlue, 6).Add(0x400D, 0x4001, ByteWriter().U32(2).I16(10).I16(50).I16(90).I16(50));
  EXPECT_EQ(plus.Show().pixelColor(50, 50), Blue);
  EXPECT_EQ(plus.Show().pixelColor(5, 50), White);
}

TEST(EmfPlus, FillsAndStrokesPaths) {
  ByteWriter path;
  path.U32(PlusVersion).U32(4).U32(0x4000);
  path.I16(20).I16(20).I16(80).I16(20).I16(80).I16(80).I16(20).I16(80).U8(0).U8(1).U8(1).U8(0x81);
  PlusWriter plus;
  plus.Object(3, 2, path).Pen(1, OpaqueBlue, 6);
  plus.Add(0x4014, 0x8002, ByteWriter().U32(OpaqueRed)).Add(0x4015, 2, ByteWriter().U32(1));
  const QImage shown = plus.Show();
  EXPECT_EQ(shown.pixelColor(50, 50), Red);
  EXPECT_EQ(shown.pixelColor(20, 50), Blue);
}

TEST(EmfPlus, FillsEllipsesAndPies) {
  PlusWriter plus;
  plus.Add(0x400E, 0xC000, ByteWriter().U32(OpaqueRed).I16(0).I16(0).I16(40).I16(40));
  plus.Add(0x4010, 0xC000, ByteWriter().U32(OpaqueBlue).F32(0).F32(90).I16(40).I16(40).I16(60).I16(60));
  const QImage shown = plus.Show();
  EXPECT_EQ(shown.pixelColor(20, 20), Red);
  EXPECT_EQ(shown.pixelColor(2, 2), White);
  EXPECT_EQ(shown.pixelColor(80, 80), Blue);
  EXPECT_EQ(shown.pixelColor(60, 60), White);
}

TEST(EmfPlus, FollowsItsTransforms) {
  PlusWriter plus;
  plus.Add(0x4025, 0, ByteWriter().U32(0)).Add(0x402D, 0, ByteWriter().F32(50).F32(0));
  plus.Add(0x402E, 0, ByteWriter().F32(2).F32(2)).FillRect(OpaqueRed, 0, 0, 10, 10);
  plus.Add(0x4026, 0, ByteWriter().U32(0)).FillRect(OpaqueBlue, 0, 80, 10, 10);
  const QImage shown = plus.Show();
  EXPECT_EQ(shown.pixelColor(65, 15), Red);
  EXPECT_EQ(shown.pixelColor(72, 15), White);
  EXPECT_EQ(shown.pixelColor(5, 85), Blue);
}

TEST(EmfPlus, ClipsToRectanglesAndPaths) {
  PlusWriter plus;
  plus.Add(0x4032, 0x100, ByteWriter().F32(0).F32(0).F32(50).F32(50)).FillRect(OpaqueRed, 0, 0, 100, 100);
  plus.Add(0x4031, 0).FillRect(OpaqueBlue, 60, 60, 40, 40);
  const QImage shown = plus.Show();
  EXPECT_EQ(shown.pixelColor(25, 25), Red);
  EXPECT_EQ(shown.pixelColor(55, 55), White);
  EXPECT_EQ(shown.pixelColor(80, 80), Blue);
}

TEST(EmfPlus, GradientsRunFromColorToColor) {
  ByteWriter brush;
  brush.U32(PlusVersion)
      .U32(4)
      .U32(0)
      .U32(4)
      .F32(0)
      .F32(0)
      .F32(100)
      .F32(100)
      .U32(OpaqueRed)
      .U32(OpaqueBlue)
      .Zeros(8);
  PlusWriter plus;
  plus.Object(1, 3, brush).Add(0x400A, 0x4000, ByteWriter().U32(3).U32(1).I16(0).I16(0).I16(100).I16(100));
  EXPECT_GT(plus.Show().pixelColor(3, 50).red(), 240);
  EXPECT_GT(plus.Show().pixelColor(97, 50).blue(), 240);
}

TEST(EmfPlus, TextShowsInItsBox) {
  ByteWriter font;
  font.U32(PlusVersion).F32(40).U32(2).U32(0).U32(0).U32(5);
  for (const char c : std::string("Arial")) font.U16(static_cast<unsigned char>(c));
  PlusWriter plus;
  plus.Object(6, 4, font);
  plus.Add(0x401C, 0x8004,
           ByteWriter().U32(OpaqueRed).U32(0xFF).U32(1).F32(0).F32(0).F32(100).F32(50).U16('H'));
  EXPECT_GT(InkedPixels(plus.Show(), QRect(5, 5, 40, 40)), 100);
  EXPECT_EQ(InkedPixels(plus.Show(), QRect(0, 50, 100, 50)), 0);
}

TEST(EmfPlus, TextShowsCharacterByCharacter) {
  ByteWriter font;
  font.U32(PlusVersion).F32(40).U32(2).U32(0).U32(0).U32(0);
  PlusWriter plus;
  plus.Object(6, 4, font);
  ByteWriter text;
  text.U32(OpaqueRed).U32(1).U32(0).U32(2).U16('I').U16('I').F32(10).F32(50).F32(70).F32(50);
  const QImage shown = plus.Add(0x4036, 0x8004, text).Show();
  EXPECT_GT(InkedPixels(shown, QRect(10, 20, 15, 30)), 50);
  EXPECT_GT(InkedPixels(shown, QRect(70, 20, 15, 30)), 50);
  EXPECT_EQ(InkedPixels(shown, QRect(30, 0, 35, 100)), 0);
}

TEST(EmfPlus, ImagesShowFromPixelsAndFromFiles) {
  ByteWriter pixels;
  pixels.U32(PlusVersion).U32(1).I32(2).I32(1).I32(8).U32(0x26200A).U32(0).U32(OpaqueRed).U32(OpaqueBlue);
  QImage image(2, 1, QImage::Format_RGB32);
  image.setPixel(0, 0, OpaqueRed);
  image.setPixel(1, 0, OpaqueBlue);
  QByteArray png;
  QBuffer buffer(&png);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  ByteWriter file;
  file.U32(PlusVersion).U32(1).I32(0).I32(0).I32(0).U32(0).U32(1).Text(png.toStdString());
  for (const ByteWriter& object : {pixels, file}) {
    PlusWriter plus;
    plus.Object(5, 0, object);
    ByteWriter draw = ByteWriter().U32(0xFFFFFFFF).U32(2).F32(0).F32(0).F32(2).F32(1);
    const QImage shown = plus.Add(0x401A, 0, draw.F32(0).F32(0).F32(100).F32(100)).Show();
    EXPECT_EQ(shown.pixelColor(10, 50), Red);
    EXPECT_EQ(shown.pixelColor(90, 50), Blue);
  }
}

TEST(EmfPlus, WhatCantBePlayedIsCounted) {
  PlusWriter plus;
  plus.FillRect(OpaqueRed, 0, 0, 9, 9).Add(0x403A, 0).Add(0x400D, 5, ByteWriter().U32(0));
  EXPECT_EQ(Play(plus.Emf().Bytes())->SkippedRecords(), 2);
}

TEST(EmfPlus, CountsPastTheRecordAreRefused) {
  PlusWriter plus;
  plus.Pen(1, OpaqueBlue, 6).Add(0x400D, 1, ByteWriter().U32(0xFFFFFFFF));
  PictureFileLoader loader;
  EXPECT_ANY_THROW(loader.LoadBytes("plus", plus.Emf().Bytes()));
}

}  // namespace
}  // namespace tarvis
