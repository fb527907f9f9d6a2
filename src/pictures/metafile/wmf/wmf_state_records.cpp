#include "pictures/metafile/wmf/wmf_playback.h"

namespace tarvis {
namespace {

QPointF Scaled(QPointF extent, ByteReader& r) {
  const QPointF divide = [&r] {
    const double y = r.I16();
    const double yMultiply = r.I16();
    return QPointF(y, yMultiply);
  }();
  const double xDivide = r.I16();
  const double xMultiply = r.I16();
  if (divide.x() == 0 || xDivide == 0) throw SkipRecord();
  return {extent.x() * xMultiply / xDivide, extent.y() * divide.y() / divide.x()};
}

QColor Color(WmfPlayback& p, ByteReader& r) {
  return ReadColor(r, p.Palette());
}

// The viewport of the outside stands for the device, so that all modes but the isotropic one map window to
// viewport.
void SetMapMode(WmfPlayback& p, ByteReader& r) {
  const std::uint32_t mode = r.U16();
  p.Draw.State().Mapping = mode == 7 ? MapMode::Isotropic : MapMode::Anisotropic;
}

// Extents of zero say nothing.
void SetExtent(QPointF& extent, QPointF to) {
  if (to.x() == 0 || to.y() == 0) throw SkipRecord();
  extent = to;
}

void SetJustification(WmfPlayback& p, ByteReader& r) {
  const int count = r.I16();
  const double extra = r.I16();
  p.Draw.State().BreakExtra = count > 0 ? extra / count : 0;
}

constexpr WmfRecord Records[] = {
    {Meta::SaveDc, [](WmfPlayback& p, ByteReader&) { p.Draw.Dc().Save(); }},
    {Meta::SetBkMode, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().BackgroundMode = r.U16(); }},
    {Meta::SetMapMode, SetMapMode},
    {Meta::SetRop2, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().Rop2 = r.U16(); }},
    {Meta::SetRelAbs, nullptr},
    {Meta::SetPolyFillMode, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().PolyFillMode = r.U16(); }},
    {Meta::SetStretchBltMode, nullptr},  // how bitmaps shrink
    {Meta::SetTextCharExtra, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().CharacterExtra = r.I16(); }},
    {Meta::RestoreDc, [](WmfPlayback& p, ByteReader& r) { p.Draw.Dc().Restore(r.I16()); }},
    {Meta::SetTextAlign, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().TextAlign = r.U16(); }},
    {Meta::SetLayout,
     [](WmfPlayback&, ByteReader& r) {
       if (r.U16() != 0) throw SkipRecord();
     }},
    {Meta::SetBkColor, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().BackgroundColor = Color(p, r); }},
    {Meta::SetTextColor, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().TextColor = Color(p, r); }},
    {Meta::SetTextJustification, SetJustification},
    {Meta::SetWindowOrg, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().WindowOrigin = ReadYX(r); }},
    {Meta::SetWindowExt,
     [](WmfPlayback& p, ByteReader& r) { SetExtent(p.Draw.State().WindowExtent, ReadYX(r)); }},
    {Meta::SetViewportOrg, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().ViewportOrigin = ReadYX(r); }},
    {Meta::SetViewportExt,
     [](WmfPlayback& p, ByteReader& r) { SetExtent(p.Draw.State().ViewportExtent, ReadYX(r)); }},
    {Meta::OffsetWindowOrg, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().WindowOrigin += ReadYX(r); }},
    {Meta::OffsetViewportOrg,
     [](WmfPlayback& p, ByteReader& r) { p.Draw.State().ViewportOrigin += ReadYX(r); }},
    {Meta::OffsetClipRgn, [](WmfPlayback& p, ByteReader& r) { p.Draw.OffsetClip(ReadYX(r)); }},
    {Meta::SetMapperFlags, nullptr},  // how fonts are matched
    {Meta::ScaleWindowExt,
     [](WmfPlayback& p, ByteReader& r) {
       p.Draw.State().WindowExtent = Scaled(p.Draw.State().WindowExtent, r);
     }},
    {Meta::ScaleViewportExt,
     [](WmfPlayback& p, ByteReader& r) {
       p.Draw.State().ViewportExtent = Scaled(p.Draw.State().ViewportExtent, r);
     }},
    {Meta::ExcludeClipRect, [](WmfPlayback& p, ByteReader& r) { p.Draw.ExcludeClip(ReadBoxFromBottom(r)); }},
    {Meta::IntersectClipRect,
     [](WmfPlayback& p, ByteReader& r) { p.Draw.IntersectClip(ReadBoxFromBottom(r)); }},
    {Meta::Escape, nullptr},  // escapes to a driver
};

}  // namespace

std::span<const WmfRecord> WmfStateRecords() {
  return Records;
}

}  // namespace tarvis
