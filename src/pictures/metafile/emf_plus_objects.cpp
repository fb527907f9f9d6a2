#include "pictures/metafile/emf_plus_objects.h"

#include <QBuffer>
#include <QImageReader>
#include <cmath>
#include <utility>

namespace tarvis {
namespace {

constexpr qint64 MostImagePixels = 16 << 20;

double ReadF(ByteReader& r) {
  const double value = static_cast<double>(r.F32());
  if (!std::isfinite(value) || std::abs(value) > 1e9) throw SkipRecord();
  return value;
}

// The stops of a gradient, between its two colours or of its own.
void SetStops(QGradient& gradient, ByteReader& r, std::uint32_t flags, QColor from, QColor to) {
  enum : std::uint32_t { PresetColors = 4, BlendFactors = 8 };
  gradient.setColorAt(0, from);
  gradient.setColorAt(1, to);
  if ((flags & (PresetColors | BlendFactors)) == 0) return;
  const std::size_t count = r.U32();
  if (count > r.Left() / 8) throw OutOfBytes();
  std::vector<double> places;
  for (std::size_t i = 0; i < count; ++i) places.push_back(std::clamp(ReadF(r), 0.0, 1.0));
  for (const double place : places) {
    if ((flags & PresetColors) != 0) {
      gradient.setColorAt(place, PlusColor(r.U32()));
      continue;
    }
    const float part = static_cast<float>(std::clamp(ReadF(r), 0.0, 1.0));
    const auto mix = [part](float a, float b) { return a + (b - a) * part; };
    gradient.setColorAt(place,
                        QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()),
                                         mix(from.blueF(), to.blueF()), mix(from.alphaF(), to.alphaF())));
  }
}

ListBrush LinearGradient(ByteReader& r) {
  enum : std::uint32_t { HasTransform = 2 };
  const std::uint32_t flags = r.U32();
  const std::uint32_t wrap = r.U32();
  const QRectF box = ReadRectF(r);
  const QColor from = PlusColor(r.U32());
  const QColor to = PlusColor(r.U32());
  r.Skip(8);
  QTransform transform;
  if ((flags & HasTransform) != 0) transform = ReadTransformF(r);
  QLinearGradient gradient(box.topLeft(), box.topRight());
  gradient.setSpread(wrap == 0   ? QGradient::RepeatSpread
                     : wrap == 4 ? QGradient::PadSpread
                                 : QGradient::ReflectSpread);
  SetStops(gradient, r, flags, from, to);
  ListBrush brush{QBrush(gradient), {}};
  brush.Brush.setTransform(transform);
  return brush;
}

// Shown as rings around its centre.
ListBrush PathGradient(ByteReader& r) {
  enum : std::uint32_t { HasPath = 1, HasTransform = 2 };
  const std::uint32_t flags = r.U32();
  r.Skip(4);
  const QColor inside = PlusColor(r.U32());
  const QPointF center = ReadPointF(r);
  const std::size_t colors = r.U32();
  if (colors > r.Left() / 4) throw OutOfBytes();
  const QColor outside = colors == 0 ? inside : PlusColor(r.U32());
  r.Skip(colors == 0 ? 0 : (colors - 1) * 4);
  QRectF box;
  const std::size_t size = r.U32();
  if ((flags & HasPath) != 0) {
    ByteReader path(r.Take(size));
    box = std::get<QPainterPath>(ReadPlusObject(PlusKind::Path, path)).boundingRect();
  } else {
    for (const QPointF& point : ReadPlusPoints(r, size, false))
      box = box.united(QRectF(point, QSizeF(1e-3, 1e-3)));
  }
  QTransform transform;
  if ((flags & HasTransform) != 0) transform = ReadTransformF(r);
  QRadialGradient gradient(center, std::max(box.width(), box.height()) / 2);
  gradient.setColorAt(0, inside);
  gradient.setColorAt(1, outside);
  ListBrush brush{QBrush(gradient), {}};
  brush.Brush.setTransform(transform);
  return brush;
}

