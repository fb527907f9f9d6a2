#include <cmath>

#include "pictures/metafile/emf_plus/emf_plus_player.h"

namespace tarvis {
namespace {

constexpr std::uint32_t ColorFlag = 0x8000, ClosedFlag = 0x2000;

Points ReadCounted(ByteReader& r, std::uint32_t flags) {
  const std::size_t count = r.U32();
  return ReadPlusPoints(r, count, flags);
}

QPainterPath LinePath(const Points& points, bool closed) {
  QPainterPath path;
  if (points.empty()) return path;
  path.moveTo(points[0]);
  for (std::size_t i = 1; i < points.size(); ++i) path.lineTo(points[i]);
  if (closed) path.closeSubpath();
  return path;
}

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

QPainterPath ClosedCurve(const Points& points, double tension) {
  return CurvePath(points, tension, true, {0, points.size()});
}

double ReadAngle(ByteReader& r) {
  const auto degrees = static_cast<double>(r.F32());
  if (!std::isfinite(degrees) || std::abs(degrees) > 1e6) throw SkipRecord();
  return degrees;
}

}  // namespace

bool EmfPlusPlayer::PlayFill(std::uint32_t type, std::uint32_t flags, ByteReader& r) {
  QPainterPath path;
  if (type == 0x4009) {
    path.addRect(-1e6, -1e6, 2e6, 2e6);
    Fill(path, ColorFlag, r.U32());
    return true;
  }
  constexpr std::uint32_t fills[] = {0x400A, 0x400C, 0x400E, 0x4010, 0x4013, 0x4014, 0x4016};
  if (std::ranges::find(fills, type) == std::end(fills)) return false;
  const std::uint32_t brush = r.U32();
  switch (type) {
    case 0x400A: {
      path.setFillRule(Qt::WindingFill);
      const std::size_t count = r.U32();
      for (std::size_t i = 0; i < count; ++i) path.addRect(Rect(r, flags));
      break;
    }
    case 0x400C:
      path = LinePath(ReadCounted(r, flags), true);
      break;
    case 0x400E:
      path.addEllipse(Rect(r, flags));
      break;
    case 0x4010: {
      const double start = ReadAngle(r);
      const double sweep = ReadAngle(r);
      const QRectF box = Rect(r, flags);
      path.moveTo(box.center());
      AddArc(path, box, start, sweep, true);
      path.closeSubpath();
      break;
    }
    case 0x4016: {
      const double tension = ReadAngle(r);
      path = ClosedCurve(ReadCounted(r, flags), tension);
      break;
    }
    default:
      path = At<QPainterPath>(flags & 0xFF);
  }
  Fill(path, flags, brush);
  return true;
}

bool EmfPlusPlayer::PlayLine(std::uint32_t type, std::uint32_t flags, ByteReader& r) {
  QPainterPath path;
  std::uint32_t pen = flags & 0xFF;
  switch (type) {
    case 0x400B: {
      const std::size_t count = r.U32();
      for (std::size_t i = 0; i < count; ++i) path.addRect(Rect(r, flags));
      break;
    }
    case 0x400D:
      path = LinePath(ReadCounted(r, flags), (flags & ClosedFlag) != 0);
      break;
    case 0x400F:
      path.addEllipse(Rect(r, flags));
      break;
    case 0x4011:
    case 0x4012: {
      const double start = ReadAngle(r);
      const double sweep = ReadAngle(r);
      const QRectF box = Rect(r, flags);
      const bool pie = type == 0x4011;
      if (pie) path.moveTo(box.center());
      AddArc(path, box, start, sweep, pie);
      if (pie) path.closeSubpath();
      break;
    }
    case 0x4015:
      path = At<QPainterPath>(flags & 0xFF);
      pen = r.U32();
      break;
    case 0x4017: {
      const double tension = ReadAngle(r);
      path = ClosedCurve(ReadCounted(r, flags), tension);
      break;
    }
    case 0x4018: {
      const double tension = ReadAngle(r);
      const std::size_t first = r.U32();
      const std::size_t segments = r.U32();
      const Points points = ReadCounted(r, flags);
      if (points.empty() || first + segments > points.size() - 1) throw SkipRecord();
      path = CurvePath(points, tension, false, {first, segments});
      break;
    }
    case 0x4019: {
      const Points points = ReadCounted(r, flags);
      if (points.empty()) return true;
      path.moveTo(points[0]);
      for (std::size_t i = 1; i + 2 < points.size(); i += 3)
        path.cubicTo(points[i], points[i + 1], points[i + 2]);
      break;
    }
    default:
      return false;
  }
  Stroke(path, pen);
  return true;
}

bool EmfPlusPlayer::PlayImage(std::uint32_t type, std::uint32_t flags, ByteReader& r) {
  if (type != 0x401A && type != 0x401B) return false;
  r.Skip(8);
  const QRectF source = ReadRectF(r);
  Points corners;
  if (type == 0x401A) {
    const QRectF to = Rect(r, flags);
    corners = {to.topLeft(), to.topRight(), to.bottomLeft()};
  } else {
    corners = ReadCounted(r, flags);
    if (corners.size() < 3) throw OutOfBytes();
  }
  draw_.Parallelogram(At<QImage>(flags & 0xFF), source, corners);
  return true;
}

}  // namespace tarvis
