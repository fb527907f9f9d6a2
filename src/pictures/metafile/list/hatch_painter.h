// Fills areas with hatches: lines and dots that keep their physical size on every device.
#pragma once

#include <QPainter>

#include "pictures/metafile/list/draw_list.h"

namespace tarvis {

// Sizes of the device in units of the painter.
struct DeviceUnits {
  double Pixel = 1;
  double ScreenDot = 1;  // 1/96 inch
  double Hairline = 1;
  bool OnScreen = false;  // the device has pixels that are seen
};

// Fills `path` with a hatch, within `target`.
void PaintHatch(QPainter& painter, const QPainterPath& path, const ListBrush& brush, const QRectF& target,
                const DeviceUnits& units);

}  // namespace tarvis
