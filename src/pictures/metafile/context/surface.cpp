#include "pictures/metafile/context/surface.h"

#include "pictures/metafile/context/inks.h"
#include "pictures/metafile/context/raster_ops.h"

namespace tarvis {

DrawList& Surface::ClippedList() {
  list_.SetClip(State().Clip);
  return list_;
}

void Surface::Shape(const QPainterPath& device, bool fill, bool stroke) {
  const auto pen = stroke ? CurrentPen(context_) : std::nullopt;
  const auto brush = fill ? BrushFor(*State().Brush, State()) : std::nullopt;
  if (!pen && !brush) return;
  ClippedList().AddShape(device, pen ? &*pen : nullptr, brush ? &*brush : nullptr);
  if (brush && State().Rop2 != XorPen) gradient_.FollowCopyFill(device, *State().Brush);
  if (brush && State().Rop2 == XorPen && !pen) gradient_.FollowXorFill(device, list_, State());
}

void Surface::Polyline(std::span<const QPointF> device) {
  const auto pen = CurrentPen(context_);
  if (pen) ClippedList().AddPolyline(device, *pen, context_.Scale());
}

void Surface::Fill(const QPainterPath& device, const MetaBrush& metaBrush) {
  const auto brush = BrushFor(metaBrush, State());
  if (brush) ClippedList().AddShape(device, nullptr, &*brush);
}

void Surface::Fill(const QPainterPath& device, QColor color) {
  const ListBrush brush{QBrush(color)};
  ClippedList().AddShape(device, nullptr, &brush);
}

}  // namespace tarvis
