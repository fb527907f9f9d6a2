// A picture that paints itself.
#pragma once

#include "report/engine/picture.h"

class QPainter;
class QRectF;

namespace tarvis {

class PaintablePicture : public Picture {
 public:
  // Fills `target` (in the painter's coordinates). May be called on any thread, several at a time.
  virtual void Paint(QPainter& painter, const QRectF& target) const = 0;
};

}  // namespace tarvis
