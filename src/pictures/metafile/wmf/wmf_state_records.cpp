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
    {0x001E, [](WmfPlayback& p, ByteReader&) { p.Draw.Dc().Save(); }},
    {0x0102, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().BackgroundMode = r.U16(); }},
    {0x0103, SetMapMode},
    {0x0104, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().Rop2 = r.U16(); }},
    {0x0105, nullptr},
    {0x0106, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().PolyFillMode = r.U16(); }},
    {0x0107, nullptr},  // how bitmaps shrink
    {0x0108, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().CharacterExtra = r.I16(); }},
    {0x0127, [](WmfPlayback& p, ByteReader& r) { p.Draw.Dc().Restore(r.I16()); }},
    {0x012E, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().TextAlign = r.U16(); }},
    {0x0149,
     [](WmfPlayback&, ByteReader& r) {
       if (r.U16() != 0) throw SkipRecord();
     }},
    {0x0201, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().BackgroundColor = Color(p, r); }},
    {0x0209, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().TextColor = Color(p, r); }},
    {0x020A, SetJustification},
    {WmfSetWindowOrigin, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().WindowOrigin = ReadYX(r); }},
    {WmfSetWindowExtent,
     [](WmfPlayback& p, ByteReader& r) { SetExtent(p.Draw.State().WindowExtent, ReadYX(r)); }},
    {WmfSetViewportOrigin, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().ViewportOrigin = ReadYX(r); }},
    {WmfSetViewportExtent,
     [](WmfPlayback& p, ByteReader& r) { SetExtent(p.Draw.State().ViewportExtent, ReadYX(r)); }},
    {0x020F, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().WindowOrigin += ReadYX(r); }},
    {0x0211, [](WmfPlayback& p, ByteReader& r) { p.Draw.State().ViewportOrigin += ReadYX(r); }},
    {0x0220, [](WmfPlayback& p, ByteReader& r) { p.Draw.OffsetClip(ReadYX(r)); }},
    {0x0231, nullptr},  // how fonts are matched
    {0x0410, [](WmfPlayback& p,
                ByteReader& r) { p.Draw.State().WindowExtent = Scaled(p.Draw.State().WindowExtent, r); }},
    {0x0412, [](WmfPlayback& p,
                ByteReader& r) { p.Draw.State().ViewportExtent = Scaled(p.Draw.State().ViewportExtent, r); }},
    {0x0415, [](WmfPlayback& p, ByteReader& r) { p.Draw.ExcludeClip(ReadBoxFromBottom(r)); }},
    {0x0416, [](WmfPlayback& p, ByteReader& r) { p.Draw.IntersectClip(ReadBoxFromBottom(r)); }},
    {0x0626, nullptr},  // escapes to a driver
};

}  // namespace

std::span<const WmfRecord> WmfStateRecords() {
  return Records;
}

}  // namespace tarvis
