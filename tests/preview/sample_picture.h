// Pictures of a few vectors.
#pragma once

#include <QImage>
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

// Strokes, a bitmap, a gradient and a hatch, all in colours.
class ColourfulPicture : public SamplePicture {
 public:
  void Paint(QPainter& painter, const QRectF& target) const override {
    const double half = target.width() / 2;
    QLinearGradient gradient(target.topLeft(), target.topRight());
    gradient.setColorAt(0, QColor(255, 220, 0));
    gradient.setColorAt(1, QColor(0, 90, 255));
    painter.fillRect(QRectF(target.topLeft(), QSizeF(target.width(), 600)), gradient);
    QImage bitmap(40, 30, QImage::Format_RGB32);
    bitmap.fill(QColor(0, 160, 60));
    painter.drawImage(QRectF(target.left(), target.top() + 700, half, 500), bitmap);
    painter.fillRect(QRectF(target.left() + half, target.top() + 700, half, 500),
                     QBrush(QColor(200, 0, 200), Qt::DiagCrossPattern));
    painter.setPen(QPen(QColor(220, 40, 0), 80));
    painter.drawLine(target.bottomLeft() - QPointF(0, 200), target.bottomRight() - QPointF(0, 200));
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
