// A picture of a few vectors: a grey ground with a diagonal.
#pragma once

#include <QPainter>

#include "pictures/paintable_picture.h"

namespace tarvis {

class SamplePicture : public PaintablePicture {
 public:
  float NaturalWidth() const override { return 3000; }
  float NaturalHeight() const override { return 2000; }
  void Paint(QPainter& painter, const QRectF& target) const override {
    painter.fillRect(target, QColor(200, 200, 200));
    painter.setPen(QPen(Qt::black, 60));
    painter.drawLine(target.topLeft(), target.bottomRight());
  }
};

}  // namespace tarvis
