#include <cmath>

#include "pictures/metafile/emf_plus/emf_plus_objects.h"

namespace tarvis {
namespace {

QList<qreal> ReadFloats(ByteReader& r) {
  const std::size_t count = r.U32();
  if (count > r.Left() / 4) throw OutOfBytes();
  QList<qreal> values;
  for (std::size_t i = 0; i < count; ++i) values.append(ReadF(r));
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

void ReadDashes(ByteReader& r, QPen& line) {
  QList<qreal> dashes = ReadFloats(r);
  for (qreal& dash : dashes) dash = std::clamp(dash, 0.01, 1e6);
  if (dashes.size() % 2 == 1) dashes.append(QList<qreal>(dashes));
  if (!dashes.isEmpty()) line.setDashPattern(dashes);
}

// A cap of a form of its own, in so many bytes.
PlusCap ReadSizedCap(ByteReader& r) {
  ByteReader cap(r.Take(r.U32()));
  try {
    return ReadPlusCap(cap);
  } catch (const SkipRecord&) {
    return {};  // the line is seen without it
  }
}

// What the flags of a pen say that is there, in this order.
void ReadPenOptions(ByteReader& r, std::uint32_t flags, PlusPen& pen) {
  QPen& line = pen.Pen.Pen;
  const auto has = [flags](std::uint32_t bit) { return (flags & bit) != 0; };
  if (has(0x1)) r.Skip(24);
  if (has(0x2)) {
    const std::uint32_t cap = r.U32();
    line.setCapStyle(CapStyle(cap));
    pen.Start = MakePlusCap(cap);
  }
  if (has(0x4)) pen.End = MakePlusCap(r.U32());
  if (has(0x8)) {
    const std::uint32_t join = r.U32();
    line.setJoinStyle(join == 1 ? Qt::BevelJoin : join == 2 ? Qt::RoundJoin : Qt::SvgMiterJoin);
  }
  if (has(0x10)) line.setMiterLimit(std::max(1.0, ReadF(r)));
  if (has(0x20)) SetLineStyle(line, r.U32());
  if (has(0x40)) r.Skip(4);
  const double offset = has(0x80) ? ReadF(r) : 0;
  if (has(0x100)) ReadDashes(r, line);
  if (has(0x80) && line.style() != Qt::SolidLine) line.setDashOffset(offset);
  if (has(0x200)) r.Skip(4);
  if (has(0x400)) ReadFloats(r);
  if (has(0x800)) pen.Start = ReadSizedCap(r);
  if (has(0x1000)) pen.End = ReadSizedCap(r);
}

}  // namespace

PlusPen ReadPlusPen(ByteReader& r) {
  r.Skip(8);
  const std::uint32_t flags = r.U32();
  PlusPen pen;
  const std::uint32_t unit = r.U32();
  pen.InPixels = unit == 2;
  pen.Width = std::abs(ReadF(r));
  QPen& line = pen.Pen.Pen;
  line.setCapStyle(Qt::FlatCap);
  line.setJoinStyle(Qt::SvgMiterJoin);
  ReadPenOptions(r, flags, pen);
  const ListBrush brush = ReadPlusBrush(r).List;
  if (brush.Brush.gradient() != nullptr) {
    line.setBrush(brush.Brush);
  } else {
    line.setColor(brush.Brush.color());
  }
  return pen;
}

}  // namespace tarvis
