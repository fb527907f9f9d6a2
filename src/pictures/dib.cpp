#include "pictures/dib.h"

#include <algorithm>
#include <bit>

#include "pictures/dib_rle.h"
#include "pictures/toolkit_image.h"

namespace tarvis {
namespace {

constexpr std::size_t FileHeaderSize = 14;

// One colour of a pixel of 16 or 32 bits.
struct Channel {
  explicit Channel(std::uint32_t mask)
      : Mask(mask),
        Shift(mask == 0 ? 0 : std::countr_zero(mask)),
        Most(mask == 0 ? 0 : mask >> std::countr_zero(mask)) {}

  int Of(std::uint32_t pixel) const {
    if (Most == 0) return 0;
    return static_cast<int>(std::uint64_t{(pixel & Mask) >> Shift} * 255 / Most);
  }

  std::uint32_t Mask;
  int Shift;
  std::uint32_t Most;
};

class MaskedPixels {
 public:
  MaskedPixels(const DibHeader& header, bool alphaByte)
      : red_(MaskOf(header, 0)),
        green_(MaskOf(header, 1)),
        blue_(MaskOf(header, 2)),
        alpha_(alphaByte && header.BitCount == 32 ? 0xFF000000 : header.Masks[3]) {}

  bool HasAlpha() const { return alpha_.Most != 0; }
  QRgb Color(std::uint32_t pixel) const {
    return qRgba(red_.Of(pixel), green_.Of(pixel), blue_.Of(pixel), HasAlpha() ? alpha_.Of(pixel) : 255);
  }

 private:
  static std::uint32_t MaskOf(const DibHeader& header, std::size_t channel) {
    constexpr std::uint32_t of16[] = {0x7C00, 0x03E0, 0x001F};
    constexpr std::uint32_t of32[] = {0xFF0000, 0x00FF00, 0x0000FF};
    const bool hasMasks = header.Masks[0] != 0 || header.Masks[1] != 0 || header.Masks[2] != 0;
    if (hasMasks) return header.Masks[channel];
    return header.BitCount == 16 ? of16[channel] : of32[channel];
  }

  Channel red_, green_, blue_, alpha_;
};

QImage MakeImage(const DibHeader& header, QImage::Format format) {
  QImage image(header.Width, header.Height, format);
  if (image.isNull()) throw BadDib("there is no memory for it");
  return image;
}

// The bytes of row `y` of the picture, counted from its top. The padding of the last row may be missing.
Bytes Row(const DibHeader& header, Bytes bits, int y) {
  const auto row = static_cast<std::size_t>(header.TopDown ? y : header.Height - 1 - y);
  const std::size_t used =
      (static_cast<std::size_t>(header.Width) * static_cast<std::size_t>(header.BitCount) + 7) / 8;
  return Slice(bits, row * header.Stride(), used);
}

QImage DecodeIndexed(const DibHeader& header, Bytes bits) {
  QImage image = MakeImage(header, QImage::Format_Indexed8);
  image.setColorTable(QList<QRgb>(header.Colors.begin(), header.Colors.end()));
  const int perByte = 8 / header.BitCount;
  const unsigned mask = (1u << header.BitCount) - 1;
  for (int y = 0; y < header.Height; ++y) {
    const Bytes row = Row(header, bits, y);
    uchar* to = image.scanLine(y);
    for (int x = 0; x < header.Width; ++x) {
      const int shift = 8 - header.BitCount * (x % perByte + 1);
      to[x] = static_cast<uchar>(row[static_cast<std::size_t>(x / perByte)] >> shift & mask);
    }
  }
  return image;
}

QImage Decode24(const DibHeader& header, Bytes bits) {
  QImage image = MakeImage(header, QImage::Format_RGB32);
  for (int y = 0; y < header.Height; ++y) {
    const Bytes row = Row(header, bits, y);
    auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (std::size_t i = 0; i + 2 < row.size(); i += 3) *to++ = qRgb(row[i + 2], row[i + 1], row[i]);
  }
  return image;
}

QImage DecodeMasked(const DibHeader& header, Bytes bits, bool alphaByte) {
  const MaskedPixels pixels(header, alphaByte);
  QImage image = MakeImage(header, pixels.HasAlpha() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
  bool seen = false;
  for (int y = 0; y < header.Height; ++y) {
    ByteReader row(Row(header, bits, y));
    auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < header.Width; ++x) {
      to[x] = pixels.Color(header.BitCount == 16 ? row.U16() : row.U32());
      seen = seen || qAlpha(to[x]) != 0;
    }
  }
  // Writers that promise an alpha channel and leave it empty mean an opaque picture.
  return seen || alphaByte ? image : image.convertToFormat(QImage::Format_RGB32);
}

}  // namespace

std::size_t DecodedSize(const DibHeader& header, Bytes bits) {
  const bool holdsFile =
      header.Compression == DibCompression::Jpeg || header.Compression == DibCompression::Png;
  if (holdsFile) return ToolkitImageSize(bits);
  return static_cast<std::size_t>(header.Width) * static_cast<std::size_t>(header.Height) * 4;
}

QImage DecodeDib(const DibHeader& header, Bytes bits, bool alphaByte) {
  switch (header.Compression) {
    case DibCompression::Jpeg:
    case DibCompression::Png:
      return ReadToolkitImage(bits);
    case DibCompression::Rle8:
    case DibCompression::Rle4:
      return DecodeRle(header, bits);
    default:
      break;
  }
  if (header.BitCount <= 8) return DecodeIndexed(header, bits);
  return header.BitCount == 24 ? Decode24(header, bits) : DecodeMasked(header, bits, alphaByte);
}

QImage DecodePackedDib(Bytes bytes, DibColors colors, std::span<const QRgb> palette) {
  const DibHeader header = ReadDibHeader(bytes, colors, palette);
  return DecodeDib(header, Slice(bytes, header.Size, bytes.size() - header.Size));
}

QImage DecodeBmpFile(Bytes bytes) {
  ByteReader reader(bytes);
  reader.Skip(10);
  std::size_t bits = reader.U32();
  reader.Seek(FileHeaderSize);
  const DibHeader header = ReadDibHeader(reader.Rest());
  // Some writers leave the offset empty.
  if (bits < FileHeaderSize + 12) bits = FileHeaderSize + header.Size;
  return DecodeDib(header, Slice(bytes, bits, bits > bytes.size() ? 0 : bytes.size() - bits));
}

}  // namespace tarvis
