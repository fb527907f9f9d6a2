// Bitmaps of every depth, compression and header that a host may leave.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QImageWriter>
#include <vector>

#include "byte_writer.h"
#include "pictures/toolkit_image.h"
#include "pixel_colors.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

struct Dib {
  int HeaderSize = 40;
  int Width = 2;
  int Height = 2;
  int Bits = 24;
  int Compression = 0;
  int ColorsUsed = 0;
  std::vector<std::uint32_t> Masks = {};  // after a short header, inside a long one
  std::vector<std::uint32_t> Colors = {};
  std::string Data = {};

  std::string Packed() const {
    ByteWriter out;
    out.I32(HeaderSize).I32(Width).I32(Height).I16(1).I16(Bits).I32(Compression);
    out.U32(static_cast<std::uint32_t>(Data.size())).I32(3780).I32(3780).I32(ColorsUsed).I32(0);
    for (const std::uint32_t mask : Masks) out.U32(mask);
    if (out.Size() < static_cast<std::size_t>(HeaderSize))
      out.Zeros(static_cast<std::size_t>(HeaderSize) - out.Size());
    for (const std::uint32_t color : Colors) out.U32(color);
    return out.Text(Data).Bytes();
  }
  std::string File() const {
    const std::string packed = Packed();
    ByteWriter out;
    out.Text("BM").U32(static_cast<std::uint32_t>(packed.size() + 14)).U32(0);
    out.U32(static_cast<std::uint32_t>(packed.size() + 14 - Data.size()));
    return out.Text(packed).Bytes();
  }
};

// Bottom row first: blue white; top row: red green.
void ExpectFourColors(const std::string& bytes) {
  const QImage shown = PaintedPicture(bytes, {2, 2});
  EXPECT_EQ(shown.pixelColor(0, 0), Red);
  EXPECT_EQ(shown.pixelColor(1, 0), Green);
  EXPECT_EQ(shown.pixelColor(0, 1), Blue);
  EXPECT_EQ(shown.pixelColor(1, 1), White);
}

const std::vector<std::uint32_t> FourColors = {0xFF0000, 0x00FF00, 0x0000FF, 0xFFFFFF};
using namespace std::string_literals;

std::string Data24() {
  return "\xFF\0\0\xFF\xFF\xFF\0\0"s + "\0\0\xFF\0\xFF\0\0\0"s;
}

std::string Words(const std::vector<std::uint32_t>& words, int bytesEach) {
  ByteWriter out;
  for (const std::uint32_t word : words) bytesEach == 2 ? out.U16(word) : out.U32(word);
  return out.Bytes();
}

TEST(Bitmap, ShowsPixelsOf24Bits) {
  ExpectFourColors(Dib{.Data = Data24()}.File());
}

TEST(Bitmap, ShowsWithoutAFileHeader) {
  ExpectFourColors(Dib{.Data = Data24()}.Packed());
}

TEST(Bitmap, MayOmitThePaddingOfItsLastRow) {
  std::string file = Dib{.Data = Data24()}.File();
  file.resize(file.size() - 2);
  ExpectFourColors(file);
}

TEST(Bitmap, ShowsTopDownRowsUpright) {
  ExpectFourColors(Dib{.Height = -2, .Data = "\0\0\xFF\0\xFF\0\0\0"s + "\xFF\0\0\xFF\xFF\xFF\0\0"s}.File());
}

TEST(Bitmap, IgnoresTheFourthByteOf32Bits) {
  ExpectFourColors(Dib{.Bits = 32, .Data = Words({0x0000FF, 0xFFFFFF, 0xFF0000, 0x00FF00}, 4)}.File());
}

TEST(Bitmap, TakesFiveBitsAColorOf16Bits) {
  ExpectFourColors(Dib{.Bits = 16, .Data = Words({0x001F, 0x7FFF, 0x7C00, 0x03E0}, 2)}.File());
}

