#include "pictures/metafile/context/record_reading.h"

namespace tarvis {
namespace {

enum BrushStyle : std::uint32_t { Solid = 0, Null = 1, Hatched = 2 };

}  // namespace

Points ReadPoints(ByteReader& reader, std::size_t count, bool small) {
  if (count > reader.Left() / (small ? 4 : 8)) throw OutOfBytes();
  Points points(count);
  for (QPointF& point : points) point = small ? ReadPoint16(reader) : ReadPoint32(reader);
  return points;
}

QRectF ReadBox(ByteReader& reader) {
  const QPointF from = ReadPoint32(reader);
  return BoxOf(from, ReadPoint32(reader));
}

QColor ReadColor(ByteReader& reader, const MetaPalette& palette) {
  const std::uint32_t color = reader.U32();
  if (color >> 24 == 1) {
    const std::size_t index = color & 0xFFFF;
    return index < palette.size() ? QColor(palette[index]) : QColor(Qt::black);
  }
  return QColor(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                static_cast<int>(color >> 16 & 0xFF));
}

MetaPalette ReadPalette(ByteReader& reader, std::size_t count) {
  ByteReader entries(reader.Take(count * 4));
  MetaPalette palette(count);
  for (QRgb& color : palette) {
    const Bytes entry = entries.Take(4);
    color = qRgb(entry[0], entry[1], entry[2]);
  }
  return palette;
}

MetaBrush MakeMetaBrush(std::uint32_t style, QColor color, std::uint32_t hatch) {
  constexpr Qt::BrushStyle hatches[] = {Qt::HorPattern,   Qt::VerPattern,   Qt::FDiagPattern,
                                        Qt::BDiagPattern, Qt::CrossPattern, Qt::DiagCrossPattern};
  if (style == Null) return {MetaBrush::Kind::Null, color, Qt::NoBrush, {}, false};
  constexpr std::uint32_t lastSolidHatch = 11;  // numbers beyond the patterns mean solid fills
  if (style == Hatched && hatch < std::size(hatches))
    return {MetaBrush::Kind::Hatch, color, hatches[hatch], {}, false};
  if (style != Solid && (style != Hatched || hatch > lastSolidHatch)) throw SkipRecord();
  return {MetaBrush::Kind::Solid, color, Qt::SolidPattern, {}, false};
}

QImage RecordBitmaps::Decode(Bytes info, Bytes bits, std::uint32_t usage, const MetaPalette& palette,
                             bool alphaByte) {
  try {
    const DibHeader header = ReadDibHeader(info, static_cast<DibColors>(usage), palette);
    budget_.TakeDecodedBytes(DecodedSize(header, bits));
    return DecodeDib(header, bits, alphaByte);
  } catch (const BadDib&) {
    throw SkipRecord();
  } catch (const OutOfBytes&) {
    throw SkipRecord();
  }
}

QImage RecordBitmaps::DecodePacked(Bytes bytes, std::uint32_t usage, const MetaPalette& palette) {
  try {
    const DibHeader header = ReadDibHeader(bytes, static_cast<DibColors>(usage), palette);
    return Decode(bytes, Slice(bytes, header.Size, bytes.size() - header.Size), usage, palette);
  } catch (const BadDib&) {
    throw SkipRecord();
  } catch (const OutOfBytes&) {
    throw SkipRecord();
  }
}

}  // namespace tarvis
