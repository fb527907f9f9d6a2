#include "pictures/dib_header.h"

#include <algorithm>

namespace tarvis {
namespace {

constexpr std::size_t CoreHeaderSize = 12;
constexpr std::size_t InfoHeaderSize = 40;
constexpr std::size_t Os2HeaderSize = 64;
constexpr std::int64_t MostPixels = 32 << 20;  // 128 MB in memory at most

bool IsHeaderSize(std::uint32_t size) {
  constexpr std::uint32_t known[] = {12, 16, 40, 52, 56, 64, 108, 124};
  return std::ranges::find(known, size) != std::end(known);
}

bool IsBitCount(int bits) {
  constexpr int known[] = {1, 2, 4, 8, 16, 24, 32};
  return std::ranges::find(known, bits) != std::end(known);
}

bool IsCompressedFile(const DibHeader& header) {
  return header.Compression == DibCompression::Jpeg || header.Compression == DibCompression::Png;
}

void ReadSize(ByteReader& reader, bool core, DibHeader& header) {
  header.Width = core ? reader.U16() : reader.I32();
  const std::int64_t height = core ? reader.U16() : reader.I32();
  header.TopDown = height < 0;
  const std::int64_t pixels = std::int64_t{header.Width} * std::abs(height);
  if (header.Width <= 0 || height == 0) throw BadDib("it has no extent");
  if (header.Width > 0x10000 || std::abs(height) > 0x10000 || pixels > MostPixels)
    throw BadDib("it is too large");
  header.Height = static_cast<std::int32_t>(std::abs(height));
  reader.Skip(2);
  header.BitCount = reader.U16();
}

void ReadMasks(ByteReader& reader, std::size_t headerSize, DibHeader& header) {
  const bool hasMasks =
      header.Compression == DibCompression::BitFields || header.Compression == DibCompression::AlphaBitFields;
  if (!hasMasks && headerSize < 56) return;
  reader.Seek(InfoHeaderSize);  // the masks follow a short header and are a part of a long one
  const bool alpha = headerSize >= 56 || header.Compression == DibCompression::AlphaBitFields;
  std::array<std::uint32_t, 4> masks{};
  for (std::size_t i = 0; i < (alpha ? 4u : 3u); ++i) masks[i] = reader.U32();
  if (hasMasks) header.Masks = masks;
  header.Size = std::max(headerSize, reader.Position());
}

void ReadColors(ByteReader& reader, bool core, std::size_t used, DibColors colors,
                std::span<const QRgb> palette, DibHeader& header) {
  const std::size_t whole = header.BitCount <= 8 ? std::size_t{1} << header.BitCount : 0;
  const std::size_t count = used == 0 ? whole : used;
  const std::size_t entrySize = core ? 3 : colors == DibColors::PaletteIndexes ? 2 : 4;
  if (colors == DibColors::ForegroundBackground) {
    for (std::size_t i = 0; i < whole; ++i) {
      const auto gray = static_cast<int>(i * 255 / (whole - 1));
      header.Colors.push_back(qRgb(gray, gray, gray));
    }
    return;
  }
  if (count > 0x10000) throw BadDib("its colour table makes no sense");
  reader.Seek(header.Size);
  const std::size_t there = std::min(count, reader.Left() / entrySize);
  for (std::size_t i = 0; i < std::min(there, whole); ++i) {
    if (colors == DibColors::PaletteIndexes) {
      const std::size_t index = reader.U16();
      header.Colors.push_back(index < palette.size() ? palette[index] : qRgb(0, 0, 0));
      continue;
    }
    const Bytes entry = reader.Take(entrySize);
    header.Colors.push_back(qRgb(entry[2], entry[1], entry[0]));
  }
  header.Colors.resize(whole, qRgb(0, 0, 0));
  header.Size += there * entrySize;
}

}  // namespace

bool LooksLikeDib(Bytes bytes) {
  if (bytes.size() < 16) return false;
  ByteReader reader(bytes);
  const std::uint32_t size = reader.U32();
  if (!IsHeaderSize(size)) return false;
  reader.Skip(size == CoreHeaderSize ? 4 : 8);
  const int planes = reader.U16();
  const int bits = reader.U16();
  return planes == 1 && (IsBitCount(bits) || bits == 0);
}

DibHeader ReadDibHeader(Bytes bytes, DibColors colors, std::span<const QRgb> palette) {
  ByteReader reader(bytes);
  const std::uint32_t size = reader.U32();
  if (!IsHeaderSize(size)) throw BadDib("its header is of an unknown kind");
  DibHeader header;
  const bool core = size == CoreHeaderSize;
  ReadSize(reader, core, header);
  header.Size = size;
  std::size_t used = 0;
  if (size >= InfoHeaderSize) {
    const std::uint32_t compression = reader.U32();
    if (compression > 6 || (size == Os2HeaderSize && compression > 2))
      throw BadDib("its compression is unknown");
    header.Compression = static_cast<DibCompression>(compression);
    reader.Skip(12);
    used = reader.U32();
    ReadMasks(reader, size == Os2HeaderSize ? InfoHeaderSize : size, header);
    header.Size = std::max<std::size_t>(header.Size, size);
  }
  if (IsCompressedFile(header)) return header;
  if (!IsBitCount(header.BitCount)) throw BadDib("its number of bits a pixel makes no sense");
  ReadColors(reader, core, used, colors, palette, header);
  return header;
}

}  // namespace tarvis
