// Broken and hostile metafiles: they end in a failure that names the file, in bounded time and memory.
#include <gtest/gtest.h>

#include <QBuffer>

#include "plus_writer.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

void ExpectRefused(const std::string& bytes, const std::string& what, const std::string& reason = {}) {
  PictureFileLoader loader;
  try {
    loader.LoadBytes("graph.emf", bytes);
    ADD_FAILURE() << "no failure: " << what;
  } catch (const RunTimeFailure& failure) {
    EXPECT_EQ(failure.Place().File, "graph.emf");
    EXPECT_FALSE(failure.Place().Text.value_or("").empty());
    EXPECT_NE(failure.Place().Text.value_or("").find(reason), std::string::npos) << failure.what();
  }
}

std::string SmallEmf() {
  return EmfWriter()
      .Brush(RedInk)
      .Pen(0, 2)
      .Rectangle(10, 10, 50, 50)
      .Font(-20, "Arial")
      .Text(10, 60, "Text")
      .Bytes();
}

std::string SmallWmf() {
  WmfWriter wmf;
  wmf.Placeable(0, 0, 100, 100, 96).Window(0, 0, 100, 100).Brush(RedInk).Words(0x041B, {50, 50, 10, 10});
  return wmf.Bytes();
}

TEST(HostileMetafile, CutAnywhereIsRefused) {
  const std::string emf = SmallEmf();
  for (std::size_t size = 0; size < emf.size() - 20; ++size)
    ExpectRefused(emf.substr(0, size), "emf of " + std::to_string(size));
  const std::string wmf = SmallWmf();
  for (std::size_t size = 0; size < wmf.size() - 6; ++size)
    ExpectRefused(wmf.substr(0, size), "wmf of " + std::to_string(size));
}

TEST(HostileMetafile, IsRefusedWithoutExtent) {
  ExpectRefused(EmfWriter().Frame(0, 0, 0, 0).Bounds(0, 0, 0, 0).Rectangle(0, 0, 9, 9).Bytes(), "frame");
  ExpectRefused(WmfWriter().Placeable(5, 5, 5, 5, 96).Words(0x041B, {9, 9, 0, 0}).Bytes(), "box");
}

TEST(HostileMetafile, IsRefusedIfItShowsNothingAtAll) {
  ExpectRefused(EmfWriter().Add(200).Bytes(), "unknown records only");
  ExpectRefused(WmfWriter().Window(0, 0, 100, 100).Bytes(), "no drawing");
}

TEST(HostileMetafile, IsRefusedWhereOnlyAWhiteGroundCouldBePlayed) {
  EmfWriter emf;
  emf.NoPen().Brush(Rgb(255, 255, 255)).Rectangle(0, 0, 100, 100);
  EXPECT_FALSE(emf.Show().isNull());  // an empty picture may be meant so
  ExpectRefused(emf.Add(200).Bytes(), "white ground");
}

TEST(HostileMetafile, CountsPastTheRecordAreRefused) {
  for (const std::uint32_t type : {2u, 3u, 4u, 5u, 6u, 56u, 85u, 86u, 87u, 88u, 89u, 92u})
    ExpectRefused(EmfWriter().Add(type, Box32(0, 0, 0, 0).U32(0xFFFFFFFF).U32(0)).Bytes(),
                  std::to_string(type));
  for (const std::uint32_t type : {7u, 8u, 90u, 91u})
    ExpectRefused(EmfWriter().Add(type, Box32(0, 0, 0, 0).U32(1).U32(9).U32(0x40000001)).Bytes(),
                  std::to_string(type));
  WmfWriter wmf;
  ExpectRefused(wmf.Window(0, 0, 9, 9).Words(0x0324, {-1, 0, 0}).Bytes(), "wmf polygon");
}

