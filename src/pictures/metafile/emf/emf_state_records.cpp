// Records of enhanced metafiles that change the state: mapping, modes, colours, transforms.
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

void SetMapMode(EmfPlayback& playback, ByteReader& reader) {
  const std::uint32_t mode = reader.U32();
  if (mode < 1 || mode > 8) throw SkipRecord();
  playback.Draw.State().Mapping = static_cast<MapMode>(mode);
}

constexpr EmfRecord Records[] = {
    {Emr::SetWindowExtEx,
     [](EmfPlayback& playback, ByteReader& reader) {
       playback.Draw.State().WindowExtent = ReadPoint32(reader);
     }},
    {Emr::SetWindowOrgEx,
     [](EmfPlayback& playback, ByteReader& reader) {
       playback.Draw.State().WindowOrigin = ReadPoint32(reader);
     }},
    {Emr::SetViewportExtEx,
     [](EmfPlayback& playback, ByteReader& reader) {
       playback.Draw.State().ViewportExtent = ReadPoint32(reader);
     }},
    {Emr::SetViewportOrgEx,
     [](EmfPlayback& playback, ByteReader& reader) {
       playback.Draw.State().ViewportOrigin = ReadPoint32(reader);
     }},
    {Emr::SetBrushOrgEx, nullptr},   // origin of brushes
    {Emr::SetMapperFlags, nullptr},  // how fonts are matched
    {Emr::SetMapMode, SetMapMode},
    {Emr::SetBkMode,
     [](EmfPlayback& playback, ByteReader& reader) { playback.Draw.State().BackgroundMode = reader.U32(); }},
    {Emr::SetPolyFillMode,
     [](EmfPlayback& playback, ByteReader& reader) { playback.Draw.State().PolyFillMode = reader.U32(); }},
    {Emr::SetRop2,
     [](EmfPlayback& playback, ByteReader& reader) { playback.Draw.State().Rop2 = reader.U32(); }},
    {Emr::SetStretchBltMode, nullptr},  // how bitmaps shrink
    {Emr::SetTextAlign,
     [](EmfPlayback& playback, ByteReader& reader) { playback.Draw.State().TextAlign = reader.U32(); }},
    {Emr::SetColorAdjustment, nullptr},  // colour adjustment of halftones
    {Emr::SetTextColor,
     [](EmfPlayback& playback, ByteReader& reader) {
       playback.Draw.State().TextColor = ReadColor(reader, playback.Palette());
     }},
    {Emr::SetBkColor,
     [](EmfPlayback& playback, ByteReader& reader) {
       playback.Draw.State().BackgroundColor = ReadColor(reader, playback.Palette());
     }},
    {Emr::ScaleViewportExtEx,
     [](EmfPlayback& playback, ByteReader& reader) {
       playback.Draw.State().ViewportExtent = Scaled(playback.Draw.State().ViewportExtent, reader);
     }},
    {Emr::ScaleWindowExtEx,
     [](EmfPlayback& playback, ByteReader& reader) {
       playback.Draw.State().WindowExtent = Scaled(playback.Draw.State().WindowExtent, reader);
     }},
    {Emr::SaveDc, [](EmfPlayback& playback, ByteReader&) { playback.Draw.Context().Save(); }},
    {Emr::RestoreDc,
     [](EmfPlayback& playback, ByteReader& reader) { playback.Draw.Context().Restore(reader.I32()); }},
    {Emr::SetWorldTransform,
     [](EmfPlayback& playback, ByteReader& reader) { playback.Draw.State().World = ReadTransform(reader); }},
    {Emr::ModifyWorldTransform,
     [](EmfPlayback& playback, ByteReader& reader) { ModifyTransform(playback.Draw.State(), reader); }},
    {Emr::SetArcDirection,
     [](EmfPlayback& playback, ByteReader& reader) { playback.Draw.State().Clockwise = reader.U32() == 2; }},
    {Emr::SetMiterLimit,
     [](EmfPlayback& playback, ByteReader& reader) {
       const std::uint32_t limit = reader.U32();
       // Some writers store a floating-point number here.
       const double value = limit > 0xFFFF ? static_cast<double>(std::bit_cast<float>(limit)) : limit;
       if (std::isfinite(value) && value >= 1) playback.Draw.State().MiterLimit = value;
     }},
    {Emr::SetIcmMode, nullptr},  // colour management, as the next three
    {Emr::CreateColorSpace, nullptr},
    {Emr::SetColorSpace, nullptr},
    {Emr::DeleteColorSpace, nullptr},
    {Emr::PixelFormat, nullptr},
    {Emr::DrawEscape, nullptr},  // escapes to a driver
    {Emr::ExtEscape, nullptr},
    {Emr::ForceUfiMapping, nullptr},  // font links
    {Emr::NamedEscape, nullptr},
    {Emr::ColorCorrectPalette, nullptr},
    {Emr::SetIcmProfileA, nullptr},
    {Emr::SetIcmProfileW, nullptr},
    {Emr::SetLayout,
     [](EmfPlayback&, ByteReader& reader) {
       if (reader.U32() != 0) throw SkipRecord();
     }},
    {Emr::SetLinkedUfis, nullptr},
    {Emr::SetTextJustification,
     [](EmfPlayback& playback, ByteReader& reader) {
       const double extra = reader.I32();
       const int count = reader.I32();
       playback.Draw.State().BreakExtra = count > 0 ? extra / count : 0;
     }},
    {Emr::ColorMatchToTargetW, nullptr},
    {Emr::CreateColorSpaceW, nullptr},
};

}  // namespace

std::span<const EmfRecord> EmfStateRecords() {
  return Records;
}

}  // namespace tarvis
