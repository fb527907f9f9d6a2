#include "pictures/metafile/list/draw_list_painter.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <algorithm>
#include <cmath>

#include "pictures/image_picture.h"
#include "pictures/metafile/list/area_coverage.h"
#include "pictures/metafile/list/line_thinning.h"

namespace tarvis {
namespace {

constexpr double HairlineInches = 0.005;
constexpr double ScreenDotsPerInch = 96;
constexpr double MostDashes = 20000;  // in one line; beyond, a dash is no longer seen as one
constexpr int FontPixels = 1000;
constexpr double FinestPrinter = 1200;  // dots to the inch
constexpr int DenseArea = 1000;         // corners
constexpr double WidestPen = 32000;     // of the toolkit

double ScaleOf(const QTransform& transform) {
  return std::sqrt(std::abs(transform.determinant()));
}

bool IsHatch(const ListBrush& brush) {
  const Qt::BrushStyle style = brush.Brush.style();
  return HasDots(brush.Dots) || (style >= Qt::HorPattern && style <= Qt::DiagCrossPattern);
}

QGlyphRun RunOf(const QRawFont& font, const QList<quint32>& glyphs, const QList<QPointF>& places) {
  QGlyphRun run;
  run.setRawFont(font);
  run.setGlyphIndexes(glyphs);
  run.setPositions(places);
  return run;
}

// The box that `path` is, if it is one; else an empty one.
QRectF AsBox(const QPainterPath& path) {
  if (path.elementCount() != 5 && path.elementCount() != 4) return {};
  for (int i = 0; i < path.elementCount(); ++i) {
    const auto here = path.elementAt(i);
    const auto next = path.elementAt((i + 1) % path.elementCount());
    if ((i > 0 && !here.isLineTo()) || (here.x != next.x && here.y != next.y)) return {};
  }
  return path.boundingRect();
}

}  // namespace

DrawListPainter::DrawListPainter(const DrawList& list, QPainter& painter, const QRectF& frame,
                                 const QRectF& target)
    : list_(list), painter_(painter), target_(target) {
  toTarget_ = QTransform::fromTranslate(-frame.left(), -frame.top()) *
              QTransform::fromScale(target.width() / frame.width(), target.height() / frame.height()) *
              QTransform::fromTranslate(target.left(), target.top());
  penScale_ = ScaleOf(toTarget_);
  const double deviceScale = std::max(ScaleOf(painter.deviceTransform()), 1e-9);
  const double dotsPerInch =
      painter.device() == nullptr ? ScreenDotsPerInch : painter.device()->logicalDpiX();
  units_.Pixel = 1 / deviceScale;
  units_.ScreenDot = std::max(dotsPerInch / ScreenDotsPerInch, 1.0) / deviceScale;
  units_.Hairline = std::max(1.0, dotsPerInch * HairlineInches) / deviceScale;
  wholeUnits_ = dotsPerInch >= FinestPrinter && deviceScale == 1;
  units_.OnScreen = painter.paintEngine() != nullptr && painter.paintEngine()->type() == QPaintEngine::Raster;
}

void DrawListPainter::Paint() {
  painter_.save();
  painter_.setRenderHint(QPainter::Antialiasing);
  Clip({});
  for (const ListCommand& command : list_.Commands()) {
    switch (command.Kind) {
      case ListKind::Shape:
        Shape(command);
        break;
      case ListKind::Image:
        Image(list_.Image(command.Index));
        break;
      case ListKind::Clip:
        Clip(list_.Clip(command.Index));
        break;
      case ListKind::Part:
        Part(list_.Parts()[command.Index]);
        break;
    }
  }
  painter_.restore();
}

// In a file, places on whole units take half the room, and no printer is finer.
QPointF DrawListPainter::Map(ListPoint point) const {
  const QPointF place(static_cast<double>(point.X) * toTarget_.m11() + toTarget_.dx(),
                      static_cast<double>(point.Y) * toTarget_.m22() + toTarget_.dy());
  return wholeUnits_ ? place.toPoint().toPointF() : place;
}

QPainterPath DrawListPainter::MakePath(const Outline& outline, bool winding) const {
  QPainterPath path;
  path.setFillRule(winding ? Qt::WindingFill : Qt::OddEvenFill);
  path.reserve(static_cast<int>(outline.PointCount));
  auto point = list_.AllOutlines().Points(outline).begin();
  for (const Verb verb : list_.AllOutlines().Verbs(outline)) {
    if (verb == Verb::Move) path.moveTo(Map(*point++));
    if (verb == Verb::Line) path.lineTo(Map(*point++));
    if (verb == Verb::Curve) {
      path.cubicTo(Map(point[0]), Map(point[1]), Map(point[2]));
      point += 3;
    }
  }
  return path;
}

QPolygonF DrawListPainter::MakeLine(const Outline& outline) const {
  const auto points = list_.AllOutlines().Points(outline);
  QPolygonF line;
  line.reserve(static_cast<qsizetype>(points.size()));
  for (const ListPoint& point : points) line.append(Map(point));
  return ThinnedLine(std::move(line), units_.Pixel / 4);
}

QPen DrawListPainter::MakePen(const ListPen& listPen, double length) const {
  QPen pen = listPen.Pen;
  const double width = listPen.Hairline ? 0 : std::min(listPen.Width * penScale_, WidestPen);
  const double shown = listPen.Hairline ? units_.Hairline : std::max(width, units_.Hairline);
  pen.setWidthF(shown);
  if (pen.brush().gradient() != nullptr) {
    QBrush brush = pen.brush();
    brush.setTransform(brush.transform() * toTarget_);
    pen.setBrush(brush);
  }
  if (pen.style() != Qt::CustomDashLine) return pen;
  // Unless they are placed, dashes count in widths of the pen; those of hairlines in dots of a screen.
  const double unit = listPen.PlacedDashes ? penScale_
                      : listPen.Hairline   ? units_.ScreenDot
                                           : std::max(width, units_.ScreenDot / 2);
  QList<qreal> dashes = pen.dashPattern();
  // A pen that is shown wider than it is must not close the gaps with its round ends.
  const double ends =
      listPen.PlacedDashes && shown > width && pen.capStyle() != Qt::FlatCap ? width / unit : 0;
  if (listPen.PlacedDashes && shown > width) pen.setCapStyle(Qt::FlatCap);
  double sum = 0;
  for (qsizetype i = 0; i < dashes.size(); ++i) {
    const double seen = i % 2 == 0 ? dashes[i] + ends : dashes[i] - ends;
    sum += (dashes[i] = std::max(seen * unit / shown, 0.01));
  }
  if (sum <= 0 || length / (sum * shown) > MostDashes) {
    pen.setStyle(Qt::SolidLine);
  } else {
    pen.setDashPattern(dashes);
  }
  return pen;
}

void DrawListPainter::Shape(const ListCommand& command) {
  if (command.Text >= 0 && !units_.OnScreen && Text(list_.Texts()[static_cast<std::size_t>(command.Text)]))
    return;
  const Outline& outline = list_.AllOutlines().At(command.Index);
  if (outline.VerbCount == 0) {
    const QPolygonF line = MakeLine(outline);
    painter_.setPen(MakePen(list_.Inks().Pen(command.Pen), LengthOf(line)));
    painter_.drawPolyline(line);
    return;
  }
  const QPainterPath path = MakePath(outline, command.Winding);
  if (command.Brush >= 0) Fill(path, list_.Inks().Brush(command.Brush));
  if (command.Pen < 0) return;
  const ListPen& pen = list_.Inks().Pen(command.Pen);
  painter_.strokePath(path, MakePen(pen, pen.Pen.style() == Qt::SolidLine ? 0 : path.length()));
}

// On paper and in files text is text, which can be searched there and weighs little. On a screen its outline
// looks the same and may be painted on any thread.
bool DrawListPainter::Text(const ListText& text) {
  const QTransform toPaper(toTarget_.m11(), 0, 0, toTarget_.m22(), 0, 0);
  const QTransform fontToPaper =
      QTransform::fromScale(1.0 / FontPixels, 1.0 / FontPixels) * text.Em * toPaper;
  if (!fontToPaper.isInvertible() || text.Characters.empty()) return false;
  const QTransform paperToFont = fontToPaper.inverted();
  const QPointF start = toTarget_.map(text.Origins[0]);
  const PlaceInFont place = [&](QPointF point) { return paperToFont.map(toTarget_.map(point) - start); };
  std::vector<QGlyphRun> runs;
  if (text.Flow == TextFlow::Plain) runs = PlainRuns(text, place);
  if (runs.empty()) runs = ShapedRuns(text, place);  // which also finds other fonts for characters
  if (runs.empty()) return false;
  painter_.save();
  painter_.setTransform(fontToPaper * QTransform::fromTranslate(start.x(), start.y()), true);
  painter_.setPen(text.Color);
  for (const QGlyphRun& run : runs) painter_.drawGlyphRun({}, run);
  painter_.restore();
  return true;
}

// None if the named font doesn't have one of the characters.
std::vector<QGlyphRun> DrawListPainter::PlainRuns(const ListText& text, const PlaceInFont& place) {
  const auto known = fonts_.find(text.Font);
  const QRawFont& font =
      known != fonts_.end()
          ? known->second
          : fonts_.emplace(text.Font, QRawFont::fromFont(InstalledFont(text.Font, FontPixels))).first->second;
  QList<quint32> glyphs;
  QList<QPointF> places;
  for (std::size_t i = 0; i < text.Characters.size(); ++i) {
    const QList<quint32> glyph = font.glyphIndexesForString(QString::fromUcs4(&text.Characters[i], 1));
    if (glyph.size() != 1 || glyph[0] == 0) return {};
    glyphs += glyph;
    places << place(text.Origins[i]).toPoint().toPointF();
  }
  return {RunOf(font, glyphs, places)};
}

// None if no font has one of the characters. Letters that run to the left come in the order in which they are
// read, as in the texts of pages.
std::vector<QGlyphRun> DrawListPainter::ShapedRuns(const ListText& text, const PlaceInFont& place) {
  const QString units =
      QString::fromUcs4(text.Characters.data(), static_cast<qsizetype>(text.Characters.size()));
  ShapedText shaped = ShapeText(units, text.Flow, InstalledFont(text.Font, FontPixels));
  if (shaped.CharacterCount != text.Origins.size()) return {};
  std::ranges::sort(shaped.Clusters, {}, &TextCluster::FirstCharacter);
  std::vector<QGlyphRun> runs;
  for (const TextCluster& cluster : shaped.Clusters) {
    const QPointF left = place(LeftOf(cluster, text.Origins, text.Ends));
    for (const TextGlyph& glyph : cluster.Glyphs) {
      if (glyph.Glyph == 0) return {};
      const QPointF offset(glyph.X - cluster.Left, glyph.Y);
      const QPointF origin = (left + offset * FontPixels).toPoint().toPointF();
      runs.push_back(RunOf(shaped.Faces[glyph.Face], {glyph.Glyph}, {origin}));
    }
  }
  return runs;
}

void DrawListPainter::Fill(const QPainterPath& path, const ListBrush& listBrush) {
  if (IsHatch(listBrush)) return PaintHatch(painter_, path, listBrush, target_, units_);
  QBrush brush = listBrush.Brush;
  if (brush.style() == Qt::TexturePattern && !listBrush.Placed) {
    brush.setTransform(QTransform::fromScale(units_.ScreenDot, units_.ScreenDot) *
                       QTransform::fromTranslate(target_.left(), target_.top()));
  } else if (brush.style() == Qt::TexturePattern || brush.gradient() != nullptr) {
    brush.setTransform(brush.transform() * toTarget_);
  }
  const QRectF box =
      units_.OnScreen && painter_.deviceTransform().type() <= QTransform::TxScale ? AsBox(path) : QRectF();
  const bool isDense = box.isEmpty() && units_.OnScreen && path.elementCount() > DenseArea;
  if (isDense && FillDense(path, brush)) return;
  if (box.isEmpty()) {
    painter_.fillPath(path, brush);
    return;
  }
  painter_.setRenderHint(QPainter::Antialiasing, false);
  painter_.fillRect(OnPixels(box), brush);
  painter_.setRenderHint(QPainter::Antialiasing, true);
}

// Nobody sees the difference between points closer than a quarter of a pixel.
bool DrawListPainter::FillDense(const QPainterPath& path, const QBrush& brush) {
  const QTransform& toDevice = painter_.deviceTransform();
  if (brush.style() != Qt::SolidPattern || toDevice.type() > QTransform::TxScale) return false;
  const QRect paper(0, 0, painter_.device()->width(), painter_.device()->height());
  QRectF seen = toDevice.mapRect(path.boundingRect() & target_);
  if (painter_.hasClipping()) seen &= toDevice.mapRect(painter_.clipBoundingRect());
  const QRect pixels = seen.toAlignedRect() & paper;
  if (pixels.isEmpty()) return true;
  std::vector<QPolygonF> area;
  for (const QPolygonF& polygon : path.toSubpathPolygons(toDevice))
    area.push_back(ThinnedLine(polygon, 0.25));
  const QImage image = AreaInColor(area, path.fillRule(), pixels, brush.color());
  painter_.setWorldMatrixEnabled(false);
  painter_.drawImage(pixels.topLeft(), image);
  painter_.setWorldMatrixEnabled(true);
  return true;
}

// Boxes that touch must leave no seam between them on a screen, however thin they are; so each takes whole
// pixels, one at least.
QRectF DrawListPainter::OnPixels(const QRectF& box) const {
  const QTransform& toDevice = painter_.deviceTransform();
  const QRectF device = toDevice.mapRect(box);
  const double left = std::round(device.left()), top = std::round(device.top());
  const QPointF corner(std::max(std::round(device.right()), left + 1),
                       std::max(std::round(device.bottom()), top + 1));
  return toDevice.inverted().mapRect(QRectF(QPointF(left, top), corner));
}

void DrawListPainter::Image(const ListImage& image) {
  const QTransform place = image.Place * toTarget_;
  if (place.type() <= QTransform::TxScale && place.m11() > 0 && place.m22() > 0) {
    DrawImageWell(painter_, place.mapRect(image.Source), image.Image, image.Source);
    return;
  }
  painter_.save();
  painter_.setTransform(place, true);
  painter_.setRenderHint(QPainter::SmoothPixmapTransform);
  painter_.drawImage(image.Source, image.Image, image.Source);
  painter_.restore();
}

void DrawListPainter::Part(const ListPart& part) {
  const QTransform place = part.Place * toTarget_;
  if (place.type() <= QTransform::TxScale && place.m11() > 0 && place.m22() > 0) {
    DrawListPainter(*part.List, painter_, part.Frame, place.mapRect(part.Frame)).Paint();
    return;
  }
  painter_.save();
  painter_.setTransform(place, true);
  DrawListPainter(*part.List, painter_, part.Frame, part.Frame).Paint();
  painter_.restore();
}

void DrawListPainter::Clip(const ListClip& clip) {
  painter_.restore();  // the clip of whoever called stays in force
  painter_.save();
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setClipRect(clip.HasBox ? toTarget_.mapRect(clip.Box) & target_ : target_, Qt::IntersectClip);
  for (const auto& path : clip.Paths) painter_.setClipPath(toTarget_.map(*path), Qt::IntersectClip);
}

}  // namespace tarvis