TEST(HostileMetafile, OffsetsPastTheRecordAreRefused) {
  ByteWriter text = Box32(0, 0, 0, 0).U32(1).F32(1).F32(1).I32(10).I32(20).U32(5).U32(0xFFFFFFF0).U32(0);
  ExpectRefused(EmfWriter().Add(84, text.Zeros(20)).Bytes(), "text");
  ByteWriter dib = Box32(0, 0, 0, 0).Zeros(24).U32(80).U32(0xFFFFFFF0).U32(120).U32(4).U32(0).U32(0x00CC0020);
  ExpectRefused(EmfWriter().Add(81, dib.I32(9).I32(9).Zeros(60)).Bytes(), "bitmap");
}

TEST(HostileMetafile, RecordsOfNoSizeAreRefused) {
  std::string emf = SmallEmf();
  emf.replace(88 + 4, 4, std::string(4, '\0'));
  ExpectRefused(emf, "record size 0");
}

TEST(HostileMetafile, SavingWithoutEndIsCounted) {
  EmfWriter emf;
  for (int i = 0; i < 5000; ++i) emf.Add(33);
  EXPECT_GT(Play(emf.Rectangle(0, 0, 9, 9).Bytes())->SkippedRecords(), 4000);
}

TEST(HostileMetafile, RestoringWhatWasNotSavedIsCounted) {
  EmfWriter emf;
  emf.Set(34, static_cast<std::uint32_t>(-1)).Set(34, 0x80000000).Set(34, 7).Rectangle(0, 0, 9, 9);
  EXPECT_EQ(Play(emf.Bytes())->SkippedRecords(), 3);
}

TEST(HostileMetafile, ObjectsThatAreNotThereAreCounted) {
  EmfWriter emf;
  emf.Select(77).Select(0x80000063).Set(40, 99).Rectangle(0, 0, 9, 9);
  EXPECT_EQ(Play(emf.Bytes())->SkippedRecords(), 2);
}

TEST(HostileMetafile, AMillionRecordsLoad) {
  EmfWriter emf;
  emf.NoPen();
  for (int i = 0; i < 1000000; ++i) emf.Rectangle(i % 90, i / 90 % 90, i % 90 + 1, i / 90 % 90 + 1);
  EXPECT_EQ(Play(emf.Bytes())->List().Commands().size(), 1000000u);
}

TEST(HostileMetafile, APictureOf60000By60000TakesNoMemoryForItsSize) {
  EmfWriter emf;
  emf.Frame(0, 0, 6000000, 6000000).Bounds(0, 0, 59999, 59999).Brush(RedInk).Rectangle(0, 0, 60000, 60000);
  EXPECT_EQ(emf.Show().pixelColor(50, 50), QColor(255, 0, 0));
  WmfWriter wmf;
  wmf.Placeable(-30000, -30000, 30000, 30000, 1).Brush(RedInk).Words(0x041B, {30000, 30000, -30000, -30000});
  EXPECT_EQ(wmf.Show().pixelColor(50, 50), QColor(255, 0, 0));
  ByteWriter dib;  // a bitmap that says that it is that large
  dib.I32(40).I32(60000).I32(60000).U16(1).U16(24).Zeros(24);
  ByteWriter record = Box32(0, 0, 0, 0).I32(0).I32(0).Add(Box32(0, 0, 60000, 60000)).U32(80).U32(40).U32(120);
  record.U32(0).U32(0).U32(0x00CC0020).I32(100).I32(100).Add(dib);
  EXPECT_EQ(Play(EmfWriter().Add(81, record).Rectangle(0, 0, 9, 9).Bytes())->SkippedRecords(), 1);
}

TEST(HostileMetafile, GradientsInRingsAreLimitedInNumber) {
  PlusWriter plus;
  ByteWriter brush =
      ByteWriter().U32(PlusVersion).U32(3).U32(0).U32(4).U32(0xFFFFFFFF).F32(50).F32(50).U32(1);
  brush.U32(0xFF0000FF).U32(4).F32(0).F32(0).F32(100).F32(0).F32(100).F32(100).F32(0).F32(100);
  plus.Object(1, 0, brush);
  ByteWriter fill = ByteWriter().U32(0).U32(1).F32(0).F32(0).F32(100).F32(100);
  for (int i = 0; i < 2000; ++i) plus.Add(0x400A, 0, fill);
  EXPECT_LT(Play(plus.Emf().Bytes())->List().Commands().size(), 20000u);
}

