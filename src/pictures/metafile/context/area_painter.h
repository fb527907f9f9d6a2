// Fills areas in logical units: boxes, regions and gradients.
#pragma once

#include "pictures/metafile/context/surface.h"

namespace tarvis {

class AreaPainter {
 public:
  explicit AreaPainter(Surface& surface) : surface_(surface) {}

  void Pixel(QPointF point, QColor color);
  void Box(const QRectF& box, QColor color);
  // With the brush of the context and a ternary raster operation that has no source.
  void PatternBlock(const QRectF& box, std::uint32_t rop);
  // The boxes of a region as a path, in its own units.
  QPainterPath RegionPath(const MetaRegion& region);
  void Region(const MetaRegion& region, const MetaBrush& brush);
  void FrameRegion(const MetaRegion& region, const MetaBrush& brush, QSizeF size);
  void InvertRegion(const MetaRegion& region);
  void GradientBox(const QRectF& box, QColor from, QColor to, bool down);
  // A colour for each of the three corners.
  void GradientTriangle(const std::vector<QPointF>& corners, const std::vector<QColor>& colors);
  // With a pen and a brush of their own, in device units; null is none.
  void Paint(const QPainterPath& logical, const ListPen* pen, const ListBrush* brush);

 private:
  QTransform ToDevice() const { return surface_.ToDevice(); }

  Surface& surface_;
  int triangles_ = 0;
};

}  // namespace tarvis