ListBrush HatchBrush(ByteReader& r) {
  constexpr Qt::BrushStyle hatches[] = {Qt::HorPattern,   Qt::VerPattern,   Qt::FDiagPattern,
                                        Qt::BDiagPattern, Qt::CrossPattern, Qt::DiagCrossPattern};
  const std::uint32_t hatch = r.U32();
  const QColor lines = PlusColor(r.U32());
  const QColor behind = PlusColor(r.U32());
  if (hatch < std::size(hatches)) return {QBrush(lines, hatches[hatch]), behind};
  // Percentages: as even a mixture as the eye sees.
  constexpr int percents[] = {5, 10, 20, 25, 30, 40, 50, 60, 70, 75, 80, 90};
  if (hatch - 6 >= std::size(percents)) throw SkipRecord();
  const int part = percents[hatch - 6];
  const auto mix = [part](int a, int b) { return (a * part + b * (100 - part)) / 100; };
  return {QBrush(QColor(mix(lines.red(), behind.red()), mix(lines.green(), behind.green()),
                        mix(lines.blue(), behind.blue()), mix(lines.alpha(), behind.alpha()))),
          {}};
}

ListBrush ReadBrush(ByteReader& r) {
  enum : std::uint32_t { Solid = 0, Hatch = 1, Texture = 2, Path = 3, Linear = 4 };
  r.Skip(4);
  switch (r.U32()) {
    case Solid:
      return {QBrush(PlusColor(r.U32())), {}};
    case Hatch:
      return HatchBrush(r);
    case Texture: {
      const std::uint32_t flags = r.U32();
      r.Skip(4);
      if ((flags & 2) != 0) r.Skip(24);
      return {QBrush(std::get<QImage>(ReadPlusObject(PlusKind::Image, r))), {}};
    }
    case Path:
      return PathGradient(r);
    case Linear:
      return LinearGradient(r);
    default:
      throw SkipRecord();
  }
}

QList<qreal> ReadFloats(ByteReader& r) {
  const std::size_t count = r.U32();
  if (count > r.Left() / 4) throw OutOfBytes();
  QList<qreal> values;
  for (std::size_t i = 0; i < count; ++i) values.append(ReadF(r));
  return values;
}

void SetLineStyle(QPen& pen, std::uint32_t style) {
  constexpr Qt::PenStyle styles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine,
                                     Qt::DashDotDotLine};
  if (style == 0 || style >= std::size(styles)) return;
  const QList<qreal> tables[] = {{}, {3, 1}, {1, 1}, {3, 1, 1, 1}, {3, 1, 1, 1, 1, 1}};
  pen.setDashPattern(tables[style]);
}

PlusPen ReadPen(ByteReader& r) {
  r.Skip(8);
  const std::uint32_t flags = r.U32();
  PlusPen pen;
  const std::uint32_t unit = r.U32();
  pen.InPixels = unit == 2;
  pen.Width = std::abs(ReadF(r));
  QPen& line = pen.Pen.Pen;
  line.setCapStyle(Qt::FlatCap);
  line.setJoinStyle(Qt::SvgMiterJoin);
  const auto has = [flags](std::uint32_t bit) { return (flags & bit) != 0; };
  if (has(0x1)) r.Skip(24);
  if (has(0x2)) {
    const std::uint32_t cap = r.U32();
    line.setCapStyle(cap == 1 ? Qt::SquareCap : cap == 2 ? Qt::RoundCap : Qt::FlatCap);
  }
  if (has(0x4)) r.Skip(4);
  if (has(0x8)) {
    const std::uint32_t join = r.U32();
    line.setJoinStyle(join == 1 ? Qt::BevelJoin : join == 2 ? Qt::RoundJoin : Qt::SvgMiterJoin);
  }
  if (has(0x10)) line.setMiterLimit(std::max(1.0, ReadF(r)));
  if (has(0x20)) SetLineStyle(line, r.U32());
  if (has(0x40)) r.Skip(4);
  const double offset = has(0x80) ? ReadF(r) : 0;
  if (has(0x100)) {
    QList<qreal> dashes = ReadFloats(r);
    for (qreal& dash : dashes) dash = std::clamp(dash, 0.01, 1e6);
    if (dashes.size() % 2 == 1) dashes.append(QList<qreal>(dashes));
    if (!dashes.isEmpty()) line.setDashPattern(dashes);
  }
  if (has(0x80) && line.style() != Qt::SolidLine) line.setDashOffset(offset);
  if (has(0x200)) r.Skip(4);
  if (has(0x400)) ReadFloats(r);
  if (has(0x800)) r.Skip(r.U32());
  if (has(0x1000)) r.Skip(r.U32());
  const ListBrush brush = ReadBrush(r);
  if (brush.Brush.style() == Qt::SolidPattern) {
    line.setColor(brush.Brush.color());
  } else if (brush.Brush.gradient() != nullptr) {
    line.setColor(brush.Brush.gradient()->stops().first().second);
  }
  return pen;
}