TEST(HostileMetafile, ExtendedRecordsCutAnywhereAreNotDrawn) {
  const std::string whole = PlusWriter().FillRect(0xFFFF0000, 0, 0, 9, 9).Comment().Bytes();
  for (std::size_t size = 8; size < whole.size(); ++size) {
    const ByteWriter cut =
        ByteWriter().U32(static_cast<std::uint32_t>(size - 4)).Text(whole.substr(4, size - 4));
    try {
      EXPECT_NE(EmfWriter().Add(70, cut).Show().pixelColor(5, 5), QColor(255, 0, 0)) << size;
    } catch (const RunTimeFailure& failure) {
      EXPECT_FALSE(failure.Place().Text.value_or("").empty());
    }
  }
}

TEST(HostileMetafile, HugeCoordinatesAndDashesPaintInTime) {
  EmfWriter emf;
  for (const std::uint32_t style : {0u, 1u, 2u}) {
    emf.Pen(0, 0, style).Pair(27, INT32_MIN, INT32_MIN).Pair(54, INT32_MAX, INT32_MAX - 7);
    emf.Pen(0, 3, style).Add(42, Box32(INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX));
    emf.WidePen(0, 1000000000, 0x10000 | style).Pair(54, INT32_MAX, 0).Pair(54, 0, INT32_MIN);
  }
  emf.Brush(RedInk, 2, 4).Rectangle(INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX);
  emf.Font(INT32_MIN, "Arial").Text(0, 0, "Text").Font(INT32_MAX, "Arial").Text(INT32_MAX, INT32_MIN, "Text");
  EXPECT_FALSE(emf.Show().isNull());
}

TEST(HostileMetafile, TransformsThatAreNoNumbersAreCounted) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  EmfWriter emf;
  emf.Add(35, ByteWriter().F32(nan).F32(0).F32(0).F32(1).F32(0).F32(0)).Rectangle(0, 0, 9, 9);
  EXPECT_EQ(Play(emf.Bytes())->SkippedRecords(), 1);
  EmfWriter flat;
  flat.Add(35, ByteWriter().F32(0).F32(0).F32(0).F32(0).F32(0).F32(0)).Pen(0, 5, 1).Rectangle(0, 0, 9, 9);
  flat.Font(-10, "Arial").Set(22, 1).Text(0, 0, "Text");
  EXPECT_FALSE(flat.Show().isNull());
}

TEST(HostileMetafile, BitmapsThatUnpackWithoutEndAreRefused) {
  ByteWriter dib;  // 5,000 by 5,000 of run-length code that is over at once
  dib.I32(40).I32(5000).I32(5000).U16(1).U16(8).U32(1).Zeros(20).Zeros(1024).U8(0).U8(1);
  ByteWriter record =
      Box32(0, 0, 0, 0).I32(0).I32(0).Add(Box32(0, 0, 5000, 5000)).U32(80).U32(1064).U32(1144).U32(2);
  record.U32(0).U32(0x00CC0020).I32(10).I32(10).Add(dib);
  EmfWriter emf;
  for (int i = 0; i < 100; ++i) emf.Add(81, record);
  ExpectRefused(emf.Bytes(), "bitmaps");
}

// A header of one pixel before that file.
ByteWriter DibAround(const std::string& file) {
  ByteWriter dib;
  dib.I32(40).I32(1).I32(1).U16(1).U16(0).U32(5).U32(static_cast<std::uint32_t>(file.size())).Zeros(16);
  return dib.Text(file);
}

// The same before a file of that many pixels a side.
ByteWriter DibAroundPng(int side, const char* format = "PNG") {
  QByteArray file;
  QBuffer buffer(&file);
  QImage image(side, side, QImage::Format_Mono);
  image.fill(1);
  image.save(&buffer, format);
  return DibAround(file.toStdString());
}