TEST(Bitmap, FollowsTheMasksOf16Bits) {
  ExpectFourColors(Dib{.Bits = 16,
                       .Compression = 3,
                       .Masks = {0xF800, 0x07E0, 0x001F},
                       .Data = Words({0x001F, 0xFFFF, 0xF800, 0x07E0}, 2)}
                       .File());
}

TEST(Bitmap, UsesTheColorTableOf8Bits) {
  ExpectFourColors(Dib{.Bits = 8, .ColorsUsed = 4, .Colors = FourColors, .Data = "\2\3\0\0\0\1\0\0"s}.File());
}

TEST(Bitmap, UsesTheColorTableOf4Bits) {
  ExpectFourColors(
      Dib{.Bits = 4, .ColorsUsed = 4, .Colors = FourColors, .Data = "\x23\0\0\0\x01\0\0\0"s}.File());
}

TEST(Bitmap, UsesTheTwoColorsOf1Bit) {
  const QImage shown = PaintedPicture(
      Dib{.Bits = 1, .Colors = {0xFF0000, 0x0000FF}, .Data = "\x40\0\0\0\x80\0\0\0"s}.File(), {2, 2});
  EXPECT_EQ(shown.pixelColor(0, 0), Blue);
  EXPECT_EQ(shown.pixelColor(1, 0), Red);
  EXPECT_EQ(shown.pixelColor(0, 1), Red);
  EXPECT_EQ(shown.pixelColor(1, 1), Blue);
}

TEST(Bitmap, RunLengthCodedIn8Bits) {
  const std::string data = "\1\2\1\3\0\0"s + "\0\x03\0\1\1\0"s + "\0\1"s;
  ExpectFourColors(
      Dib{.Bits = 8, .Compression = 1, .ColorsUsed = 4, .Colors = FourColors, .Data = data}.File());
}

TEST(Bitmap, RunLengthCodedIn4Bits) {
  const std::string data = "\2\x23\0\0"s + "\2\x01\0\1"s;
  ExpectFourColors(
      Dib{.Bits = 4, .Compression = 2, .ColorsUsed = 4, .Colors = FourColors, .Data = data}.File());
}

TEST(Bitmap, RunLengthCodedMaySkipPixels) {
  const std::string data = "\0\2\1\0\1\3"s + "\0\0\1\0\1\1\0\1"s;
  const QImage shown = PaintedPicture(
      Dib{.Bits = 8, .Compression = 1, .ColorsUsed = 4, .Colors = FourColors, .Data = data}.File(), {2, 2});
  EXPECT_EQ(shown.pixelColor(0, 1), Red);
  EXPECT_EQ(shown.pixelColor(1, 1), White);
  EXPECT_EQ(shown.pixelColor(1, 0), Green);
}

TEST(Bitmap, FindsItsMasksInsideALongHeader) {
  for (const int headerSize : {52, 56, 108, 124}) {
    std::vector<std::uint32_t> masks = {0xFF, 0xFF00, 0xFF0000};
    if (headerSize > 52) masks.push_back(0);
    ExpectFourColors(Dib{.HeaderSize = headerSize,
                         .Bits = 32,
                         .Compression = 3,
                         .Masks = masks,
                         .Data = Words({0xFF0000, 0xFFFFFF, 0x0000FF, 0x00FF00}, 4)}
                         .File());
  }
}

TEST(Bitmap, IsTransparentWhereItsAlphaMaskSaysSo) {
  const QImage shown = PaintedPicture(Dib{.HeaderSize = 124,
                                          .Width = 1,
                                          .Height = 1,
                                          .Bits = 32,
                                          .Compression = 3,
                                          .Masks = {0xFF0000, 0xFF00, 0xFF, 0xFF000000},
                                          .Data = Words({0x80FF0000}, 4)}
                                          .File(),
                                      {1, 1});
  EXPECT_NEAR(shown.pixelColor(0, 0).green(), 127, 2);
  EXPECT_EQ(shown.pixelColor(0, 0).red(), 255);
}

