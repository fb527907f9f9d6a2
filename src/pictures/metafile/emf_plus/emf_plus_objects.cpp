#include "pictures/metafile/emf_plus/emf_plus_objects.h"

#include <cmath>

namespace tarvis {
namespace {

PlusFont ReadFont(ByteReader& reader) {
  enum : std::uint32_t { Bold = 1, Italic = 2, Underline = 4, StrikeOut = 8 };
  reader.Skip(4);
  PlusFont font;
  const double size = ReadF(reader);
  const std::uint32_t unit = reader.U32();
  const double toPixels = unit == 3   ? 96.0 / 72
                          : unit == 4 ? 96
                          : unit == 5 ? 96.0 / 300
                          : unit == 6 ? 96 / 25.4
                                      : 1;
  font.Font.Height = -size * toPixels;
  const std::uint32_t style = reader.U32();
  font.Font.Weight = (style & Bold) != 0 ? 700 : 400;
  font.Font.Italic = (style & Italic) != 0;
  font.Font.Underline = (style & Underline) != 0;
  font.Font.StrikeOut = (style & StrikeOut) != 0;
  reader.Skip(4);
  for (std::size_t left = std::min<std::uint32_t>(reader.U32(), 64); left > 0; --left)
    font.Font.Face += static_cast<char16_t>(reader.U16());
  return font;
}

PlusFormat ReadFormat(ByteReader& reader) {
  enum : std::uint32_t { ToTheLeft = 1, NoWrap = 0x1000 };
  reader.Skip(4);
  PlusFormat format;
  const std::uint32_t flags = reader.U32();
  format.RunsToTheLeft = (flags & ToTheLeft) != 0;
  format.Wraps = (flags & NoWrap) == 0;
  reader.Skip(4);
  format.Align = reader.U32();
  format.LineAlign = reader.U32();
  return format;
}

// A whole number of 7 bits in one byte, or of 15 bits in two.
int ReadSmallNumber(ByteReader& reader) {
  const int first = reader.U8();
  if (first < 0x80) return first < 0x40 ? first : first - 0x80;
  const int value = (first & 0x7F) << 8 | reader.U8();
  return value < 0x4000 ? value : value - 0x8000;
}

Points ReadRelativePoints(ByteReader& reader, std::size_t count) {
  if (count > reader.Left() / 2) throw OutOfBytes();
  Points points(count);
  QPointF last;
  for (QPointF& point : points) {
    const double x = ReadSmallNumber(reader);
    last += QPointF(x, ReadSmallNumber(reader));
    point = last;
  }
  return points;
}

}  // namespace

QColor PlusColor(std::uint32_t argb) {
  return QColor::fromRgba(argb);
}

double ReadF(ByteReader& reader) {
  const auto value = static_cast<double>(reader.F32());
  if (!std::isfinite(value) || std::abs(value) > 1e9) throw SkipRecord();
  return value;
}

QPointF ReadPointF(ByteReader& reader) {
  const double x = ReadF(reader);
  return {x, ReadF(reader)};
}

QRectF ReadRectF(ByteReader& reader) {
  const QPointF at = ReadPointF(reader);
  const QPointF size = ReadPointF(reader);
  return {at.x(), at.y(), size.x(), size.y()};
}

QTransform ReadTransformF(ByteReader& reader) {
  double v[6];
  for (double& value : v) value = ReadF(reader);
  return QTransform(v[0], v[1], v[2], v[3], v[4], v[5]);
}

Points ReadPlusPoints(ByteReader& reader, std::size_t count, std::uint32_t flags) {
  if ((flags & PlusRelativeFlag) != 0) return ReadRelativePoints(reader, count);
  const bool compressed = (flags & PlusCompressedFlag) != 0;
  if (count > reader.Left() / (compressed ? 4 : 8)) throw OutOfBytes();
  Points points(count);
  for (QPointF& point : points) point = compressed ? ReadPoint16(reader) : ReadPointF(reader);
  return points;
}

PlusObject ReadPlusObject(PlusKind kind, ByteReader& reader) {
  switch (kind) {
    case PlusKind::Brush:
      return ReadPlusBrush(reader);
    case PlusKind::Pen:
      return ReadPlusPen(reader);
    case PlusKind::Path:
      return ReadPlusPath(reader);
    case PlusKind::Region:
      return ReadPlusRegion(reader);
    case PlusKind::Image:
      return ReadPlusImage(reader);
    case PlusKind::Font:
      return ReadFont(reader);
    case PlusKind::Format:
      return ReadFormat(reader);
    case PlusKind::ImageAttributes:
    case PlusKind::LineCap:
      return PlusHint();
  }
  throw SkipRecord();
}

}  // namespace tarvis
