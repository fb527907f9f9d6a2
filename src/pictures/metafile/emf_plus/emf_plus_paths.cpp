#include "pictures/metafile/emf_plus/emf_plus_objects.h"

namespace tarvis {
namespace {

// A tree of areas that are joined; everything that has no end is a large box.
QPainterPath ReadRegionNode(ByteReader& r, int depth) {
  enum : std::uint32_t { And = 1, Or = 2, Xor = 3, Exclude = 4, Box = 0x10000000, Path, Empty, Infinite };
  constexpr int deepest = 8;
  if (depth > deepest) throw SkipRecord();
  const std::uint32_t kind = r.U32();
  QPainterPath area;
  if (kind == Box) area.addRect(ReadRectF(r));
  if (kind == Infinite) area.addRect(-1e6, -1e6, 2e6, 2e6);
  if (kind == Path) {
    ByteReader path(r.Take(r.U32()));
    return ReadPlusPath(path);
  }
  if (kind >= Box) return area;
  const QPainterPath a = ReadRegionNode(r, depth + 1);
  const QPainterPath b = ReadRegionNode(r, depth + 1);
  if (a.elementCount() + b.elementCount() > 400) throw SkipRecord();
  if (kind == And) return a.intersected(b);
  if (kind == Or) return a.united(b);
  if (kind == Xor) return a.united(b).subtracted(a.intersected(b));
  return kind == Exclude ? a.subtracted(b) : b.subtracted(a);
}

}  // namespace

QPainterPath ReadPlusPath(ByteReader& r) {
  enum : unsigned { Kind = 0xF, Line = 1, Curve = 3, Close = 0x80 };
  enum : std::uint32_t { RunLengths = 0x1000 };
  r.Skip(4);
  const std::size_t count = r.U32();
  const std::uint32_t flags = r.U32();
  if ((flags & RunLengths) != 0) throw SkipRecord();
  const Points points = ReadPlusPoints(r, count, flags);
  const Bytes kinds = r.Take(count);
  QPainterPath path;
  for (std::size_t i = 0; i < count; ++i) {
    std::size_t last = i;
    const unsigned kind = kinds[i] & Kind;
    if (kind == 0 || i == 0) path.moveTo(points[i]);
    if (kind == Line && i > 0) path.lineTo(points[i]);
    if (kind == Curve && i > 0) {
      if (i + 2 >= count) throw OutOfBytes();
      path.cubicTo(points[i], points[i + 1], points[i + 2]);
      last = i += 2;
    }
    if ((kinds[last] & Close) != 0) path.closeSubpath();
  }
  return path;
}

QPainterPath ReadPlusRegion(ByteReader& r) {
  r.Skip(8);
  return ReadRegionNode(r, 0);
}

}  // namespace tarvis
