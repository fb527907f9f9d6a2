// Records of old-style metafiles that draw lines and shapes.
#include "pictures/metafile/wmf/wmf_playback.h"

namespace tarvis {
namespace {

ArcShape ReadArc(ByteReader& reader, Drawing& draw) {
  ArcShape arc;
  arc.End = ReadYX(reader);
  arc.Start = ReadYX(reader);
  arc.Box = ReadBoxFromBottom(reader);
  // Arcs turn against the clock as seen on the paper, whichever way the axes point.
  arc.Clockwise = draw.Context().ToDevice().determinant() < 0;
  return arc;
}

template <ArcKind Kind>
void Arc(WmfPlayback& playback, ByteReader& reader) {
  playback.Draw.Shapes().Arc(ReadArc(reader, playback.Draw), Kind, false);
}

Points ReadPolyPoints(ByteReader& reader) {
  const std::size_t count = reader.U16();
  return ReadPoints(reader, count, true);
}

void PolyPolygon(WmfPlayback& playback, ByteReader& reader) {
  const std::size_t polys = reader.U16();
  ByteReader counts(reader.Take(polys * 2));
  std::vector<Points> all;
  while (counts.Left() > 0) all.push_back(ReadPoints(reader, counts.U16(), true));
  playback.Draw.Shapes().Polygons(all);
}

void RoundRect(WmfPlayback& playback, ByteReader& reader) {
  const QPointF corner = ReadYX(reader);
  playback.Draw.Shapes().RoundRectangle(ReadBoxFromBottom(reader), {corner.x(), corner.y()});
}

void SetPixel(WmfPlayback& playback, ByteReader& reader) {
  const QColor color = ReadColor(reader, playback.Palette());
  playback.Draw.Areas().Pixel(ReadYX(reader), color);
}

constexpr WmfRecord Records[] = {
    {Meta::LineTo,
     [](WmfPlayback& playback, ByteReader& reader) { playback.Draw.Shapes().LineTo(ReadYX(reader)); }},
    {Meta::MoveTo,
     [](WmfPlayback& playback, ByteReader& reader) { playback.Draw.Shapes().MoveTo(ReadYX(reader)); }},
    {Meta::Polygon, [](WmfPlayback& playback,
                       ByteReader& reader) { playback.Draw.Shapes().Polygons({ReadPolyPoints(reader)}); }},
    {Meta::Polyline, [](WmfPlayback& playback,
                        ByteReader& reader) { playback.Draw.Shapes().Polyline(ReadPolyPoints(reader)); }},
    {Meta::Ellipse, [](WmfPlayback& playback,
                       ByteReader& reader) { playback.Draw.Shapes().Ellipse(ReadBoxFromBottom(reader)); }},
    {Meta::Rectangle,
     [](WmfPlayback& playback, ByteReader& reader) {
       playback.Draw.Shapes().Rectangle(ReadBoxFromBottom(reader));
     }},
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
