// Draws lines and shapes in logical units, with the pen and the brush of the context; into the path while it
// is open.
#pragma once

#include "pictures/metafile/context/geometry.h"
#include "pictures/metafile/context/path_bracket.h"
#include "pictures/metafile/context/surface.h"

namespace tarvis {

using Points = std::vector<QPointF>;

class ShapePainter {
 public:
  ShapePainter(Surface& surface, PathBracket& path) : surface_(surface), path_(path) {}

  void MoveTo(QPointF point);
  void LineTo(QPointF point);
  void Polyline(const Points& points);
  void PolylineTo(const Points& points);
  void PolyPolyline(const std::vector<Points>& lines);
  void Bezier(const Points& points, bool fromPosition);
  void Polygons(const std::vector<Points>& polygons);
  void Rectangle(const QRectF& box);
  void RoundRectangle(const QRectF& box, QSizeF corner);
  void Ellipse(const QRectF& box);
  void Arc(const ArcShape& arc, ArcKind kind, bool to);
  // Draws the path of the bracket, which ends.
  void Path(bool fill, bool stroke);
  void WidenPath();

 private:
  DcState& State() { return surface_.State(); }
  QTransform ToDevice() const { return surface_.ToDevice(); }
  void Shape(const QPainterPath& logical, bool fill, bool stroke);

  Surface& surface_;
  PathBracket& path_;
};

}  // namespace tarvis
