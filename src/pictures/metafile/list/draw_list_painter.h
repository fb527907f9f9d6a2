// Paints a draw list with the toolkit's painter: vectors stay vectors on every device.
#pragma once

#include <QGlyphRun>
#include <QPainter>
#include <QRawFont>
#include <functional>
#include <map>
#include <vector>

#include "pictures/metafile/list/draw_list.h"
#include "pictures/metafile/list/hatch_painter.h"

namespace tarvis {

// Maps `frame` of the picture to `target` and draws what lies inside.
class DrawListPainter {
 public:
  DrawListPainter(const DrawList& list, QPainter& painter, const QRectF& frame, const QRectF& target);

  void Paint();

 private:
  QPointF Map(ListPoint point) const;
  QPainterPath MakePath(const Outline& outline, bool winding) const;
  QPolygonF MakeLine(const Outline& outline) const;
  QPen MakePen(const ListPen& pen, double length) const;
  void Shape(const ListCommand& command);
  // False if no installed font has all its characters.
  bool Text(const ListText& text);
  // From a place of the picture to one in units of the font, from where the line starts.
  using PlaceInFont = std::function<QPointF(QPointF)>;
  std::vector<QGlyphRun> PlainRuns(const ListText& text, const PlaceInFont& place);
  static std::vector<QGlyphRun> ShapedRuns(const ListText& text, const PlaceInFont& place);
  void Fill(const QPainterPath& path, const ListBrush& brush);
  // False if it is left to the toolkit.
  bool FillDense(const QPainterPath& path, const QBrush& brush);
  QRectF OnPixels(const QRectF& box) const;
  void Image(const ListImage& image);
  void Clip(const ListClip& clip);
  void Part(const ListPart& part);

  const DrawList& list_;
  QPainter& painter_;
  QRectF target_;
  QTransform toTarget_;
  double penScale_ = 1;  // from widths of the picture to units of the painter
  DeviceUnits units_;
  bool wholeUnits_ = false;
  std::map<OutlineFont, QRawFont> fonts_;  // at FontPixels to the em
};

}  // namespace tarvis
