#include "preview/paint/painter_canvas.h"

#include <QGlyphRun>
#include <QPaintEngine>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "pictures/paintable_picture.h"
#include "preview/paint/text_run.h"
#include "preview/paint/toolkit_geometry.h"
#include "report/engine/text_measurer.h"

namespace tarvis {
namespace {

QLineF ToLine(const Rect& line) {
  const QRectF place = ToRectF(line);
  return {place.topLeft(), place.bottomRight()};
}

QPen SolidPen(float width) {
  return QPen(Qt::black, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
}

QPen LinePen(float width) {
  return QPen(Qt::black, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
}

QColor ToColor(Color color) {
  return QColor(static_cast<QRgb>(0xFF000000U | color));
}

// Pixels to the em from which on letters on a screen are filled outlines.
constexpr double OutlinePixels = 64;

// The toolkit would fill the same outlines of large letters; but from 6.11 on it fills nothing where the size
// of a raw font was set.
bool PaintsOutlines(const QPainter& painter, double em) {
  return painter.paintEngine()->type() == QPaintEngine::Raster &&
         em * em * std::abs(painter.deviceTransform().determinant()) >= OutlinePixels * OutlinePixels;
}

void FillOutlines(QPainter& painter, const QRawFont& face, const TextRun& run, const QPointF& start) {
  QPainterPath outlines;
  outlines.setFillRule(Qt::WindingFill);
  for (qsizetype index = 0; index < run.Glyphs.size(); ++index)
    outlines.addPath(face.pathForGlyph(run.Glyphs[index]).translated(start + run.Places[index]));
  const bool isSmooth = painter.testRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::Antialiasing,
                        isSmooth || painter.testRenderHint(QPainter::TextAntialiasing));
  painter.fillPath(outlines, ToColor(Black));
  painter.setRenderHint(QPainter::Antialiasing, isSmooth);
}

}  // namespace

void PainterCanvas::Fill(const std::vector<Rect>& boxes, Color color) {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  for (const Rect& box : boxes) path.addRect(ToRectF(box));
  painter_.fillPath(path, ToColor(color));
}

void PainterCanvas::Frame(const std::vector<Rect>& boxes, float width) {
  QPainterPath path;
  for (const Rect& box : boxes) path.addRect(ToRectF(box));
  painter_.strokePath(path, SolidPen(width));
}

void PainterCanvas::Strokes(const std::vector<Rect>& lines, float width) {
  QList<QLineF> all;
  for (const Rect& line : lines) all.append(ToLine(line));
  painter_.setPen(LinePen(width));
  painter_.drawLines(all);
}

void PainterCanvas::Text(const TextPiece& piece, const TextStyle& style, const Rect& box) {
  const double baseline = BaselineOf(piece, style, box);
  const QPointF start(box.Left, baseline);
  const TextFit fit = FitText(piece, box);
  const std::optional<Rect> clip = ClipOfText(fit, style, box);
  if (fit.Stretch >= 1 && !clip) {
    Runs(piece, style, start);
    return;
  }
  painter_.save();
  if (clip) painter_.setClipRect(ToRectF(*clip), Qt::IntersectClip);
  painter_.translate(start);
  painter_.scale(fit.Stretch, 1);
  Runs(piece, style, {});
  painter_.restore();
}

void PainterCanvas::Runs(const TextPiece& piece, const TextStyle& style, const QPointF& start) {
  painter_.setPen(ToColor(Black));
  const double em = style.Size * TwipsPerPoint;
  const bool paintsOutlines = PaintsOutlines(painter_, em);
  for (const TextRun& run : MakeRuns(piece, style, font_)) {
    const QRawFont& face = font_.FaceAt(run.Face, em);
    if (paintsOutlines) {
      FillOutlines(painter_, face, run, start);
      continue;
    }
    QGlyphRun glyphs;
    glyphs.setRawFont(face);
    glyphs.setGlyphIndexes(run.Glyphs);
    glyphs.setPositions(run.Places);
    painter_.drawGlyphRun(start, glyphs);
  }
}

void PainterCanvas::Picture(const tarvis::Picture& picture, const Rect& box) {
  const auto* paintable = dynamic_cast<const PaintablePicture*>(&picture);
  if (paintable == nullptr) return;
  painter_.save();
  painter_.setClipRect(ToRectF(box), Qt::IntersectClip);  // as in a PDF
  paintable->Paint(painter_, ToRectF(box));
  painter_.restore();
}

PixelCanvas::Pen PixelCanvas::PenFor(float width) const {
  const double pixels = width * toDevice_.m11();
  const int grey = 255 - static_cast<int>(std::lround(255 * std::clamp(pixels, 0.15, 1.0)));
  return {std::max(1, NearestPixel(pixels)), QColor(grey, grey, grey)};
}

void PixelCanvas::StartPixels(const Pen& pen) {
  painter_.setWorldMatrixEnabled(false);
  if (pen.Ink != Qt::black) painter_.setCompositionMode(QPainter::CompositionMode_Darken);
}

int PixelCanvas::FirstPixel(double middle, int pixels) {
  return NearestPixel(middle - pixels / 2.0);
}

void PixelCanvas::Fill(const std::vector<Rect>& boxes, Color color) {
  painter_.save();
  painter_.setWorldMatrixEnabled(false);
  for (const Rect& box : boxes) {
    const QRectF place = toDevice_.mapRect(ToRectF(box));
    const QPoint topLeft(NearestPixel(place.left()), NearestPixel(place.top()));
    const QPoint end(NearestPixel(place.right()), NearestPixel(place.bottom()));
    painter_.fillRect(QRect(topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())), ToColor(color));
  }
  painter_.restore();
}

void PixelCanvas::Frame(const std::vector<Rect>& boxes, float width) {
  const Pen pen = PenFor(width);
  painter_.save();
  StartPixels(pen);
  for (const Rect& box : boxes) {
    const QRectF place = toDevice_.mapRect(ToRectF(box));
    const int left = FirstPixel(place.left(), pen.Pixels);
    const int right = FirstPixel(place.right(), pen.Pixels);
    const int top = FirstPixel(place.top(), pen.Pixels);
    const int bottom = FirstPixel(place.bottom(), pen.Pixels);
    const int across = right - left + pen.Pixels;
    painter_.fillRect(left, top, across, pen.Pixels, pen.Ink);
    painter_.fillRect(left, bottom, across, pen.Pixels, pen.Ink);
    painter_.fillRect(left, top, pen.Pixels, bottom - top, pen.Ink);
    painter_.fillRect(right, top, pen.Pixels, bottom - top, pen.Ink);
  }
  painter_.restore();
}

void PixelCanvas::Strokes(const std::vector<Rect>& lines, float width) {
  const Pen pen = PenFor(width);
  std::vector<Rect> slanted;
  painter_.save();
  StartPixels(pen);
  for (const Rect& line : lines) {
    const QRectF place = toDevice_.mapRect(ToRectF(line).normalized());
    const int left = NearestPixel(place.left());
    const int top = NearestPixel(place.top());
    if (line.Height == 0) {
      painter_.fillRect(left, FirstPixel(place.top(), pen.Pixels), NearestPixel(place.right()) - left,
                        pen.Pixels, pen.Ink);
    } else if (line.Width == 0) {
      painter_.fillRect(FirstPixel(place.left(), pen.Pixels), top, pen.Pixels,
                        NearestPixel(place.bottom()) - top, pen.Ink);
    } else {
      slanted.push_back(line);
    }
  }
  painter_.restore();
  if (!slanted.empty()) PainterCanvas::Strokes(slanted, width);
}

}  // namespace tarvis
