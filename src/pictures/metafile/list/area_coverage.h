// How much of each pixel an area covers. The toolkit's own filling of areas takes seconds where thousands of
// edges run up and down, as below a noisy curve; this takes time only in proportion to their length.
#pragma once

#include <QImage>
#include <QPolygonF>
#include <span>

namespace tarvis {

// The part of closed polygons that lies in `pixels`, in `color`: each pixel as dense as the area covers it.
QImage AreaInColor(std::span<const QPolygonF> area, Qt::FillRule rule, const QRect& pixels,
                   const QColor& color);

}  // namespace tarvis
