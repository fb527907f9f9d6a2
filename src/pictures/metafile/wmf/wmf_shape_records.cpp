#include "pictures/metafile/wmf/wmf_playback.h"

namespace tarvis {
namespace {

ArcShape ReadArc(ByteReader& r, Drawing& draw) {
  ArcShape arc;
  arc.End = ReadYX(r);
  arc.Start = ReadYX(r);
  arc.Box = ReadBoxFromBottom(r);
  // Arcs turn against the clock as seen on the paper, whichever way the axes point.
  arc.Clockwise = draw.Dc().ToDevice().determinant() < 0;
  return arc;
}

template <ArcKind Kind>
void Arc(WmfPlayback& p, ByteReader& r) {
  p.Draw.Arc(ReadArc(r, p.Draw), Kind, false);
}

Points ReadPolyPoints(ByteReader& r) {
  const std::size_t count = r.U16();
  return ReadPoints(r, count, true);
}

void PolyPolygon(WmfPlayback& p, ByteReader& r) {
  const std::size_t polys = r.U16();
  ByteReader counts(r.Take(polys * 2));
  std::vector<Points> all;
  while (counts.Left() > 0) all.push_back(ReadPoints(r, counts.U16(), true));
  p.Draw.Polygons(all);
}

void RoundRect(WmfPlayback& p, ByteReader& r) {
  const QPointF corner = ReadYX(r);
  p.Draw.RoundRectangle(ReadBoxFromBottom(r), {corner.x(), corner.y()});
}

void SetPixel(WmfPlayback& p, ByteReader& r) {
  const QColor color = ReadColor(r, p.Palette());
  p.Draw.Pixel(ReadYX(r), color);
}

constexpr WmfRecord Records[] = {
    {0x0213, [](WmfPlayback& p, ByteReader& r) { p.Draw.LineTo(ReadYX(r)); }},
    {0x0214, [](WmfPlayback& p, ByteReader& r) { p.Draw.MoveTo(ReadYX(r)); }},
    {0x0324, [](WmfPlayback& p, ByteReader& r) { p.Draw.Polygons({ReadPolyPoints(r)}); }},
    {0x0325, [](WmfPlayback& p, ByteReader& r) { p.Draw.Polyline(ReadPolyPoints(r)); }},
    {0x0418, [](WmfPlayback& p, ByteReader& r) { p.Draw.Ellipse(ReadBoxFromBottom(r)); }},
    {0x041B, [](WmfPlayback& p, ByteReader& r) { p.Draw.Rectangle(ReadBoxFromBottom(r)); }},
    {0x041F, SetPixel},
    {0x0538, PolyPolygon},
    {0x061C, RoundRect},
    {0x0817, Arc<ArcKind::Open>},
    {0x081A, Arc<ArcKind::Pie>},
    {0x0830, Arc<ArcKind::Chord>},
};

}  // namespace

std::span<const WmfRecord> WmfShapeRecords() {
  return Records;
}

}  // namespace tarvis
