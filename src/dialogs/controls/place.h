// Geometry of the dialogs: given in twips, 1440 to the inch, for a drawing at 96 dots to the inch in a font
// of 11 pixels. In a larger font the dialogs are drawn larger as a whole.
#pragma once

#include <QFontInfo>
#include <QRect>
#include <QWidget>

#include "report/engine/units.h"

namespace tarvis {

constexpr int DrawnFontPixels = 11;

constexpr int Pixels(float twips, int fontPixels) {
  constexpr double Divisor = TwipsPerPixel * DrawnFontPixels;
  return static_cast<int>((double{twips} * fontPixels + Divisor / 2) / Divisor);
}

// The length of something in `widget`, which must have its font already, most often from its parent.
inline int Pixels(float twips, const QWidget& widget) {
  return Pixels(twips, QFontInfo(widget.font()).pixelSize());
}

// `bounds` are relative to the container. Edges are rounded, not sizes, so that controls which meet in twips
// also meet on the screen.
inline QRect PixelRect(const Rect& bounds, const QWidget& widget) {
  const int fontPixels = QFontInfo(widget.font()).pixelSize();
  const int left = Pixels(bounds.Left, fontPixels);
  const int top = Pixels(bounds.Top, fontPixels);
  return QRect(left, top, Pixels(bounds.Right(), fontPixels) - left,
               Pixels(bounds.Bottom(), fontPixels) - top);
}

inline void Place(QWidget& widget, const Rect& bounds) {
  widget.setGeometry(PixelRect(bounds, widget));
}

}  // namespace tarvis
