// Brushes of the extended records: solid, gradients, hatches and textures.
#include <algorithm>
#include <cmath>

#include "pictures/metafile/emf_plus/emf_plus_objects.h"
#include "pictures/metafile/emf_plus/hatch_patterns.h"

namespace tarvis {
namespace {

// The stops of a gradient, between its two colours or of its own.
void SetStops(QGradient& gradient, ByteReader& reader, std::uint32_t flags, QColor from, QColor to) {
  enum : std::uint32_t { PresetColors = 4, BlendFactors = 8 };
  gradient.setColorAt(0, from);
  gradient.setColorAt(1, to);
  if ((flags & (PresetColors | BlendFactors)) == 0) return;
  const std::size_t count = reader.U32();
  if (count > reader.Left() / 8) throw OutOfBytes();
  std::vector<double> places;
  for (std::size_t i = 0; i < count; ++i) places.push_back(std::clamp(ReadF(reader), 0.0, 1.0));
  for (const double place : places) {
    if ((flags & PresetColors) != 0) {
      gradient.setColorAt(place, PlusColor(reader.U32()));
      continue;
    }
    const auto part = static_cast<float>(std::clamp(ReadF(reader), 0.0, 1.0));
    const auto mix = [part](float a, float b) { return a + (b - a) * part; };
    gradient.setColorAt(place,
                        QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()),
                                         mix(from.blueF(), to.blueF()), mix(from.alphaF(), to.alphaF())));
  }
}

PlusBrush LinearGradient(ByteReader& reader) {
  enum : std::uint32_t { HasTransform = 2 };
  const std::uint32_t flags = reader.U32();
  const std::uint32_t wrap = reader.U32();
  const QRectF box = ReadRectF(reader);
  const QColor from = PlusColor(reader.U32());
  const QColor to = PlusColor(reader.U32());
  reader.Skip(8);
  QTransform transform;
  if ((flags & HasTransform) != 0) transform = ReadTransformF(reader);
  QLinearGradient gradient(box.topLeft(), box.topRight());
  gradient.setSpread(wrap == 0   ? QGradient::RepeatSpread
                     : wrap == 4 ? QGradient::PadSpread
                                 : QGradient::ReflectSpread);
  SetStops(gradient, reader, flags, from, to);
  ListBrush brush{QBrush(gradient)};
  brush.Brush.setTransform(transform);
  return {brush, nullptr};
}

PlusBrush PathGradientBrush(ByteReader& reader) {
  enum : std::uint32_t { HasPath = 1, HasTransform = 2 };
  const std::uint32_t flags = reader.U32();
  reader.Skip(4);
  auto gradient = std::make_shared<PathGradient>();
  gradient->Inside = PlusColor(reader.U32());
  gradient->Center = ReadPointF(reader);
  const std::size_t colors = reader.U32();
  if (colors > reader.Left() / 4) throw OutOfBytes();
  for (std::size_t i = 0; i < colors; ++i) gradient->Around.push_back(PlusColor(reader.U32()));
  if (colors == 0) gradient->Around.push_back(gradient->Inside);
  const std::size_t size = reader.U32();
  if ((flags & HasPath) != 0) {
    ByteReader path(reader.Take(size));
    gradient->Outline = ReadPlusPath(path);
  } else {
    const Points points = ReadPlusPoints(reader, size, 0);
    gradient->Outline.addPolygon(QPolygonF(QList<QPointF>(points.begin(), points.end())));
  }
  gradient->Outline.closeSubpath();
  if ((flags & HasTransform) != 0) gradient->Transform = ReadTransformF(reader);
  QLinearGradient stops;
  SetStops(stops, reader, flags, gradient->Around[0], gradient->Inside);
  gradient->Stops = stops.stops();
  return {ListBrush{QBrush(gradient->Around[0])}, gradient};
}

// A hatch of lines: how far apart and how wide they are, in dots.
struct LineHatch {
  std::uint32_t Number;
  Qt::BrushStyle Style;
  double Step = 8;
  double Line = 1;
};

constexpr LineHatch LineHatches[] = {
    {0, Qt::HorPattern},          {1, Qt::VerPattern},          {2, Qt::FDiagPattern},
    {3, Qt::BDiagPattern},        {4, Qt::CrossPattern},        {5, Qt::DiagCrossPattern},
    {18, Qt::FDiagPattern, 4, 1}, {19, Qt::BDiagPattern, 4, 1}, {20, Qt::FDiagPattern, 4, 2},
    {21, Qt::BDiagPattern, 4, 2}, {22, Qt::FDiagPattern, 8, 3}, {23, Qt::BDiagPattern, 8, 3},
    {24, Qt::VerPattern, 4, 1},   {25, Qt::HorPattern, 4, 1},   {26, Qt::VerPattern, 2, 1},
    {27, Qt::HorPattern, 2, 1},   {28, Qt::VerPattern, 4, 2},   {29, Qt::HorPattern, 4, 2},
    {48, Qt::CrossPattern, 4, 1},  // the small grid
    {51, Qt::DiagCrossPattern},    // outlined diamonds
};

PlusBrush HatchBrush(ByteReader& reader) {
  const std::uint32_t hatch = reader.U32();
  const QColor lines = PlusColor(reader.U32());
  const QColor background = PlusColor(reader.U32());
  const auto* const form = std::ranges::find(LineHatches, hatch, &LineHatch::Number);
  if (form != std::end(LineHatches))
    return {{.Brush = QBrush(lines, form->Style),
             .Background = background,
             .HatchStep = form->Step,
             .HatchLine = form->Line},
            nullptr};
  const HatchDots dots = FindHatchDots(hatch);
  if (!HasDots(dots)) throw SkipRecord();
  return {{.Brush = QBrush(lines), .Background = background, .Dots = dots}, nullptr};
}

// A pixel of the picture takes a unit of the world.
PlusBrush TextureBrush(ByteReader& reader) {
  enum : std::uint32_t { HasTransform = 2 };
  const std::uint32_t flags = reader.U32();
  reader.Skip(4);
  QTransform transform;
  if ((flags & HasTransform) != 0) transform = ReadTransformF(reader);
  ListBrush brush{QBrush(ReadPlusImage(reader))};
  brush.Brush.setTransform(transform);
  brush.Placed = true;
  return {brush, nullptr};
}

}  // namespace

PlusBrush ReadPlusBrush(ByteReader& reader) {
  enum : std::uint32_t { Solid = 0, Hatch = 1, Texture = 2, Path = 3, Linear = 4 };
  reader.Skip(4);
  switch (reader.U32()) {
    case Solid:
      return {ListBrush{QBrush(PlusColor(reader.U32()))}, nullptr};
    case Hatch:
      return HatchBrush(reader);
    case Texture:
      return TextureBrush(reader);
    case Path:
      return PathGradientBrush(reader);
    case Linear:
      return LinearGradient(reader);
    default:
      throw SkipRecord();
  }
}

}  // namespace tarvis
