#include <cmath>

#include "pictures/metafile/emf_plus_player.h"

namespace tarvis {
namespace {

constexpr std::uint32_t ColorFlag = 0x8000, CompressedFlag = 0x4000, ClosedFlag = 0x2000,
                        RelativeFlag = 0x0800;
constexpr std::uint32_t AlignCenter = 6, AlignRight = 2, AlignBaseline = 24;

Points ReadCounted(ByteReader& r, std::uint32_t flags) {
  const std::size_t count = r.U32();
  if ((flags & RelativeFlag) != 0) throw SkipRecord();
  return ReadPlusPoints(r, count, (flags & CompressedFlag) != 0);
}

QPainterPath LinePath(const Points& points, bool closed) {
  QPainterPath path;
  if (points.empty()) return path;
  path.moveTo(points[0]);
  for (std::size_t i = 1; i < points.size(); ++i) path.lineTo(points[i]);
  if (closed) path.closeSubpath();
  return path;
}

// A cardinal spline through all points.
QPainterPath CurvePath(const Points& points, double tension, bool closed) {
  QPainterPath path;
  if (points.size() < 2) return path;
  const std::size_t count = points.size();
  const auto at = [&](std::ptrdiff_t i) {
    const std::ptrdiff_t n = static_cast<std::ptrdiff_t>(count);
    return points[static_cast<std::size_t>(closed ? (i + n) % n : std::clamp<std::ptrdiff_t>(i, 0, n - 1))];
  };
  path.moveTo(points[0]);
  for (std::size_t k = 0; k + (closed ? 0 : 1) < count; ++k) {
    const auto i = static_cast<std::ptrdiff_t>(k);
    path.cubicTo(at(i) + (at(i + 1) - at(i - 1)) * tension / 3, at(i + 1) - (at(i + 2) - at(i)) * tension / 3,
                 at(i + 1));
  }
  return path;
}

double ReadAngle(ByteReader& r) {
  const double degrees = static_cast<double>(r.F32());
  if (!std::isfinite(degrees) || std::abs(degrees) > 1e6) throw SkipRecord();
  return degrees;
}

}  // namespace

ListBrush EmfPlusPlayer::BrushOf(std::uint32_t flags, std::uint32_t brush) const {
  if ((flags & ColorFlag) != 0) return {QBrush(PlusColor(brush)), {}};
  ListBrush list = At<ListBrush>(brush);
  if (list.Brush.gradient() != nullptr)
    list.Brush.setTransform(list.Brush.transform() * draw_.Dc().ToDevice());
  return list;
}

void EmfPlusPlayer::Fill(const QPainterPath& path, std::uint32_t flags, std::uint32_t brush) {
  const ListBrush list = BrushOf(flags, brush);
  draw_.Paint(path, nullptr, &list);
}

void EmfPlusPlayer::Stroke(const QPainterPath& path, std::uint32_t pen) {
  const PlusPen& plus = At<PlusPen>(pen & 0xFF);
  ListPen list = plus.Pen;
  list.Width = plus.InPixels ? plus.Width : plus.Width * draw_.Dc().Scale();
  list.Hairline = list.Width == 0;
  draw_.Paint(path, &list, nullptr);
}

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
      path = CurvePath(ReadCounted(r, flags), tension, true);
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
      path = CurvePath(ReadCounted(r, flags), tension, true);
      break;
    }
    case 0x4018: {
      const double tension = ReadAngle(r);
      const std::size_t first = r.U32();
      const std::size_t segments = r.U32();
      const Points points = ReadCounted(r, flags);
      if (first != 0 || segments + 1 != points.size()) throw SkipRecord();
      path = CurvePath(points, tension, false);
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

bool EmfPlusPlayer::PlayText(std::uint32_t type, std::uint32_t flags, ByteReader& r) {
  if (type == 0x401C) String(flags, r);
  if (type == 0x4036) DriverString(flags, r);
  return type == 0x401C || type == 0x4036;
}

void EmfPlusPlayer::SetFont(std::uint32_t flags, std::uint32_t brush) {
  draw_.State().Font = std::make_shared<MetaFont>(At<PlusFont>(flags & 0xFF).Font);
  const QBrush ink = BrushOf(flags, brush).Brush;
  draw_.State().TextColor = ink.gradient() != nullptr ? ink.gradient()->stops().first().second : ink.color();
}

void EmfPlusPlayer::String(std::uint32_t flags, ByteReader& r) {
  constexpr double paddingEms = 1.0 / 6;
  const std::uint32_t brush = r.U32();
  const std::uint32_t formatIndex = r.U32();
  const std::size_t length = r.U32();
  const QRectF box = ReadRectF(r);
  const std::vector<TextCharacter> text = DecodeUnits(r.Take(length * 2));
  SetFont(flags, brush);
  PlusFormat format;
  if (formatIndex < objects_.size() && std::holds_alternative<PlusFormat>(objects_[formatIndex]))
    format = std::get<PlusFormat>(objects_[formatIndex]);
  std::vector<TextRecord> lines(1);
  for (const TextCharacter& character : text) {
    if (character.Code == U'\n') lines.emplace_back();
    if (character.Code >= U' ') lines.back().Text.push_back(character);
  }
  const double em = -draw_.State().Font->Height;
  const double pitch = em * 1.15;
  const double spare = box.height() - pitch * static_cast<double>(lines.size());
  double y = box.top() + (format.LineAlign == 1 ? spare / 2 : format.LineAlign == 2 ? spare : 0);
  draw_.State().TextAlign = format.Align == 1 ? AlignCenter : format.Align == 2 ? AlignRight : 0;
  const double x = format.Align == 1   ? box.center().x()
                   : format.Align == 2 ? box.right() - em * paddingEms
                                       : box.left() + em * paddingEms;
  for (TextRecord& line : lines) {
    line.Reference = {x, y};
    line.Options = TextNoBox;
    draw_.Text(line);
    y += pitch;
  }
}

void EmfPlusPlayer::DriverString(std::uint32_t flags, ByteReader& r) {
  enum : std::uint32_t { Characters = 1, Vertical = 2 };
  const std::uint32_t brush = r.U32();
  const std::uint32_t options = r.U32();
  const bool hasMatrix = r.U32() != 0;
  const std::size_t count = r.U32();
  if (count > r.Left() / 10) throw OutOfBytes();
  if ((options & Characters) == 0 || (options & Vertical) != 0 || hasMatrix) throw SkipRecord();
  const Bytes codes = r.Take(count * 2);
  SetFont(flags, brush);
  draw_.State().TextAlign = AlignBaseline;
  for (std::size_t i = 0; i < count; ++i) {
    TextRecord text;
    text.Text = DecodeUnits(codes.subspan(i * 2, 2));
    text.Reference = ReadPointF(r);
    text.Options = TextNoBox;
    draw_.Text(text);
  }
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
