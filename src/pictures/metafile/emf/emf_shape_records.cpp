#include <cmath>

#include "pictures/metafile/emf/emf_playback.h"

namespace tarvis {
namespace {

constexpr std::size_t BoundsSize = 16;

Points ReadPolyPoints(ByteReader& r, bool small) {
  r.Skip(BoundsSize);
  const std::size_t count = r.U32();
  return ReadPoints(r, count, small);
}

std::vector<Points> ReadPolyPolys(ByteReader& r, bool small) {
  r.Skip(BoundsSize);
  const std::size_t polys = r.U32();
  r.Skip(4);
  ByteReader counts(r.Take(polys * 4));
  std::vector<Points> all;
  while (counts.Left() > 0) all.push_back(ReadPoints(r, counts.U32(), small));
  return all;
}

template <bool Small>
void Polygon(EmfPlayback& p, ByteReader& r) {
  p.Draw.Polygons({ReadPolyPoints(r, Small)});
}
template <bool Small>
void Polyline(EmfPlayback& p, ByteReader& r) {
  p.Draw.Polyline(ReadPolyPoints(r, Small));
}
template <bool Small>
void PolylineTo(EmfPlayback& p, ByteReader& r) {
  p.Draw.PolylineTo(ReadPolyPoints(r, Small));
}
template <bool Small>
void Bezier(EmfPlayback& p, ByteReader& r) {
  p.Draw.Bezier(ReadPolyPoints(r, Small), false);
}
template <bool Small>
void BezierTo(EmfPlayback& p, ByteReader& r) {
  p.Draw.Bezier(ReadPolyPoints(r, Small), true);
}
template <bool Small>
void PolyPolyline(EmfPlayback& p, ByteReader& r) {
  p.Draw.PolyPolyline(ReadPolyPolys(r, Small));
}
template <bool Small>
void PolyPolygon(EmfPlayback& p, ByteReader& r) {
  p.Draw.Polygons(ReadPolyPolys(r, Small));
}

template <bool Small>
void PolyDraw(EmfPlayback& p, ByteReader& r) {
  enum : unsigned { Close = 1, Line = 2, Curve = 4, Move = 6 };
  const Points points = ReadPolyPoints(r, Small);
  const Bytes kinds = r.Take(points.size());
  QPointF figure = p.Draw.State().Position;
  for (std::size_t i = 0; i < points.size(); ++i) {
    std::size_t last = i;
    const unsigned kind = kinds[i] & 6u;
    if (kind == Move) p.Draw.MoveTo(figure = points[i]);
    if (kind == Line) p.Draw.LineTo(points[i]);
    if (kind == Curve) {
      if (i + 2 >= points.size()) throw OutOfBytes();
      p.Draw.Bezier({points[i], points[i + 1], points[i + 2]}, true);
      last = i += 2;
    }
    if ((kinds[last] & Close) != 0) p.Draw.LineTo(figure);
  }
}

ArcShape ReadArc(EmfPlayback& p, ByteReader& r) {
  ArcShape arc;
  arc.Box = ReadBox(r);
  arc.Start = ReadPoint32(r);
  arc.End = ReadPoint32(r);
  arc.Clockwise = p.Draw.State().Clockwise;
  return arc;
}

void AngleArc(EmfPlayback& p, ByteReader& r) {
  const QPointF center = ReadPoint32(r);
  const double radius = r.U32();
  const auto start = static_cast<double>(r.F32());
  const auto sweep = static_cast<double>(r.F32());
  if (!std::isfinite(start) || !std::isfinite(sweep) || std::abs(start) > 1e6) throw SkipRecord();
  QPainterPath arc(p.Draw.State().Position);
  AddArc(arc, {center.x() - radius, center.y() - radius, 2 * radius, 2 * radius}, -start, -sweep, true);
  Points points;
  p.Draw.LineTo(arc.elementAt(1));
  for (int i = 2; i < arc.elementCount(); ++i) points.push_back(arc.elementAt(i));
  p.Draw.Bezier(points, true);
}

void RoundRect(EmfPlayback& p, ByteReader& r) {
  const QRectF box = ReadBox(r);
  const QPointF corner = ReadPoint32(r);
  p.Draw.RoundRectangle(box, {corner.x(), corner.y()});
}

void SetPixel(EmfPlayback& p, ByteReader& r) {
  const QPointF point = ReadPoint32(r);
  p.Draw.Pixel(point, ReadColor(r, p.Palette()));
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
    {Emr::MoveToEx, [](EmfPlayback& p, ByteReader& r) { p.Draw.MoveTo(ReadPoint32(r)); }},
    {Emr::AngleArc, AngleArc},
    {Emr::Ellipse, [](EmfPlayback& p, ByteReader& r) { p.Draw.Ellipse(ReadBox(r)); }},
    {Emr::Rectangle, [](EmfPlayback& p, ByteReader& r) { p.Draw.Rectangle(ReadBox(r)); }},
    {Emr::RoundRect, RoundRect},
    {Emr::Arc, [](EmfPlayback& p, ByteReader& r) { p.Draw.Arc(ReadArc(p, r), ArcKind::Open, false); }},
    {Emr::Chord, [](EmfPlayback& p, ByteReader& r) { p.Draw.Arc(ReadArc(p, r), ArcKind::Chord, false); }},
    {Emr::Pie, [](EmfPlayback& p, ByteReader& r) { p.Draw.Arc(ReadArc(p, r), ArcKind::Pie, false); }},
    {Emr::LineTo, [](EmfPlayback& p, ByteReader& r) { p.Draw.LineTo(ReadPoint32(r)); }},
    {Emr::ArcTo, [](EmfPlayback& p, ByteReader& r) { p.Draw.Arc(ReadArc(p, r), ArcKind::Open, true); }},
    {Emr::PolyDraw, PolyDraw<false>},
    {Emr::BeginPath, [](EmfPlayback& p, ByteReader&) { p.Draw.BeginPath(); }},
    {Emr::EndPath, [](EmfPlayback& p, ByteReader&) { p.Draw.EndPath(); }},
    {Emr::CloseFigure, [](EmfPlayback& p, ByteReader&) { p.Draw.CloseFigure(); }},
    {Emr::FillPath, [](EmfPlayback& p, ByteReader&) { p.Draw.DrawPath(true, false); }},
    {Emr::StrokeAndFillPath, [](EmfPlayback& p, ByteReader&) { p.Draw.DrawPath(true, true); }},
    {Emr::StrokePath, [](EmfPlayback& p, ByteReader&) { p.Draw.DrawPath(false, true); }},
    {Emr::FlattenPath, nullptr},  // curves look the same, flattened or not
    {Emr::WidenPath, [](EmfPlayback& p, ByteReader&) { p.Draw.WidenPath(); }},
    {Emr::AbortPath, [](EmfPlayback& p, ByteReader&) { p.Draw.AbortPath(); }},
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
