// Bitmaps of the extended records.
#include <utility>

#include "pictures/metafile/emf_plus/emf_plus_objects.h"
#include "pictures/toolkit_image.h"

namespace tarvis {
namespace {

QImage FromPixels(ByteReader& reader, int width, int height, std::size_t stride, std::uint32_t format) {
  constexpr std::pair<std::uint32_t, QImage::Format> formats[] = {
      {0x26200A, QImage::Format_ARGB32}, {0x22009, QImage::Format_RGB32},
      {0x21808, QImage::Format_BGR888},  {0xE200B, QImage::Format_ARGB32_Premultiplied},
      {0x21005, QImage::Format_RGB555},  {0x21006, QImage::Format_RGB16}};
  for (const auto& [number, kind] : formats) {
    if (number != format) continue;
    if (width < 1 || height < 1 || width > 0x8000 || height > 0x8000) throw SkipRecord();
    const Bytes pixels = reader.Take(stride * static_cast<std::size_t>(height));
    QImage image(width, height, kind);
    if (image.isNull() || stride < static_cast<std::size_t>(width * image.depth() / 8)) throw SkipRecord();
    const auto used = static_cast<std::size_t>(width * image.depth() / 8);
    for (int y = 0; y < height; ++y)
      std::ranges::copy(pixels.subspan(static_cast<std::size_t>(y) * stride, used), image.scanLine(y));
    return image;
  }
  throw SkipRecord();
}

// A bitmap of 1, 4 or 8 bits with its colours in front.
QImage FromIndexes(ByteReader& reader, int width, int height, std::size_t stride, std::uint32_t format) {
  const unsigned bits = format >> 8 & 0xFF;
  reader.Skip(4);
  const std::size_t colors = reader.U32();
  if (colors > 256 || (bits != 1 && bits != 4 && bits != 8)) throw SkipRecord();
  if (width < 1 || height < 1 || width > 0x8000 || height > 0x8000) throw SkipRecord();
  QList<QRgb> table(256, qRgb(0, 0, 0));
  for (std::size_t i = 0; i < colors; ++i) table[static_cast<qsizetype>(i)] = reader.U32();
  const Bytes pixels = reader.Take(stride * static_cast<std::size_t>(height));
  if (stride * 8 < static_cast<std::size_t>(width) * bits) throw SkipRecord();
  QImage image(width, height, QImage::Format_Indexed8);
  if (image.isNull()) throw SkipRecord();
  image.setColorTable(table);
  const unsigned perByte = 8 / bits;
  for (int y = 0; y < height; ++y) {
    const Bytes row = pixels.subspan(static_cast<std::size_t>(y) * stride, stride);
    uchar* to = image.scanLine(y);
    for (unsigned x = 0; x < static_cast<unsigned>(width); ++x)
      to[x] = static_cast<uchar>(row[x / perByte] >> (8 - bits * (x % perByte + 1)) & ((1u << bits) - 1));
  }
  return image;
}

}  // namespace

QImage ReadPlusImage(ByteReader& reader) {
  enum : std::uint32_t { Bitmap = 1, File = 1 };
  reader.Skip(4);
  if (reader.U32() != Bitmap) throw SkipRecord();
  const int width = reader.I32();
  const int height = reader.I32();
  const std::size_t stride = reader.U32();
  const std::uint32_t format = reader.U32();
  constexpr std::uint32_t indexed = 0x10000;
  if (reader.U32() != File)
    return (format & indexed) != 0 ? FromIndexes(reader, width, height, stride, format)
                                   : FromPixels(reader, width, height, stride, format);
  try {
    return ReadToolkitImage(reader.Rest());
  } catch (const BadDib&) {
    throw SkipRecord();
  }
}

}  // namespace tarvis
