// Records of enhanced metafiles that draw lines and shapes, and those of the path.
#include <cmath>

#include "pictures/metafile/emf/emf_playback.h"

namespace tarvis {
namespace {

Points ReadPolyPoints(ByteReader& reader, bool small) {
  reader.Skip(BoundsSize);
  const std::size_t count = reader.U32();
  return ReadPoints(reader, count, small);
}

std::vector<Points> ReadPolyPolys(ByteReader& reader, bool small) {
  reader.Skip(BoundsSize);
  const std::size_t polys = reader.U32();
  reader.Skip(4);
  ByteReader counts(reader.Take(polys * 4));
  std::vector<Points> all;
  while (counts.Left() > 0) all.push_back(ReadPoints(reader, counts.U32(), small));
  return all;
}

template <bool Small>
void Polygon(EmfPlayback& playback, ByteReader& reader) {
  playback.Draw.Shapes().Polygons({ReadPolyPoints(reader, Small)});
}
template <bool Small>
void Polyline(EmfPlayback& playback, ByteReader& reader) {
  playback.Draw.Shapes().Polyline(ReadPolyPoints(reader, Small));
}
template <bool Small>
void PolylineTo(EmfPlayback& playback, ByteReader& reader) {
  playback.Draw.Shapes().PolylineTo(ReadPolyPoints(reader, Small));
}
template <bool Small>
void Bezier(EmfPlayback& playback, ByteReader& reader) {
  playback.Draw.Shapes().Bezier(ReadPolyPoints(reader, Small), false);
}
template <bool Small>
void BezierTo(EmfPlayback& playback, ByteReader& reader) {
  playback.Draw.Shapes().Bezier(ReadPolyPoints(reader, Small), true);
}
template <bool Small>
void PolyPolyline(EmfPlayback& playback, ByteReader& reader) {
  playback.Draw.Shapes().PolyPolyline(ReadPolyPolys(reader, Small));
}
template <bool Small>
void PolyPolygon(EmfPlayback& playback, ByteReader& reader) {
  playback.Draw.Shapes().Polygons(ReadPolyPolys(reader, Small));
}

template <bool Small>
void PolyDraw(EmfPlayback& playback, ByteReader& reader) {
  enum : unsigned { Close = 1, Line = 2, Curve = 4, Move = 6 };
  const Points points = ReadPolyPoints(reader, Small);
  const Bytes kinds = reader.Take(points.size());
  QPointF figure = playback.Draw.State().Position;
  for (std::size_t i = 0; i < points.size(); ++i) {
    std::size_t last = i;
    const unsigned kind = kinds[i] & 6u;
    if (kind == Move) playback.Draw.Shapes().MoveTo(figure = points[i]);
    if (kind == Line) playback.Draw.Shapes().LineTo(points[i]);
    if (kind == Curve) {
      if (i + 2 >= points.size()) throw OutOfBytes();
      playback.Draw.Shapes().Bezier({points[i], points[i + 1], points[i + 2]}, true);
      last = i += 2;
    }
    if ((kinds[last] & Close) != 0) playback.Draw.Shapes().LineTo(figure);
  }
}

ArcShape ReadArc(EmfPlayback& playback, ByteReader& reader) {
  ArcShape arc;
  arc.Box = ReadBox(reader);
  arc.Start = ReadPoint32(reader);
  arc.End = ReadPoint32(reader);
  arc.Clockwise = playback.Draw.State().Clockwise;
  return arc;
}

void AngleArc(EmfPlayback& playback, ByteReader& reader) {
  const QPointF center = ReadPoint32(reader);
  const double radius = reader.U32();
  const auto start = static_cast<double>(reader.F32());
  const auto sweep = static_cast<double>(reader.F32());
  if (!std::isfinite(start) || !std::isfinite(sweep) || std::abs(start) > 1e6) throw SkipRecord();
  QPainterPath arc(playback.Draw.State().Position);
  AddArc(arc, {center.x() - radius, center.y() - radius, 2 * radius, 2 * radius}, -start, -sweep, true);
  Points points;
  playback.Draw.Shapes().LineTo(arc.elementAt(1));
  for (int i = 2; i < arc.elementCount(); ++i) points.push_back(arc.elementAt(i));
  playback.Draw.Shapes().Bezier(points, true);
}

void RoundRect(EmfPlayback& playback, ByteReader& reader) {
  const QRectF box = ReadBox(reader);
  const QPointF corner = ReadPoint32(reader);
  playback.Draw.Shapes().RoundRectangle(box, {corner.x(), corner.y()});
}

void SetPixel(EmfPlayback& playback, ByteReader& reader) {
  const QPointF point = ReadPoint32(reader);
  playback.Draw.Areas().Pixel(point, ReadColor(reader, playback.Palette()));
}

constexpr EmfRecord Records[] = {
    {Emr::PolyBezier, Bezier<false>},
    {Emr::Polygon, Polygon<false>},
    {Emr::Polyline, Polyline<false>},
    {Emr::PolyBezierTo, BezierTo<false>},
    {Emr::PolylineTo, PolylineTo<false>},
    {Emr::PolyPolyline, PolyPolyline<false>},
    {Emr::PolyPolygon, PolyPolygon<false>},
    {Emr::SetPixelV, SetPixel},
    {Emr::MoveToEx,
     [](EmfPlayback& playback, ByteReader& reader) { playback.Draw.Shapes().MoveTo(ReadPoint32(reader)); }},
    {Emr::AngleArc, AngleArc},
    {Emr::Ellipse,
     [](EmfPlayback& playback, ByteReader& reader) { playback.Draw.Shapes().Ellipse(ReadBox(reader)); }},
    {Emr::Rectangle,
     [](EmfPlayback& playback, ByteReader& reader) { playback.Draw.Shapes().Rectangle(ReadBox(reader)); }},
    {Emr::RoundRect, RoundRect},
    {Emr::Arc,
     [](EmfPlayback& playback, ByteReader& reader) {
       playback.Draw.Shapes().Arc(ReadArc(playback, reader), ArcKind::Open, false);
     }},
    {Emr::Chord,
     [](EmfPlayback& playback, ByteReader& reader) {
       playback.Draw.Shapes().Arc(ReadArc(playback, reader), ArcKind::Chord, false);
     }},
    {Emr::Pie,
     [](EmfPlayback& playback, ByteReader& reader) {
       playback.Draw.Shapes().Arc(ReadArc(playback, reader), ArcKind::Pie, false);
     }},
    {Emr::LineTo,
     [](EmfPlayback& playback, ByteReader& reader) { playback.Draw.Shapes().LineTo(ReadPoint32(reader)); }},
    {Emr::ArcTo,
     [](EmfPlayback& playback, ByteReader& reader) {
       playback.Draw.Shapes().Arc(ReadArc(playback, reader), ArcKind::Open, true);
     }},
    {Emr::PolyDraw, PolyDraw<false>},
    {Emr::BeginPath, [](EmfPlayback& playback, ByteReader&) { playback.Draw.Path().Begin(); }},
    {Emr::EndPath, [](EmfPlayback& playback, ByteReader&) { playback.Draw.Path().End(); }},
    {Emr::CloseFigure, [](EmfPlayback& playback, ByteReader&) { playback.Draw.Path().CloseFigure(); }},
    {Emr::FillPath, [](EmfPlayback& playback, ByteReader&) { playback.Draw.Shapes().Path(true, false); }},
    {Emr::StrokeAndFillPath,
     [](EmfPlayback& playback, ByteReader&) { playback.Draw.Shapes().Path(true, true); }},
    {Emr::StrokePath, [](EmfPlayback& playback, ByteReader&) { playback.Draw.Shapes().Path(false, true); }},
    {Emr::FlattenPath, nullptr},  // curves look the same, flattened or not
    {Emr::WidenPath, [](EmfPlayback& playback, ByteReader&) { playback.Draw.Shapes().WidenPath(); }},
    {Emr::AbortPath, [](EmfPlayback& playback, ByteReader&) { playback.Draw.Path().Abort(); }},
    {Emr::PolyBezier16, Bezier<true>},
    {Emr::Polygon16, Polygon<true>},
    {Emr::Polyline16, Polyline<true>},
    {Emr::PolyBezierTo16, BezierTo<true>},
    {Emr::PolylineTo16, PolylineTo<true>},
    {Emr::PolyPolyline16, PolyPolyline<true>},
    {Emr::PolyPolygon16, PolyPolygon<true>},
    {Emr::PolyDraw16, PolyDraw<true>},
};

}  // namespace

std::span<const EmfRecord> EmfShapeRecords() {
  return Records;
}

}  // namespace tarvis
