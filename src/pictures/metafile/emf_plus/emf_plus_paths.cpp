// Paths and regions of the extended records.
#include "pictures/metafile/emf_plus/emf_plus_objects.h"

namespace tarvis {
namespace {

// A tree of areas that are joined; everything that has no end is a large box.
QPainterPath ReadRegionNode(ByteReader& reader, int depth) {
  enum : std::uint32_t { And = 1, Or = 2, Xor = 3, Exclude = 4, Box = 0x10000000, Path, Empty, Infinite };
  constexpr int deepest = 8;
  if (depth > deepest) throw SkipRecord();
  const std::uint32_t kind = reader.U32();
  QPainterPath area;
  if (kind == Box) area.addRect(ReadRectF(reader));
  if (kind == Infinite) area.addRect(-1e6, -1e6, 2e6, 2e6);
  if (kind == Path) {
    ByteReader path(reader.Take(reader.U32()));
    return ReadPlusPath(path);
  }
  if (kind >= Box) return area;
  const QPainterPath a = ReadRegionNode(reader, depth + 1);
  const QPainterPath b = ReadRegionNode(reader, depth + 1);
  if (a.elementCount() + b.elementCount() > 400) throw SkipRecord();
  if (kind == And) return a.intersected(b);
  if (kind == Or) return a.united(b);
  if (kind == Xor) return a.united(b).subtracted(a.intersected(b));
  return kind == Exclude ? a.subtracted(b) : b.subtracted(a);
}

// The type of each of `count` points. In paths with run lengths, or with relative points, a type may be
// preceded by the number of points that have it; a bit that no type has distinguishes the two. The published
// format changed over time: which of the two flags means run lengths depends on its edition.
std::vector<std::uint8_t> ReadPointTypes(ByteReader& reader, std::size_t count, std::uint32_t flags) {
  enum : unsigned { IsRun = 0x40, RunCount = 0x3F };
  constexpr std::uint32_t runLengths = 0x1000;
  if ((flags & (runLengths | PlusRelativeFlag)) == 0) {
    const Bytes plain = reader.Take(count);
    return {plain.begin(), plain.end()};
  }
  std::vector<std::uint8_t> types;
  while (types.size() < count) {
    const std::uint8_t head = reader.U8();
    const bool isRun = (head & IsRun) != 0;
    const std::size_t length = isRun ? head & RunCount : 1;
    const std::uint8_t type = isRun ? reader.U8() : head;
    if (length > count - types.size()) throw OutOfBytes();
    types.insert(types.end(), length, type);
  }
  return types;
}

}  // namespace

QPainterPath ReadPlusPath(ByteReader& reader) {
  enum : unsigned { Kind = 0xF, Line = 1, Curve = 3, Close = 0x80 };
  reader.Skip(4);
  const std::size_t count = reader.U32();
  const std::uint32_t flags = reader.U32();
  const Points points = ReadPlusPoints(reader, count, flags);
  const std::vector<std::uint8_t> kinds = ReadPointTypes(reader, count, flags);
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

QPainterPath ReadPlusRegion(ByteReader& reader) {
  reader.Skip(8);
  return ReadRegionNode(reader, 0);
}

}  // namespace tarvis