QPainterPath ReadPath(ByteReader& r) {
  enum : unsigned { Kind = 0xF, Line = 1, Curve = 3, Close = 0x80 };
  enum : std::uint32_t { Relative = 0x800, RunLengths = 0x1000, Compressed = 0x4000 };
  r.Skip(4);
  const std::size_t count = r.U32();
  const std::uint32_t flags = r.U32();
  if ((flags & (Relative | RunLengths)) != 0) throw SkipRecord();
  const Points points = ReadPlusPoints(r, count, (flags & Compressed) != 0);
  const Bytes kinds = r.Take(count);
  QPainterPath path;
  for (std::size_t i = 0; i < count; ++i) {
    std::size_t last = i;
    const unsigned kind = kinds[i] & Kind;
    if (kind == 0 || i == 0) path.moveTo(points[i]);
    if (kind == Line && i > 0) path.lineTo(points[i]);
    if (kind == Curve && i > 0) {
      if (i + 2 >= count) throw OutOfBytes();
      path.cubicTo(points[i], points[i + 1], points[i + 2]);
      last = i += 2;
    }
    if ((kinds[last] & Close) != 0) path.closeSubpath();
  }
  return path;
}

QImage FromPixels(ByteReader& r, int width, int height, std::size_t stride, std::uint32_t format) {
  constexpr std::pair<std::uint32_t, QImage::Format> formats[] = {
      {0x26200A, QImage::Format_ARGB32}, {0x22009, QImage::Format_RGB32},
      {0x21808, QImage::Format_BGR888},  {0xE200B, QImage::Format_ARGB32_Premultiplied},
      {0x21005, QImage::Format_RGB555},  {0x21006, QImage::Format_RGB16}};
  for (const auto& [number, kind] : formats) {
    if (number != format) continue;
    if (width < 1 || height < 1 || width > 0x8000 || height > 0x8000) throw SkipRecord();
    const Bytes pixels = r.Take(stride * static_cast<std::size_t>(height));
    QImage image(width, height, kind);
    if (image.isNull() || stride < static_cast<std::size_t>(width * image.depth() / 8)) throw SkipRecord();
    const std::size_t used = static_cast<std::size_t>(width * image.depth() / 8);
    for (int y = 0; y < height; ++y)
      std::ranges::copy(pixels.subspan(static_cast<std::size_t>(y) * stride, used), image.scanLine(y));
    return image;
  }
  throw SkipRecord();
}

QImage ReadImage(ByteReader& r) {
  enum : std::uint32_t { Bitmap = 1, File = 1 };
  r.Skip(4);
  if (r.U32() != Bitmap) throw SkipRecord();
  const int width = r.I32();
  const int height = r.I32();
  const std::size_t stride = r.U32();
  const std::uint32_t format = r.U32();
  if (r.U32() != File) return FromPixels(r, width, height, stride, format);
  const Bytes file = r.Rest();
  QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(file.data()),
                                             static_cast<qsizetype>(file.size()));
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer);
  const QSize size = reader.size();
  if (qint64{size.width()} * size.height() > MostImagePixels) throw SkipRecord();
  const QImage image = reader.read();
  if (image.isNull()) throw SkipRecord();
  return image;
}

