// Metafiles inside extended metafiles, and paths with run lengths.
#include <gtest/gtest.h>

#include "pixel_colors.h"
#include "plus_writer.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

ByteWriter MetafileObject(const std::string& metafile, std::uint32_t type = 3) {
  return ByteWriter()
      .U32(PlusVersion)
      .U32(2)
      .U32(type)
      .U32(static_cast<std::uint32_t>(metafile.size()))
      .Text(metafile);
}

ByteWriter DrawFrom(float left, float top, float width, float height) {
  return ByteWriter().U32(0xFFFFFFFF).U32(2).F32(left).F32(top).F32(width).F32(height);
}

// Red in its left half, with a letter in the right one.
std::string InnerEmf() {
  EmfWriter inner;
  inner.Brush(Rgb(255, 0, 0)).NoPen().Rectangle(0, 0, 50, 100);
  return inner.Set(18, 1).Font(-20, "Arial").Set(22, 24).Text(60, 60, "H").Bytes();
}

EmfWriter OuterEmf(const ByteWriter& object, const ByteWriter& drawn, std::uint32_t kind = 0x401A) {
  return PlusWriter().Object(5, 0, object).Add(kind, 0, drawn).Emf();
}

TEST(MetafileInMetafile, FillsItsPlace) {
  const ByteWriter drawn = DrawFrom(0, 0, 100, 100).F32(20).F32(40).F32(60).F32(20);
  const QImage shown = OuterEmf(MetafileObject(InnerEmf()), drawn).Show();
  EXPECT_EQ(shown.pixelColor(25, 50), Red);
  EXPECT_EQ(shown.pixelColor(48, 58), Red);
  EXPECT_EQ(shown.pixelColor(25, 37), White);
  EXPECT_EQ(shown.pixelColor(52, 58), White);
  EXPECT_GT(InkedPixels(shown, QRect(54, 40, 20, 20)), 10);
}

TEST(MetafileInMetafile, ShowsThePartThatIsAskedFor) {
  const ByteWriter drawn = DrawFrom(25, 0, 50, 50).F32(0).F32(0).F32(100).F32(100);
  const QImage shown = OuterEmf(MetafileObject(InnerEmf()), drawn).Show();
  EXPECT_EQ(shown.pixelColor(45, 95), Red);
  EXPECT_EQ(shown.pixelColor(55, 95), White);
}

TEST(MetafileInMetafile, TurnsWithItsCorners) {
  const ByteWriter corners = ByteWriter().U32(3).F32(100).F32(0).F32(100).F32(100).F32(0).F32(0);
  const ByteWriter drawn = DrawFrom(0, 0, 100, 100).Add(corners);
  const QImage shown = OuterEmf(MetafileObject(InnerEmf()), drawn, 0x401B).Show();
  EXPECT_EQ(shown.pixelColor(20, 20), Red);
  EXPECT_EQ(shown.pixelColor(80, 20), Red);
  EXPECT_EQ(shown.pixelColor(20, 60), White);
}

TEST(MetafileInMetafile, MayBeOfTheOldStyle) {
  WmfWriter inner;
  inner.Placeable(0, 0, 400, 400, 96).Window(0, 0, 400, 400).NoPen().Brush(Rgb(0, 255, 0));
  inner.Words(0x041B, {400, 200, 0, 0});
  const ByteWriter drawn = DrawFrom(0, 0, 400, 400).F32(0).F32(0).F32(100).F32(100);
  const QImage shown = OuterEmf(MetafileObject(inner.Bytes(), 2), drawn).Show();
  EXPECT_EQ(shown.pixelColor(25, 50), Green);
  EXPECT_EQ(shown.pixelColor(75, 50), White);
}

TEST(MetafileInMetafile, KeepsItsText) {
  const ByteWriter drawn = DrawFrom(0, 0, 100, 100).F32(50).F32(50).F32(50).F32(50);
  const auto picture = Play(OuterEmf(MetafileObject(InnerEmf()), drawn).Bytes());
  ASSERT_EQ(picture->Texts().size(), 1u);
  EXPECT_EQ(picture->Texts()[0].Text, "H");
  EXPECT_NEAR(picture->Texts()[0].Edges[0].X, 0.8F, 1e-3);
  EXPECT_NEAR(picture->Texts()[0].Edges[0].Y, 0.8F, 1e-3);
  EXPECT_NEAR(picture->Texts()[0].Down.Y, 0.021F, 3e-3);
}

TEST(MetafileInMetafile, IsCountedWhenBroken) {
  const ByteWriter drawn = DrawFrom(0, 0, 100, 100).F32(50).F32(50).F32(50).F32(50);
  PlusWriter plus;
  plus.FillRect(OpaqueRed, 0, 0, 9, 9)
      .Object(5, 0, MetafileObject("no metafile at all"))
      .Add(0x401A, 0, drawn);
  EXPECT_EQ(Play(plus.Emf().Bytes())->SkippedRecords(), 2);
}

