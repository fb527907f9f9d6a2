#include <cmath>

#include "pictures/metafile/emf/emf_playback.h"

namespace tarvis {
namespace {

QPointF Scaled(QPointF extent, ByteReader& reader) {
  const double xMultiply = reader.I32();
  const double xDivide = reader.I32();
  const double yMultiply = reader.I32();
  const double yDivide = reader.I32();
  if (xDivide == 0 || yDivide == 0) throw SkipRecord();
  return {extent.x() * xMultiply / xDivide, extent.y() * yMultiply / yDivide};
}

QTransform ReadTransform(ByteReader& reader) {
  double values[6];
  for (double& value : values) {
    value = static_cast<double>(reader.F32());
    if (!std::isfinite(value) || std::abs(value) > 1e9) throw SkipRecord();
  }
  return QTransform(values[0], values[1], values[2], values[3], values[4], values[5]);
}

void ModifyTransform(DcState& state, ByteReader& reader) {
  enum : std::uint32_t { Identity = 1, Left = 2, Right = 3, Set = 4 };
  const QTransform transform = ReadTransform(reader);
  switch (reader.U32()) {
    case Identity:
      state.World = QTransform();
      break;
    case Left:
      state.World = transform * state.World;
      break;
    case Right:
      state.World = state.World * transform;
      break;
    case Set:
      state.World = transform;
      break;
    default:
      throw SkipRecord();
  }
}

void SetMapMode(EmfPlayback& p, ByteReader& r) {
  const std::uint32_t mode = r.U32();
  if (mode < 1 || mode > 8) throw SkipRecord();
  p.Draw.State().Mapping = static_cast<MapMode>(mode);
}

constexpr EmfRecord Records[] = {
    {9, [](EmfPlayback& p, ByteReader& r) { p.Draw.State().WindowExtent = ReadPoint32(r); }},
    {10, [](EmfPlayback& p, ByteReader& r) { p.Draw.State().WindowOrigin = ReadPoint32(r); }},
    {11, [](EmfPlayback& p, ByteReader& r) { p.Draw.State().ViewportExtent = ReadPoint32(r); }},
    {12, [](EmfPlayback& p, ByteReader& r) { p.Draw.State().ViewportOrigin = ReadPoint32(r); }},
    {13, nullptr},  // origin of brushes
    {16, nullptr},  // how fonts are matched
    {17, SetMapMode},
    {18, [](EmfPlayback& p, ByteReader& r) { p.Draw.State().BackgroundMode = r.U32(); }},
    {19, [](EmfPlayback& p, ByteReader& r) { p.Draw.State().PolyFillMode = r.U32(); }},
    {20, [](EmfPlayback& p, ByteReader& r) { p.Draw.State().Rop2 = r.U32(); }},
    {21, nullptr},  // how bitmaps shrink
    {22, [](EmfPlayback& p, ByteReader& r) { p.Draw.State().TextAlign = r.U32(); }},
    {23, nullptr},  // colour adjustment of halftones
    {24, [](EmfPlayback& p, ByteReader& r) { p.Draw.State().TextColor = ReadColor(r, p.Palette()); }},
    {25, [](EmfPlayback& p, ByteReader& r) { p.Draw.State().BackgroundColor = ReadColor(r, p.Palette()); }},
    {31, [](EmfPlayback& p,
            ByteReader& r) { p.Draw.State().ViewportExtent = Scaled(p.Draw.State().ViewportExtent, r); }},
    {32, [](EmfPlayback& p,
            ByteReader& r) { p.Draw.State().WindowExtent = Scaled(p.Draw.State().WindowExtent, r); }},
    {33, [](EmfPlayback& p, ByteReader&) { p.Draw.Dc().Save(); }},
    {34, [](EmfPlayback& p, ByteReader& r) { p.Draw.Dc().Restore(r.I32()); }},
    {35, [](EmfPlayback& p, ByteReader& r) { p.Draw.State().World = ReadTransform(r); }},
    {36, [](EmfPlayback& p, ByteReader& r) { ModifyTransform(p.Draw.State(), r); }},
    {57, [](EmfPlayback& p, ByteReader& r) { p.Draw.State().Clockwise = r.U32() == 2; }},
    {58,
     [](EmfPlayback& p, ByteReader& r) {
       const std::uint32_t limit = r.U32();
       // Some writers store a floating-point number here.
       const double value = limit > 0xFFFF ? static_cast<double>(std::bit_cast<float>(limit)) : limit;
       if (std::isfinite(value) && value >= 1) p.Draw.State().MiterLimit = value;
     }},
    {98, nullptr},  // colour management, to 101
    {99, nullptr},
    {100, nullptr},
    {101, nullptr},
    {104, nullptr},  // pixel format
    {105, nullptr},  // escapes to a driver
    {106, nullptr},
    {109, nullptr},  // font links
    {110, nullptr},
    {111, nullptr},
    {112, nullptr},
    {113, nullptr},
    {115,
     [](EmfPlayback&, ByteReader& r) {
       if (r.U32() != 0) throw SkipRecord();
     }},
    {119, nullptr},
    {120,
     [](EmfPlayback& p, ByteReader& r) {
       const double extra = r.I32();
       const int count = r.I32();
       p.Draw.State().BreakExtra = count > 0 ? extra / count : 0;
     }},
    {121, nullptr},
    {122, nullptr},
};

}  // namespace

std::span<const EmfRecord> EmfStateRecords() {
  return Records;
}

}  // namespace tarvis