TEST(Bitmap, HasColorsOfThreeBytesWithTheOldestHeader) {
  ByteWriter out;
  out.U32(12).U16(2).U16(2).U16(1).U16(8);
  ByteWriter colors;
  colors.Text("\0\0\xFF\0\xFF\0\xFF\0\0\xFF\xFF\xFF"s).Zeros(std::size_t{252} * 3);
  ExpectFourColors(out.Add(colors).Text("\2\3\0\0\0\1\0\0"s).Bytes());
}

void ExpectRefused(const std::string& bytes) {
  PictureFileLoader loader;
  try {
    loader.LoadBytes("graph.bmp", bytes);
    FAIL() << "no failure";
  } catch (const RunTimeFailure& failure) {
    EXPECT_EQ(failure.Place().File, "graph.bmp");
    EXPECT_FALSE(failure.Place().Text.value_or("").empty());
  }
}

TEST(BadBitmap, CutAnywhereIsRefused) {
  const std::vector<std::string> files = {
      Dib{.Data = Data24()}.File(),
      Dib{.Bits = 8, .Compression = 1, .ColorsUsed = 4, .Colors = FourColors, .Data = "\2\2\0\0\2\0\0\1"s}
          .File()};
  for (const std::string& file : files)
    for (std::size_t size = 0; size + 6 < file.size(); ++size) ExpectRefused(file.substr(0, size));
}

TEST(BadBitmap, IsRefusedWithoutExtent) {
  ExpectRefused(Dib{.Width = 0}.File());
  ExpectRefused(Dib{.Height = 0}.File());
  ExpectRefused(Dib{.Width = -2, .Data = Data24()}.File());
  ExpectRefused(Dib{.Height = INT32_MIN}.File());
}

TEST(BadBitmap, TooLargeIsRefusedBeforeMemoryIsTaken) {
  ExpectRefused(Dib{.Width = 60000, .Height = 60000, .Bits = 8, .Compression = 1, .Data = "\0\1"s}.File());
  ExpectRefused(Dib{.Width = INT32_MAX, .Height = INT32_MAX, .Bits = 32}.File());
}

TEST(BadBitmap, IsRefusedForUnknownDepthOrCompression) {
  ExpectRefused(Dib{.Bits = 5, .Data = Data24()}.File());
  ExpectRefused(Dib{.Compression = 99, .Data = Data24()}.File());
  ExpectRefused(Dib{.Bits = 24, .Compression = 1, .Data = Data24()}.File());
}

std::string Saved(const char* format, QSize size = {16, 8}) {
  QImage image(size, QImage::Format_ARGB32);
  image.fill(Qt::red);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, format);
  return bytes.toStdString();
}

TEST(ToolkitPicture, ShowsByContent) {
  for (const char* format : {"BMP", "JPG", "ICO", "PNG"}) {
    const QColor color = PaintedPicture(Saved(format), {4, 4}).pixelColor(2, 2);
    EXPECT_GT(color.red(), 240) << format;
    EXPECT_LT(color.green(), 15) << format;
  }
}

TEST(ToolkitPicture, ACursorShowsAsTheIconThatItIs) {
  std::string cursor = Saved("ICO");
  cursor[2] = 2;
  cursor[10] = 7;  // hot spot
  cursor[12] = 9;
  EXPECT_EQ(PaintedPicture(cursor, {4, 4}).pixelColor(2, 2), Red);
}

TEST(ToolkitPicture, AGifShows) {
  const std::string gif = "GIF89a\1\0\1\0\x80\0\0\xFF\0\0\0\0\0\x2C\0\0\0\0\1\0\1\0\0\2\2\x44\1\0\x3B"s;
  EXPECT_EQ(PaintedPicture(gif, {2, 2}).pixelColor(1, 1), Red);
}

