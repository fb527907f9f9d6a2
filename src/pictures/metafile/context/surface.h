// Where a device context draws: outlines and images in device units go to the draw list, with the clip and
// the pens and brushes of the context.
#pragma once

#include "pictures/metafile/context/device_context.h"
#include "pictures/metafile/context/xor_gradient.h"

namespace tarvis {

class Surface {
 public:
  Surface(DrawList& list, DeviceContext& context) : list_(list), context_(context) {}

  DeviceContext& Context() { return context_; }
  DcState& State() { return context_.State(); }
  const DcState& State() const { return context_.State(); }
  QTransform ToDevice() const { return context_.ToDevice(); }
  PictureBudget& Budget() { return list_.Budget(); }
  // The list with the clip of the context: to be called before each addition.
  DrawList& ClippedList();

  // With the pen and the brush of the context.
  void Shape(const QPainterPath& device, bool fill, bool stroke);
  void Polyline(std::span<const QPointF> device);
  void Fill(const QPainterPath& device, const MetaBrush& brush);
  void Fill(const QPainterPath& device, QColor color);
  // Takes back the last `count` images, if nothing was drawn since; false else.
  bool DropLastImages(std::size_t count) { return list_.DropLastImages(count); }

 private:
  DrawList& list_;
  DeviceContext& context_;
  XorGradient gradient_;
};

}  // namespace tarvis
