// Records of old-style metafiles that change the state: mapping, modes, colours, the clip.
#include "pictures/metafile/wmf/wmf_playback.h"

namespace tarvis {
namespace {

// By the record's two fractions: the denominator comes before the numerator, and y before x.
QPointF Scaled(QPointF extent, ByteReader& reader) {
  const double yDivide = reader.I16();
  const double yMultiply = reader.I16();
  const double xDivide = reader.I16();
  const double xMultiply = reader.I16();
  if (yDivide == 0 || xDivide == 0) throw SkipRecord();
  return {extent.x() * xMultiply / xDivide, extent.y() * yMultiply / yDivide};
}

QColor Color(WmfPlayback& playback, ByteReader& reader) {
  return ReadColor(reader, playback.Palette());
}

// The viewport is that of the program which shows the picture, so that all modes but the isotropic one map
// window to viewport.
void SetMapMode(WmfPlayback& playback, ByteReader& reader) {
  const std::uint32_t mode = reader.U16();
  playback.Draw.State().Mapping = mode == 7 ? MapMode::Isotropic : MapMode::Anisotropic;
}

// Extents of zero say nothing.
void SetExtent(QPointF& extent, QPointF to) {
  if (to.x() == 0 || to.y() == 0) throw SkipRecord();
  extent = to;
}

void SetJustification(WmfPlayback& playback, ByteReader& reader) {
  const int count = reader.I16();
  const double extra = reader.I16();
  playback.Draw.State().BreakExtra = count > 0 ? extra / count : 0;
}

constexpr WmfRecord Records[] = {
    {Meta::SaveDc, [](WmfPlayback& playback, ByteReader&) { playback.Draw.Context().Save(); }},
    {Meta::SetBkMode,
     [](WmfPlayback& playback, ByteReader& reader) { playback.Draw.State().BackgroundMode = reader.U16(); }},
    {Meta::SetMapMode, SetMapMode},
    {Meta::SetRop2,
     [](WmfPlayback& playback, ByteReader& reader) { playback.Draw.State().Rop2 = reader.U16(); }},
    {Meta::SetRelAbs, nullptr},
    {Meta::SetPolyFillMode,
     [](WmfPlayback& playback, ByteReader& reader) { playback.Draw.State().PolyFillMode = reader.U16(); }},
    {Meta::SetStretchBltMode, nullptr},  // how bitmaps shrink
    {Meta::SetTextCharExtra,
     [](WmfPlayback& playback, ByteReader& reader) { playback.Draw.State().CharacterExtra = reader.I16(); }},
    {Meta::RestoreDc,
     [](WmfPlayback& playback, ByteReader& reader) { playback.Draw.Context().Restore(reader.I16()); }},
    {Meta::SetTextAlign,
     [](WmfPlayback& playback, ByteReader& reader) { playback.Draw.State().TextAlign = reader.U16(); }},
    {Meta::SetLayout,
     [](WmfPlayback&, ByteReader& reader) {
       if (reader.U16() != 0) throw SkipRecord();
     }},
    {Meta::SetBkColor,
     [](WmfPlayback& playback, ByteReader& reader) {
       playback.Draw.State().BackgroundColor = Color(playback, reader);
     }},
    {Meta::SetTextColor,
     [](WmfPlayback& playback, ByteReader& reader) {
       playback.Draw.State().TextColor = Color(playback, reader);
     }},
    {Meta::SetTextJustification, SetJustification},
    {Meta::SetWindowOrg,
     [](WmfPlayback& playback, ByteReader& reader) { playback.Draw.State().WindowOrigin = ReadYX(reader); }},
    {Meta::SetWindowExt,
     [](WmfPlayback& playback, ByteReader& reader) {
       SetExtent(playback.Draw.State().WindowExtent, ReadYX(reader));
     }},
    {Meta::SetViewportOrg, [](WmfPlayback& playback,
                              ByteReader& reader) { playback.Draw.State().ViewportOrigin = ReadYX(reader); }},
    {Meta::SetViewportExt,
     [](WmfPlayback& playback, ByteReader& reader) {
       SetExtent(playback.Draw.State().ViewportExtent, ReadYX(reader));
     }},
    {Meta::OffsetWindowOrg,
     [](WmfPlayback& playback, ByteReader& reader) { playback.Draw.State().WindowOrigin += ReadYX(reader); }},
    {Meta::OffsetViewportOrg,
     [](WmfPlayback& playback, ByteReader& reader) {
       playback.Draw.State().ViewportOrigin += ReadYX(reader);
     }},
    {Meta::OffsetClipRgn,
     [](WmfPlayback& playback, ByteReader& reader) { playback.Draw.Clip().Offset(ReadYX(reader)); }},
    {Meta::SetMapperFlags, nullptr},  // how fonts are matched
    {Meta::ScaleWindowExt,
     [](WmfPlayback& playback, ByteReader& reader) {
       playback.Draw.State().WindowExtent = Scaled(playback.Draw.State().WindowExtent, reader);
     }},
    {Meta::ScaleViewportExt,
     [](WmfPlayback& playback, ByteReader& reader) {
       playback.Draw.State().ViewportExtent = Scaled(playback.Draw.State().ViewportExtent, reader);
     }},
    {Meta::ExcludeClipRect,
     [](WmfPlayback& playback, ByteReader& reader) {
       playback.Draw.Clip().Exclude(ReadBoxFromBottom(reader));
     }},
    {Meta::IntersectClipRect,
     [](WmfPlayback& playback, ByteReader& reader) {
       playback.Draw.Clip().Intersect(ReadBoxFromBottom(reader));
     }},
    {Meta::Escape, nullptr},  // escapes to a driver
};

}  // namespace

std::span<const WmfRecord> WmfStateRecords() {
  return Records;
}

}  // namespace tarvis