std::string ReasonOf(const std::string& bytes) {
  try {
    PictureFileLoader().LoadBytes("logo", bytes);
  } catch (const RunTimeFailure& failure) {
    return failure.Place().Text.value_or("");
  }
  return "it loads";
}

// Packed texts of a PNG can take thousands of times their size, and nobody sees them.
TEST(ToolkitPicture, TextsInsideAPngAreNotUnpacked) {
  QImage image(16, 8, QImage::Format_ARGB32);
  image.fill(Qt::red);
  image.setText(QStringLiteral("Comment"), QString(100'000, QLatin1Char('a')));
  QByteArray file;
  QBuffer buffer(&file);
  image.save(&buffer, "PNG");
  const auto* const bytes = reinterpret_cast<const std::uint8_t*>(file.constData());
  const QImage shown = ReadToolkitImage({bytes, static_cast<std::size_t>(file.size())});
  EXPECT_EQ(shown.pixelColor(2, 2), Red);
  EXPECT_TRUE(shown.text().isEmpty());
}

// Each scan passes over the whole picture, even one of a few bytes.
TEST(ToolkitPicture, AJpegOfThousandsOfScansIsRefused) {
  QImage image(64, 64, QImage::Format_RGB32);
  image.fill(Qt::red);
  QByteArray written;
  QBuffer buffer(&written);
  QImageWriter writer(&buffer, "jpeg");
  writer.setProgressiveScanWrite(true);
  ASSERT_TRUE(writer.write(image));
  const std::string file = written.toStdString();
  EXPECT_GT(PaintedPicture(file, {4, 4}).pixelColor(2, 2).red(), 240);
  const std::size_t end = file.size() - 2;
  const std::string lastScan = file.substr(file.rfind("\xFF\xDA"), end - file.rfind("\xFF\xDA"));
  std::string many = file.substr(0, end);
  for (int i = 0; i < 2000; ++i) many += lastScan;
  EXPECT_EQ(ReasonOf(many + file.substr(end)), "it holds a JPEG of too many scans");
}

// An icon whose entries all name the same file.
std::string Icon(std::uint16_t entries, const std::string& file) {
  ByteWriter icon;
  icon.U16(0).U16(1).U16(entries);
  for (int i = 0; i < entries; ++i)
    icon.U32(0).U16(1).U16(32).U32(static_cast<std::uint32_t>(file.size())).U32(6 + 16U * entries);
  return icon.Text(file).Bytes();
}

TEST(ToolkitPicture, AnIconIsMeasuredByTheFilesThatItHolds) {
  EXPECT_EQ(PaintedPicture(Icon(2, Saved("PNG")), {4, 4}).pixelColor(2, 2), Red);
  const std::string large = Saved("PNG", {2000, 2000});
  EXPECT_GT(PaintedPicture(Icon(1, large), {4, 4}).pixelColor(2, 2).red(), 240);
  EXPECT_EQ(ReasonOf(Icon(64, large)), "its bitmaps are too large");
}

TEST(ToolkitPicture, AnIconShowsTheEntryThatIsWhole) {
  std::string icon = Icon(2, Saved("PNG"));
  icon[6 + 16 + 12] = '\x7F';  // where the second starts: past the end
  icon[6 + 16 + 13] = '\x7F';
  EXPECT_EQ(PaintedPicture(icon, {4, 4}).pixelColor(2, 2), Red);
}

TEST(ToolkitPicture, CutOrUnknownIsRefused) {
  for (const char* format : {"ICO", "PNG"}) ExpectRefused(Saved(format).substr(0, 30));
  const std::string jpeg = Saved("JPG");
  for (const std::size_t missing : {std::size_t{2}, std::size_t{20}, jpeg.size() - 100})
    ExpectRefused(jpeg.substr(0, jpeg.size() - missing));
  ExpectRefused("<svg xmlns='http://www.w3.org/2000/svg' width='10' height='10'/>");
  ExpectRefused("");
}

}  // namespace
}  // namespace tarvis