ByteWriter StretchDib(const ByteWriter& dib) {
  ByteWriter record = Box32(0, 0, 0, 0).I32(0).I32(0).Add(Box32(0, 0, 1, 1)).U32(80).U32(40).U32(120);
  record.U32(static_cast<std::uint32_t>(dib.Size() - 40)).U32(0).U32(0x00CC0020);
  return record.I32(100).I32(100).Add(dib);
}

constexpr int SideTooLarge = 6000;

TEST(HostileMetafile, APictureInsideABitmapIsMeasuredByWhatItHolds) {
  // It is refused as a whole: without one of its pictures, a graph would be a wrong one.
  ExpectRefused(EmfWriter().Rectangle(5, 5, 90, 90).Add(81, StretchDib(DibAroundPng(SideTooLarge))).Bytes(),
                "bitmap", "too large");
  const ByteWriter file = ByteWriter().Text("BM").U32(0).U32(0).U32(54).Add(DibAroundPng(SideTooLarge));
  ExpectRefused(file.Bytes(), "bitmap file", "too large");
}

TEST(HostileMetafile, ABitmapHoldsFilesOfKnownFormatsOnly) {
  const auto shown = [](const char* format) {
    return EmfWriter()
        .Pen(0, 1)
        .Rectangle(90, 90, 95, 95)
        .Add(81, StretchDib(DibAroundPng(8, format)))
        .Show();
  };
  EXPECT_EQ(shown("PNG").pixelColor(50, 50), shown("BMP").pixelColor(50, 50));
  const std::string drawing =
      EmfWriter().Pen(0, 1).Rectangle(90, 90, 95, 95).Add(81, StretchDib(DibAroundPng(8, "XPM"))).Bytes();
  EXPECT_EQ(Play(drawing)->SkippedRecords(), 1);
}

TEST(HostileMetafile, PicturesInsideBitmapsAreLimitedInAll) {
  EmfWriter emf;
  for (int i = 0; i < 20; ++i) emf.Add(81, StretchDib(DibAroundPng(2000)));
  ExpectRefused(emf.Bytes(), "bitmaps", "too large");
}

TEST(HostileMetafile, OneStringThatIsNamedManyTimesIsRefused) {
  constexpr std::uint32_t names = 100000, length = 40, text = 40 + names * 40;
  ByteWriter record = Box32(0, 0, 0, 0).U32(1).F32(1).F32(1).U32(names);
  for (std::uint32_t i = 0; i < names; ++i)
    record.I32(5).I32(50).U32(length).U32(text).U32(0).Add(Box32(0, 0, 0, 0)).U32(0);
  for (std::uint32_t i = 0; i < length; ++i) record.U16('a' + i % 26);
  ExpectRefused(EmfWriter().Font(-10, "Arial").Add(97, record).Bytes(), "text", "too much text");
}

TEST(HostileMetafile, ARegionThatIsSelectedAgainAndAgainIsRefused) {
  constexpr int scans = 2000;
  ByteWriter region;
  region.Zeros(10).U16(scans).Zeros(10);
  for (int i = 0; i < scans; ++i) region.U16(2).I16(2 * i).I16(2 * i + 1).I16(0).I16(i + 1).U16(2);
  WmfWriter wmf;
  wmf.Window(0, 0, 100, 100).Add(0x06FF, region);
  for (int i = 0; i < 20000; ++i) wmf.Words(0x012C, {0});
  ExpectRefused(wmf.Words(0x041B, {50, 50, 10, 10}).Bytes(), "region", "draws too much");
}

TEST(HostileMetafile, ARequestToEndIsAnsweredWhileItLoads) {
  EmfWriter emf;
  for (int i = 0; i < 10000; ++i) emf.Rectangle(0, 0, 9, 9);
  int asked = 0;
  PictureFileLoader loader([&asked] { ++asked; });
  loader.LoadBytes("graph.emf", emf.Bytes());
  EXPECT_GT(asked, 10);
}

}  // namespace
}  // namespace tarvis
