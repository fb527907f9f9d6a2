// Extended records that fill areas, draw lines, and place images.
#include <cmath>

#include "pictures/metafile/emf_plus/emf_plus_playback.h"

namespace tarvis {
namespace {

// Part of a cardinal spline through all points.
struct CurveRange {
  std::size_t First = 0, Segments = 0;
};

QPainterPath CurvePath(const Points& points, double tension, bool closed, CurveRange range) {
  QPainterPath path;
  const std::size_t count = points.size();
  const std::size_t most = closed ? count : std::max<std::size_t>(count, 1) - 1;
  if (count < 2 || range.First > most || range.Segments > most - range.First) return path;
  const auto at = [&](std::ptrdiff_t i) {
    const auto n = static_cast<std::ptrdiff_t>(count);
    return points[static_cast<std::size_t>(closed ? (i + n) % n : std::clamp<std::ptrdiff_t>(i, 0, n - 1))];
  };
  path.moveTo(points[range.First]);
  for (std::size_t k = 0; k < range.Segments; ++k) {
    const auto i = static_cast<std::ptrdiff_t>(range.First + k);
    path.cubicTo(at(i) + (at(i + 1) - at(i - 1)) * tension / 3, at(i + 1) - (at(i + 2) - at(i)) * tension / 3,
                 at(i + 1));
  }
  return path;
}

Points ReadCountedPoints(ByteReader& r, std::uint32_t flags) {
  const std::size_t count = r.U32();
  return ReadPlusPoints(r, count, flags);
}

double ReadAngle(ByteReader& r) {
  const auto degrees = static_cast<double>(r.F32());
  if (!std::isfinite(degrees) || std::abs(degrees) > 1e6) throw SkipRecord();
  return degrees;
}

// The shapes that one record fills and another draws as lines.
QPainterPath ReadRects(const PlusPlayback& p, ByteReader& r, std::uint32_t flags) {
  QPainterPath path;
  const std::size_t count = r.U32();
  for (std::size_t i = 0; i < count; ++i) path.addRect(p.ReadRect(r, flags));
  return path;
}

QPainterPath ReadEllipse(const PlusPlayback& p, ByteReader& r, std::uint32_t flags) {
  QPainterPath path;
  path.addEllipse(p.ReadRect(r, flags));
  return path;
}

QPainterPath ReadLines(ByteReader& r, std::uint32_t flags, bool closed) {
  const Points points = ReadCountedPoints(r, flags);
  QPainterPath path;
  if (points.empty()) return path;
  path.moveTo(points[0]);
  for (std::size_t i = 1; i < points.size(); ++i) path.lineTo(points[i]);
  if (closed) path.closeSubpath();
  return path;
}

QPainterPath ReadArc(const PlusPlayback& p, ByteReader& r, std::uint32_t flags, ArcKind kind) {
  const double start = ReadAngle(r);
  const double sweep = ReadAngle(r);
  const QRectF box = p.ReadRect(r, flags);
  QPainterPath path;
  const bool pie = kind == ArcKind::Pie;
  if (pie) path.moveTo(box.center());
  AddArc(path, box, start, sweep, pie);
  if (pie) path.closeSubpath();
  return path;
}

QPainterPath ReadClosedCurve(ByteReader& r, std::uint32_t flags) {
  const double tension = ReadAngle(r);
  const Points points = ReadCountedPoints(r, flags);
  return CurvePath(points, tension, true, {0, points.size()});
}

void Clear(PlusPlayback& p, std::uint32_t, ByteReader& r) {
  QPainterPath path;
  path.addRect(-1e6, -1e6, 2e6, 2e6);
  p.Fill(path, PlusColorFlag, r.U32());
}

void FillRects(PlusPlayback& p, std::uint32_t flags, ByteReader& r) {
  const std::uint32_t brush = r.U32();
  QPainterPath path = ReadRects(p, r, flags);
  path.setFillRule(Qt::WindingFill);
  p.Fill(path, flags, brush);
}

void FillPolygon(PlusPlayback& p, std::uint32_t flags, ByteReader& r) {
  const std::uint32_t brush = r.U32();
  p.Fill(ReadLines(r, flags, true), flags, brush);
}

void FillEllipse(PlusPlayback& p, std::uint32_t flags, ByteReader& r) {
  const std::uint32_t brush = r.U32();
  p.Fill(ReadEllipse(p, r, flags), flags, brush);
}

void FillPie(PlusPlayback& p, std::uint32_t flags, ByteReader& r) {
  const std::uint32_t brush = r.U32();
  p.Fill(ReadArc(p, r, flags, ArcKind::Pie), flags, brush);
}

// Regions are kept as paths, too.
void FillPath(PlusPlayback& p, std::uint32_t flags, ByteReader& r) {
  const std::uint32_t brush = r.U32();
  p.Fill(p.At<QPainterPath>(flags & 0xFF), flags, brush);
}

void FillClosedCurve(PlusPlayback& p, std::uint32_t flags, ByteReader& r) {
  const std::uint32_t brush = r.U32();
  p.Fill(ReadClosedCurve(r, flags), flags, brush);
}

void DrawCurve(PlusPlayback& p, std::uint32_t flags, ByteReader& r) {
  const double tension = ReadAngle(r);
  const std::size_t first = r.U32();
  const std::size_t segments = r.U32();
  const Points points = ReadCountedPoints(r, flags);
  if (points.empty() || first + segments > points.size() - 1) throw SkipRecord();
  p.Stroke(CurvePath(points, tension, false, {first, segments}), flags);
}

void DrawBeziers(PlusPlayback& p, std::uint32_t flags, ByteReader& r) {
  const Points points = ReadCountedPoints(r, flags);
  if (points.empty()) return;
  QPainterPath path(points[0]);
  for (std::size_t i = 1; i + 2 < points.size(); i += 3)
    path.cubicTo(points[i], points[i + 1], points[i + 2]);
  p.Stroke(path, flags);
}

void DrawPath(PlusPlayback& p, std::uint32_t flags, ByteReader& r) {
  const auto& path = p.At<QPainterPath>(flags & 0xFF);
  p.Stroke(path, r.U32());
}

// Behind the number of the attributes and the unit of the source, which is a pixel.
QRectF ReadSource(ByteReader& r) {
  r.Skip(8);
  return ReadRectF(r);
}

void PlaceImage(PlusPlayback& p, std::uint32_t flags, const QRectF& source, const Points& corners) {
  const std::uint32_t index = flags & 0xFF;
  if (const auto* metafile = p.Find<PlusMetafile>(index)) return p.Draw.Inner(*metafile, source, corners);
  p.Draw.Parallelogram(p.At<QImage>(index), source, corners);
}

void DrawImage(PlusPlayback& p, std::uint32_t flags, ByteReader& r) {
  const QRectF source = ReadSource(r);
  const QRectF to = p.ReadRect(r, flags);
  PlaceImage(p, flags, source, {to.topLeft(), to.topRight(), to.bottomLeft()});
}

void DrawImagePoints(PlusPlayback& p, std::uint32_t flags, ByteReader& r) {
  const QRectF source = ReadSource(r);
  const Points corners = ReadCountedPoints(r, flags);
  if (corners.size() < 3) throw OutOfBytes();
  PlaceImage(p, flags, source, corners);
}

constexpr PlusRecordRow FillRecords[] = {
    {PlusRecord::Clear, Clear},
    {PlusRecord::FillRects, FillRects},
    {PlusRecord::FillPolygon, FillPolygon},
    {PlusRecord::FillEllipse, FillEllipse},
    {PlusRecord::FillPie, FillPie},
    {PlusRecord::FillRegion, FillPath},
    {PlusRecord::FillPath, FillPath},
    {PlusRecord::FillClosedCurve, FillClosedCurve},
};

// Their pen is named by the low byte of the flags.
constexpr PlusRecordRow LineRecords[] = {
    {PlusRecord::DrawRects,
     [](PlusPlayback& p, std::uint32_t flags, ByteReader& r) { p.Stroke(ReadRects(p, r, flags), flags); }},
    {PlusRecord::DrawLines,
     [](PlusPlayback& p, std::uint32_t flags, ByteReader& r) {
       p.Stroke(ReadLines(r, flags, (flags & PlusClosedFlag) != 0), flags);
     }},
    {PlusRecord::DrawEllipse,
     [](PlusPlayback& p, std::uint32_t flags, ByteReader& r) { p.Stroke(ReadEllipse(p, r, flags), flags); }},
    {PlusRecord::DrawPie, [](PlusPlayback& p, std::uint32_t flags,
                             ByteReader& r) { p.Stroke(ReadArc(p, r, flags, ArcKind::Pie), flags); }},
    {PlusRecord::DrawArc, [](PlusPlayback& p, std::uint32_t flags,
                             ByteReader& r) { p.Stroke(ReadArc(p, r, flags, ArcKind::Open), flags); }},
    {PlusRecord::DrawPath, DrawPath},
    {PlusRecord::DrawClosedCurve,
     [](PlusPlayback& p, std::uint32_t flags, ByteReader& r) { p.Stroke(ReadClosedCurve(r, flags), flags); }},
    {PlusRecord::DrawCurve, DrawCurve},
    {PlusRecord::DrawBeziers, DrawBeziers},
};

constexpr PlusRecordRow ImageRecords[] = {
    {PlusRecord::DrawImage, DrawImage},
    {PlusRecord::DrawImagePoints, DrawImagePoints},
};

}  // namespace

std::span<const PlusRecordRow> PlusFillRecords() {
  return FillRecords;
}

std::span<const PlusRecordRow> PlusLineRecords() {
  return LineRecords;
}

std::span<const PlusRecordRow> PlusImageRecords() {
  return ImageRecords;
}

}  // namespace tarvis