TEST(MetafileInMetafile, IsRefusedDeepInsideOthers) {
  std::string bytes = InnerEmf();
  const ByteWriter drawn = DrawFrom(0, 0, 100, 100).F32(0).F32(0).F32(100).F32(100);
  for (int i = 0; i < 3; ++i) bytes = OuterEmf(MetafileObject(bytes), drawn).Bytes();
  EXPECT_EQ(PaintedPicture(bytes, {100, 100}).pixelColor(20, 50), Red);
  for (int i = 0; i < 3; ++i) bytes = OuterEmf(MetafileObject(bytes), drawn).Bytes();
  EXPECT_THROW(PictureFileLoader().LoadBytes("deep.emf", bytes), RunTimeFailure);
}

// A few kilobytes would else be painted a thousand million times.
TEST(MetafileInMetafile, IsRefusedWhenDrawnAgainAndAgainOnEachLevel) {
  std::string bytes = InnerEmf();
  const ByteWriter drawn = DrawFrom(0, 0, 100, 100).F32(0).F32(0).F32(100).F32(100);
  for (int level = 0; level < 3; ++level) {
    PlusWriter plus;
    plus.Object(5, 0, MetafileObject(bytes));
    for (int i = 0; i < 1000; ++i) plus.Add(0x401A, 0, drawn);
    bytes = plus.Emf().Bytes();
  }
  EXPECT_THROW(PictureFileLoader().LoadBytes("many.emf", bytes), RunTimeFailure);
}

TEST(MetafileInMetafile, IsRefusedWhenItsBitmapsAreDrawnTooOften) {
  constexpr std::size_t side = 200;
  ByteWriter pixels;
  pixels.U32(PlusVersion)
      .U32(1)
      .I32(side)
      .I32(side)
      .I32(4 * side)
      .U32(0x26200A)
      .U32(0)
      .Zeros(4 * side * side);
  const ByteWriter whole = DrawFrom(0, 0, side, side).F32(0).F32(0).F32(100).F32(100);
  std::string bytes = OuterEmf(pixels, whole).Bytes();
  const ByteWriter drawn = DrawFrom(0, 0, 100, 100).F32(0).F32(0).F32(100).F32(100);
  for (int level = 0; level < 2; ++level) {
    PlusWriter plus;
    plus.Object(5, 0, MetafileObject(bytes));
    for (int i = 0; i < 40; ++i) plus.Add(0x401A, 0, drawn);
    bytes = plus.Emf().Bytes();
  }
  EXPECT_THROW(PictureFileLoader().LoadBytes("bitmaps.emf", bytes), RunTimeFailure);
}

// Points of a square, from one to the next; then how many of them have which type.
QImage ShowRunLengths(std::uint32_t flags, const ByteWriter& types) {
  ByteWriter path;
  path.U32(PlusVersion).U32(4).U32(flags);
  if ((flags & 0x800) != 0) {
    path.U8(20).U8(20).U8(60).U8(0).U8(0).U8(60).U8(0x100 - 0x80 - 60).U8(0);
  } else {
    path.I16(20).I16(20).I16(80).I16(20).I16(80).I16(80).I16(20).I16(80);
  }
  PlusWriter plus;
  plus.Object(3, 2, path.Add(types)).Add(0x4014, 0x8002, ByteWriter().U32(OpaqueRed));
  return plus.Show();
}

TEST(RunLengthPaths, ShowTheirAreaInBothEditionsOfTheFormat) {
  const ByteWriter runs = ByteWriter().U8(0x41).U8(0).U8(0x42).U8(1).U8(0x41).U8(0x81);
  for (const std::uint32_t flags : {0x800u, 0x5000u}) {
    const QImage shown = ShowRunLengths(flags, runs);
    EXPECT_EQ(shown.pixelColor(50, 50), Red) << flags;
    EXPECT_EQ(shown.pixelColor(75, 75), Red) << flags;
    EXPECT_EQ(shown.pixelColor(10, 50), White) << flags;
  }
}

TEST(RunLengthPaths, MayMixRunsWithSingleTypes) {
  const ByteWriter mixed = ByteWriter().U8(0).U8(0x42).U8(1).U8(0x81);
  EXPECT_EQ(ShowRunLengths(0x5000, mixed).pixelColor(75, 75), Red);
}

TEST(RunLengthPaths, RefuseMoreTypesThanPoints) {
  PictureFileLoader loader;
  EXPECT_THROW(ShowRunLengths(0x5000, ByteWriter().U8(0x45).U8(1)), RunTimeFailure);
}

}  // namespace
}  // namespace tarvis
