// Canvases on the toolkit's painter.
#pragma once

#include <QPainter>

#include "preview/paint/page_painter.h"
#include "preview/paint/report_font.h"

namespace tarvis {

// The painter's transform must map twips to the device, without rotation. Must be used on the thread on which
// it was made.
class PainterCanvas : public Canvas {
 public:
  // `codePage` is that of the document.
  explicit PainterCanvas(QPainter& painter, int codePage = 0)
      : painter_(painter), font_(ReportFont::OfThisThread(codePage)) {}

  void Fill(const std::vector<Rect>& boxes, Color color) override;
  void Frame(const std::vector<Rect>& boxes, float width) override;
  void Strokes(const std::vector<Rect>& lines, float width) override;
  void Text(const TextPiece& piece, const TextStyle& style, const Rect& box) override;
  void Picture(const tarvis::Picture& picture, const Rect& box) override;

 protected:
  QPainter& painter_;

 private:
  void Runs(const TextPiece& piece, const TextStyle& style, const QPointF& start);

  ReportFont& font_;
};

// The same for pixels: edges and straight lines are placed on whole pixels, so that tables are sharp at any
// zoom.
class PixelCanvas : public PainterCanvas {
 public:
  explicit PixelCanvas(QPainter& painter, int codePage = 0)
      : PainterCanvas(painter, codePage), toDevice_(painter.deviceTransform()) {}

  void Fill(const std::vector<Rect>& boxes, Color color) override;
  void Frame(const std::vector<Rect>& boxes, float width) override;
  void Strokes(const std::vector<Rect>& lines, float width) override;

 private:
  // A line's width in pixels, at least one; thinner ones are grey instead, as grey as they are wide.
  struct Pen {
    int Pixels;
    QColor Ink;
  };
  Pen PenFor(float width) const;
  // Until the painter is restored it fills whole pixels; where grey lines meet or cross, the darker one
  // stays.
  void StartPixels(const Pen& pen);
  // First pixel of a line whose middle is at `middle`.
  static int FirstPixel(double middle, int pixels);

  QTransform toDevice_;
};

}  // namespace tarvis
