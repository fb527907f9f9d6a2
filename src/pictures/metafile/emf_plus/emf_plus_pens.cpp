// Pens of the extended records.
#include <cmath>

#include "pictures/metafile/emf_plus/emf_plus_objects.h"

namespace tarvis {
namespace {

QList<qreal> ReadFloats(ByteReader& reader) {
  const std::size_t count = reader.U32();
  if (count > reader.Left() / 4) throw OutOfBytes();
  QList<qreal> values;
  for (std::size_t i = 0; i < count; ++i) values.append(ReadF(reader));
  return values;
}

void SetLineStyle(QPen& pen, std::uint32_t style) {
  constexpr Qt::PenStyle styles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine,
                                     Qt::DashDotDotLine};
  if (style == 0 || style >= std::size(styles)) return;
  const QList<qreal> tables[] = {{}, {3, 1}, {1, 1}, {3, 1, 1, 1}, {3, 1, 1, 1, 1, 1}};
  pen.setDashPattern(tables[style]);
}

Qt::PenCapStyle CapStyle(std::uint32_t cap) {
  return cap == 1 ? Qt::SquareCap : cap == 2 ? Qt::RoundCap : Qt::FlatCap;
}

void ReadDashes(ByteReader& reader, QPen& line) {
  QList<qreal> dashes = ReadFloats(reader);
  for (qreal& dash : dashes) dash = std::clamp(dash, 0.01, 1e6);
  if (dashes.size() % 2 == 1) dashes.append(QList<qreal>(dashes));
  if (!dashes.isEmpty()) line.setDashPattern(dashes);
}

// A cap of a form of its own, in so many bytes.
PlusCap ReadSizedCap(ByteReader& reader) {
  ByteReader cap(reader.Take(reader.U32()));
  try {
    return ReadPlusCap(cap);
  } catch (const SkipRecord&) {
    return {};  // the line is seen without it
  }
}

// What the flags of a pen say that is there, in this order.
void ReadPenOptions(ByteReader& reader, std::uint32_t flags, PlusPen& pen) {
  QPen& line = pen.Pen.Pen;
  const auto has = [flags](std::uint32_t bit) { return (flags & bit) != 0; };
  if (has(0x1)) reader.Skip(24);
  if (has(0x2)) {
    const std::uint32_t cap = reader.U32();
    line.setCapStyle(CapStyle(cap));
    pen.Start = MakePlusCap(cap);
  }
  if (has(0x4)) pen.End = MakePlusCap(reader.U32());
  if (has(0x8)) {
    const std::uint32_t join = reader.U32();
    line.setJoinStyle(join == 1 ? Qt::BevelJoin : join == 2 ? Qt::RoundJoin : Qt::SvgMiterJoin);
  }
  if (has(0x10)) line.setMiterLimit(std::max(1.0, ReadF(reader)));
  if (has(0x20)) SetLineStyle(line, reader.U32());
  if (has(0x40)) reader.Skip(4);
  const double offset = has(0x80) ? ReadF(reader) : 0;
  if (has(0x100)) ReadDashes(reader, line);
  if (has(0x80) && line.style() != Qt::SolidLine) line.setDashOffset(offset);
  if (has(0x200)) reader.Skip(4);
  if (has(0x400)) ReadFloats(reader);
  if (has(0x800)) pen.Start = ReadSizedCap(reader);
  if (has(0x1000)) pen.End = ReadSizedCap(reader);
}

}  // namespace

PlusPen ReadPlusPen(ByteReader& reader) {
  reader.Skip(8);
  const std::uint32_t flags = reader.U32();
  PlusPen pen;
  const std::uint32_t unit = reader.U32();
  pen.InPixels = unit == 2;
  pen.Width = std::abs(ReadF(reader));
  QPen& line = pen.Pen.Pen;
  line.setCapStyle(Qt::FlatCap);
  line.setJoinStyle(Qt::SvgMiterJoin);
  ReadPenOptions(reader, flags, pen);
  const ListBrush brush = ReadPlusBrush(reader).List;
  if (brush.Brush.gradient() != nullptr) {
    line.setBrush(brush.Brush);
  } else {
    line.setColor(brush.Brush.color());
  }
  return pen;
}

}  // namespace tarvis
