// Boxes, and outlines of the round shapes, in logical units.
#pragma once

#include <QPainterPath>
#include <QRectF>

namespace tarvis {

// The rectangle between two corners in any order.
inline QRectF BoxOf(QPointF a, QPointF b) {
  return QRectF(a, b).normalized();
}

// How the ends of an arc are joined.
enum class ArcKind { Open, Chord, Pie };

// The part of the ellipse in `box` from the ray through `start` to the one through `end`. `clockwise` is
// meant with y downwards. Equal rays give the whole ellipse.
struct ArcShape {
  QRectF Box;
  QPointF Start;
  QPointF End;
  bool Clockwise = false;
};

QPainterPath ArcPath(const ArcShape& arc, ArcKind kind);
// Where an arc starts and ends.
QPointF ArcPoint(const QRectF& box, const QPointF& ray);

// An arc by angles, in degrees, clockwise with y downwards, added to a path with a line to its start.
void AddArc(QPainterPath& path, const QRectF& box, double startDegrees, double sweepDegrees, bool connect);

}  // namespace tarvis
