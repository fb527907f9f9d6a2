// Pictures of a few vectors.
#pragma once

#include <QPainter>
#include <atomic>
#include <thread>

#include "pictures/paintable_picture.h"

namespace tarvis {

// A grey ground with a diagonal.
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

// Holds up whoever paints it from `Hold` to `Release`.
class HoldingPicture : public SamplePicture {
 public:
  void Paint(QPainter& painter, const QRectF& target) const override {
    if (holding_) held_ = true;
    while (holding_) std::this_thread::yield();
    SamplePicture::Paint(painter, target);
  }
  void Hold() { holding_ = true; }
  void Release() { holding_ = false; }
  // Whether somebody was held up.
  bool Holds() const { return held_; }

 private:
  std::atomic<bool> holding_ = false;
  mutable std::atomic<bool> held_ = false;
};

}  // namespace tarvis
