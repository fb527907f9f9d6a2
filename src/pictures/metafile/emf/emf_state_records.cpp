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
    {Emr::SetWindowExtEx,
     [](EmfPlayback& p, ByteReader& r) { p.Draw.State().WindowExtent = ReadPoint32(r); }},
    {Emr::SetWindowOrgEx,
     [](EmfPlayback& p, ByteReader& r) { p.Draw.State().WindowOrigin = ReadPoint32(r); }},
    {Emr::SetViewportExtEx,
     [](EmfPlayback& p, ByteReader& r) { p.Draw.State().ViewportExtent = ReadPoint32(r); }},
    {Emr::SetViewportOrgEx,
     [](EmfPlayback& p, ByteReader& r) { p.Draw.State().ViewportOrigin = ReadPoint32(r); }},
    {Emr::SetBrushOrgEx, nullptr},   // origin of brushes
    {Emr::SetMapperFlags, nullptr},  // how fonts are matched
    {Emr::SetMapMode, SetMapMode},
    {Emr::SetBkMode, [](EmfPlayback& p, ByteReader& r) { p.Draw.State().BackgroundMode = r.U32(); }},
    {Emr::SetPolyFillMode, [](EmfPlayback& p, ByteReader& r) { p.Draw.State().PolyFillMode = r.U32(); }},
    {Emr::SetRop2, [](EmfPlayback& p, ByteReader& r) { p.Draw.State().Rop2 = r.U32(); }},
    {Emr::SetStretchBltMode, nullptr},  // how bitmaps shrink
    {Emr::SetTextAlign, [](EmfPlayback& p, ByteReader& r) { p.Draw.State().TextAlign = r.U32(); }},
    {Emr::SetColorAdjustment, nullptr},  // colour adjustment of halftones
    {Emr::SetTextColor,
     [](EmfPlayback& p, ByteReader& r) { p.Draw.State().TextColor = ReadColor(r, p.Palette()); }},
    {Emr::SetBkColor,
     [](EmfPlayback& p, ByteReader& r) { p.Draw.State().BackgroundColor = ReadColor(r, p.Palette()); }},
    {Emr::ScaleViewportExtEx,
     [](EmfPlayback& p, ByteReader& r) {
       p.Draw.State().ViewportExtent = Scaled(p.Draw.State().ViewportExtent, r);
     }},
    {Emr::ScaleWindowExtEx,
     [](EmfPlayback& p, ByteReader& r) {
       p.Draw.State().WindowExtent = Scaled(p.Draw.State().WindowExtent, r);
     }},
    {Emr::SaveDc, [](EmfPlayback& p, ByteReader&) { p.Draw.Dc().Save(); }},
    {Emr::RestoreDc, [](EmfPlayback& p, ByteReader& r) { p.Draw.Dc().Restore(r.I32()); }},
    {Emr::SetWorldTransform, [](EmfPlayback& p, ByteReader& r) { p.Draw.State().World = ReadTransform(r); }},
    {Emr::ModifyWorldTransform, [](EmfPlayback& p, ByteReader& r) { ModifyTransform(p.Draw.State(), r); }},
    {Emr::SetArcDirection, [](EmfPlayback& p, ByteReader& r) { p.Draw.State().Clockwise = r.U32() == 2; }},
    {Emr::SetMiterLimit,
     [](EmfPlayback& p, ByteReader& r) {
       const std::uint32_t limit = r.U32();
       // Some writers store a floating-point number here.
       const double value = limit > 0xFFFF ? static_cast<double>(std::bit_cast<float>(limit)) : limit;
       if (std::isfinite(value) && value >= 1) p.Draw.State().MiterLimit = value;
     }},
    {Emr::SetIcmMode, nullptr},  // colour management, to 101
    {Emr::CreateColorSpace, nullptr},
    {Emr::SetColorSpace, nullptr},
    {Emr::DeleteColorSpace, nullptr},
    {Emr::PixelFormat, nullptr},  // pixel format
    {Emr::DrawEscape, nullptr},   // escapes to a driver
    {Emr::ExtEscape, nullptr},
    {Emr::ForceUfiMapping, nullptr},  // font links
    {Emr::NamedEscape, nullptr},
    {Emr::ColorCorrectPalette, nullptr},
    {Emr::SetIcmProfileA, nullptr},
    {Emr::SetIcmProfileW, nullptr},
    {Emr::SetLayout,
     [](EmfPlayback&, ByteReader& r) {
       if (r.U32() != 0) throw SkipRecord();
     }},
    {Emr::SetLinkedUfis, nullptr},
    {Emr::SetTextJustification,
     [](EmfPlayback& p, ByteReader& r) {
       const double extra = r.I32();
       const int count = r.I32();
       p.Draw.State().BreakExtra = count > 0 ? extra / count : 0;
     }},
    {Emr::ColorMatchToTargetW, nullptr},
    {Emr::CreateColorSpaceW, nullptr},
};

}  // namespace

std::span<const EmfRecord> EmfStateRecords() {
  return Records;
}

}  // namespace tarvis
