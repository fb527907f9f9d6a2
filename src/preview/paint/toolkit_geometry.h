// Geometry of documents in the toolkit's types, and places on whole pixels.
#pragma once

#include <QRectF>
#include <cmath>

#include "report/engine/document.h"

namespace tarvis {

inline QRectF ToRectF(const Rect& box) {
  return {box.Left, box.Top, box.Width, box.Height};
}

// Width and height of the paper, in twips.
inline QSizeF PaperSizeOf(const Document& document) {
  return {document.Setup.Width, document.Setup.Height};
}

// The nearest whole pixel; halves are rounded away from zero.
inline int NearestPixel(double place) {
  return static_cast<int>(std::lround(place));
}

// The first and the last of the whole pixels between which a place lies.
inline int PixelBefore(double place) {
  return static_cast<int>(std::floor(place));
}
inline int PixelAfter(double place) {
  return static_cast<int>(std::ceil(place));
}

}  // namespace tarvis