PlusFont ReadFont(ByteReader& r) {
  enum : std::uint32_t { Bold = 1, Italic = 2, Underline = 4, StrikeOut = 8 };
  r.Skip(4);
  PlusFont font;
  const double size = ReadF(r);
  const std::uint32_t unit = r.U32();
  const double toPixels = unit == 3   ? 96.0 / 72
                          : unit == 4 ? 96
                          : unit == 5 ? 96.0 / 300
                          : unit == 6 ? 96 / 25.4
                                      : 1;
  font.Font.Height = -size * toPixels;
  const std::uint32_t style = r.U32();
  font.Font.Weight = (style & Bold) != 0 ? 700 : 400;
  font.Font.Italic = (style & Italic) != 0;
  font.Font.Underline = (style & Underline) != 0;
  font.Font.StrikeOut = (style & StrikeOut) != 0;
  r.Skip(4);
  for (std::size_t left = std::min<std::uint32_t>(r.U32(), 64); left > 0; --left)
    font.Font.Face += static_cast<char16_t>(r.U16());
  return font;
}

// A tree of areas that are joined; everything that has no end is a large box.
QPainterPath ReadRegionNode(ByteReader& r, int depth) {
  enum : std::uint32_t { And = 1, Or = 2, Xor = 3, Exclude = 4, Box = 0x10000000, Path, Empty, Infinite };
  constexpr int deepest = 8;
  if (depth > deepest) throw SkipRecord();
  const std::uint32_t kind = r.U32();
  QPainterPath area;
  if (kind == Box) area.addRect(ReadRectF(r));
  if (kind == Infinite) area.addRect(-1e6, -1e6, 2e6, 2e6);
  if (kind == Path) {
    ByteReader path(r.Take(r.U32()));
    return ReadPath(path);
  }
  if (kind >= Box) return area;
  const QPainterPath a = ReadRegionNode(r, depth + 1);
  const QPainterPath b = ReadRegionNode(r, depth + 1);
  if (a.elementCount() + b.elementCount() > 400) throw SkipRecord();
  if (kind == And) return a.intersected(b);
  if (kind == Or) return a.united(b);
  if (kind == Xor) return a.united(b).subtracted(a.intersected(b));
  return kind == Exclude ? a.subtracted(b) : b.subtracted(a);
}

}  // namespace

QColor PlusColor(std::uint32_t argb) {
  return QColor::fromRgba(argb);
}

QPointF ReadPointF(ByteReader& reader) {
  const double x = ReadF(reader);
  return {x, ReadF(reader)};
}

QRectF ReadRectF(ByteReader& reader) {
  const QPointF at = ReadPointF(reader);
  const QPointF size = ReadPointF(reader);
  return {at.x(), at.y(), size.x(), size.y()};
}

QTransform ReadTransformF(ByteReader& reader) {
  double v[6];
  for (double& value : v) value = ReadF(reader);
  return QTransform(v[0], v[1], v[2], v[3], v[4], v[5]);
}

Points ReadPlusPoints(ByteReader& reader, std::size_t count, bool compressed) {
  if (count > reader.Left() / (compressed ? 4 : 8)) throw OutOfBytes();
  Points points(count);
  for (QPointF& point : points) point = compressed ? ReadPoint16(reader) : ReadPointF(reader);
  return points;
}

PlusObject ReadPlusObject(PlusKind kind, ByteReader& reader) {
  switch (kind) {
    case PlusKind::Brush:
      return ReadBrush(reader);
    case PlusKind::Pen:
      return ReadPen(reader);
    case PlusKind::Path:
      return ReadPath(reader);
    case PlusKind::Region:
      reader.Skip(8);
      return ReadRegionNode(reader, 0);
    case PlusKind::Image:
      return ReadImage(reader);
    case PlusKind::Font:
      return ReadFont(reader);
    case PlusKind::Format: {
      reader.Skip(12);
      PlusFormat format;
      format.Align = reader.U32();
      format.LineAlign = reader.U32();
      return format;
    }
  }
  throw SkipRecord();
}

}  // namespace tarvis
