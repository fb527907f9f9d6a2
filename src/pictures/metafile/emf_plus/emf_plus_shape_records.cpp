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

Points ReadCountedPoints(ByteReader& reader, std::uint32_t flags) {
  const std::size_t count = reader.U32();
  return ReadPlusPoints(reader, count, flags);
}

double ReadAngle(ByteReader& reader) {
  const auto degrees = static_cast<double>(reader.F32());
  if (!std::isfinite(degrees) || std::abs(degrees) > 1e6) throw SkipRecord();
  return degrees;
}

// The shapes that one record fills and another draws as lines.
QPainterPath ReadRects(const PlusPlayback& playback, ByteReader& reader, std::uint32_t flags) {
  QPainterPath path;
  const std::size_t count = reader.U32();
  for (std::size_t i = 0; i < count; ++i) path.addRect(playback.ReadRect(reader, flags));
  return path;
}

QPainterPath ReadEllipse(const PlusPlayback& playback, ByteReader& reader, std::uint32_t flags) {
  QPainterPath path;
  path.addEllipse(playback.ReadRect(reader, flags));
  return path;
}

QPainterPath ReadLines(ByteReader& reader, std::uint32_t flags, bool closed) {
  const Points points = ReadCountedPoints(reader, flags);
  QPainterPath path;
  if (points.empty()) return path;
  path.moveTo(points[0]);
  for (std::size_t i = 1; i < points.size(); ++i) path.lineTo(points[i]);
  if (closed) path.closeSubpath();
  return path;
}

QPainterPath ReadArc(const PlusPlayback& playback, ByteReader& reader, std::uint32_t flags, ArcKind kind) {
  const double start = ReadAngle(reader);
  const double sweep = ReadAngle(reader);
  const QRectF box = playback.ReadRect(reader, flags);
  QPainterPath path;
  const bool pie = kind == ArcKind::Pie;
  if (pie) path.moveTo(box.center());
  AddArc(path, box, start, sweep, pie);
  if (pie) path.closeSubpath();
  return path;
}

QPainterPath ReadClosedCurve(ByteReader& reader, std::uint32_t flags) {
  const double tension = ReadAngle(reader);
  const Points points = ReadCountedPoints(reader, flags);
  return CurvePath(points, tension, true, {0, points.size()});
}

void Clear(PlusPlayback& playback, std::uint32_t, ByteReader& reader) {
  QPainterPath path;
  path.addRect(-1e6, -1e6, 2e6, 2e6);
  playback.Fill(path, PlusColorFlag, reader.U32());
}

void FillRects(PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
  const std::uint32_t brush = reader.U32();
  QPainterPath path = ReadRects(playback, reader, flags);
  path.setFillRule(Qt::WindingFill);
  playback.Fill(path, flags, brush);
}

void FillPolygon(PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
  const std::uint32_t brush = reader.U32();
  playback.Fill(ReadLines(reader, flags, true), flags, brush);
}

void FillEllipse(PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
  const std::uint32_t brush = reader.U32();
  playback.Fill(ReadEllipse(playback, reader, flags), flags, brush);
}

void FillPie(PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
  const std::uint32_t brush = reader.U32();
  playback.Fill(ReadArc(playback, reader, flags, ArcKind::Pie), flags, brush);
}

// Regions are kept as paths, too.
void FillPath(PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
  const std::uint32_t brush = reader.U32();
  playback.Fill(playback.At<QPainterPath>(flags & 0xFF), flags, brush);
}

void FillClosedCurve(PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
  const std::uint32_t brush = reader.U32();
  playback.Fill(ReadClosedCurve(reader, flags), flags, brush);
}

void DrawCurve(PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
  const double tension = ReadAngle(reader);
  const std::size_t first = reader.U32();
  const std::size_t segments = reader.U32();
  const Points points = ReadCountedPoints(reader, flags);
  if (points.empty() || first + segments > points.size() - 1) throw SkipRecord();
  playback.Stroke(CurvePath(points, tension, false, {first, segments}), flags);
}

void DrawBeziers(PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
  const Points points = ReadCountedPoints(reader, flags);
  if (points.empty()) return;
  QPainterPath path(points[0]);
  for (std::size_t i = 1; i + 2 < points.size(); i += 3)
    path.cubicTo(points[i], points[i + 1], points[i + 2]);
  playback.Stroke(path, flags);
}

void DrawPath(PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
  const auto& path = playback.At<QPainterPath>(flags & 0xFF);
  playback.Stroke(path, reader.U32());
}

// The number of the attributes and the unit of the source come first; the unit is a pixel.
QRectF ReadSource(ByteReader& reader) {
  reader.Skip(8);
  return ReadRectF(reader);
}

void PlaceImage(PlusPlayback& playback, std::uint32_t flags, const QRectF& source, const Points& corners) {
  const std::uint32_t index = flags & 0xFF;
  if (const auto* metafile = playback.Find<PlusMetafile>(index))
    return playback.Draw.Images().Inner(*metafile, source, corners);
  playback.Draw.Images().Parallelogram(playback.At<QImage>(index), source, corners);
}

void DrawImage(PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
  const QRectF source = ReadSource(reader);
  const QRectF to = playback.ReadRect(reader, flags);
  PlaceImage(playback, flags, source, {to.topLeft(), to.topRight(), to.bottomLeft()});
}

void DrawImagePoints(PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
  const QRectF source = ReadSource(reader);
  const Points corners = ReadCountedPoints(reader, flags);
  if (corners.size() < 3) throw OutOfBytes();
  PlaceImage(playback, flags, source, corners);
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
     [](PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
       playback.Stroke(ReadRects(playback, reader, flags), flags);
     }},
    {PlusRecord::DrawLines,
     [](PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
       playback.Stroke(ReadLines(reader, flags, (flags & PlusClosedFlag) != 0), flags);
     }},
    {PlusRecord::DrawEllipse,
     [](PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
       playback.Stroke(ReadEllipse(playback, reader, flags), flags);
     }},
    {PlusRecord::DrawPie,
     [](PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
       playback.Stroke(ReadArc(playback, reader, flags, ArcKind::Pie), flags);
     }},
    {PlusRecord::DrawArc,
     [](PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
       playback.Stroke(ReadArc(playback, reader, flags, ArcKind::Open), flags);
     }},
    {PlusRecord::DrawPath, DrawPath},
    {PlusRecord::DrawClosedCurve,
     [](PlusPlayback& playback, std::uint32_t flags, ByteReader& reader) {
       playback.Stroke(ReadClosedCurve(reader, flags), flags);
     }},
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
