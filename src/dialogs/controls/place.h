// Geometry of the dialogs: told in twips, 1440 to the inch, and laid out at 96 dots to the inch.
#pragma once

#include <QRect>
#include <QWidget>

namespace tarvis {

// Twips, relative to the container.
struct Bounds {
  int Left;
  int Top;
  int Width;
  int Height;
};

constexpr int TwipsPerPixel = 15;

constexpr int Pixels(int twips) {
  return (twips + TwipsPerPixel / 2) / TwipsPerPixel;
}

// Edges are rounded, not sizes, so that controls which meet in twips also meet on the screen.
inline QRect PixelRect(const Bounds& bounds) {
  const int left = Pixels(bounds.Left);
  const int top = Pixels(bounds.Top);
  return QRect(left, top, Pixels(bounds.Left + bounds.Width) - left,
               Pixels(bounds.Top + bounds.Height) - top);
}

inline void Place(QWidget& widget, const Bounds& bounds) {
  widget.setGeometry(PixelRect(bounds));
}

}  // namespace tarvis
