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
    {Meta::LineTo, [](WmfPlayback& p, ByteReader& r) { p.Draw.LineTo(ReadYX(r)); }},
    {Meta::MoveTo, [](WmfPlayback& p, ByteReader& r) { p.Draw.MoveTo(ReadYX(r)); }},
    {Meta::Polygon, [](WmfPlayback& p, ByteReader& r) { p.Draw.Polygons({ReadPolyPoints(r)}); }},
    {Meta::Polyline, [](WmfPlayback& p, ByteReader& r) { p.Draw.Polyline(ReadPolyPoints(r)); }},
    {Meta::Ellipse, [](WmfPlayback& p, ByteReader& r) { p.Draw.Ellipse(ReadBoxFromBottom(r)); }},
    {Meta::Rectangle, [](WmfPlayback& p, ByteReader& r) { p.Draw.Rectangle(ReadBoxFromBottom(r)); }},
    {Meta::SetPixel, SetPixel},
    {Meta::PolyPolygon, PolyPolygon},
    {Meta::RoundRect, RoundRect},
    {Meta::Arc, Arc<ArcKind::Open>},
    {Meta::Pie, Arc<ArcKind::Pie>},
    {Meta::Chord, Arc<ArcKind::Chord>},
};

}  // namespace

std::span<const WmfRecord> WmfShapeRecords() {
  return Records;
}

}  // namespace tarvis
