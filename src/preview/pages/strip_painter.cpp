#include "preview/pages/strip_painter.h"

#include <algorithm>
#include <cmath>

#include "preview/paint/toolkit_geometry.h"

namespace tarvis {
namespace {

constexpr int PagePatience = 8;    // milliseconds for a page, half a frame
constexpr int WholePatience = 16;  // for all pages of a painting

}  // namespace

StripPainter::StripPainter(QPainter& painter, const Document& document, PagePictures& pictures, int pageWidth,
                           double ratio)
    : painter_(painter),
      document_(document),
      pictures_(pictures),
      pageWidth_(pageWidth),
      ratio_(ratio),
      patience_(WholePatience) {}

void StripPainter::Paint(int page, const QRectF& place, const QRect& exposed) {
  const double from = std::max(0.0, exposed.top() - place.top());
  const double to = exposed.bottom() + 1 - place.top();
  if (to <= 0) return;
  const std::vector<Strip> sharp = StripsOf({page, PixelBefore(from * ratio_), PixelAfter(to * ratio_)},
                                            pageWidth_, PagePixelHeight(document_, pageWidth_));
  const bool whole = std::all_of(sharp.begin(), sharp.end(),
                                 [this](const Strip& strip) { return pictures_.Find(strip) != nullptr; });
  if (!whole) {
    const std::vector<Strip> substitutes = pictures_.SubstituteStrips(page, pageWidth_);
    // Most pages are there within a few milliseconds; one that isn't must not hold up the window.
    if (substitutes.empty()) WaitFor(sharp);
    painter_.fillRect(place, Qt::white);
    for (const Strip& strip : substitutes) PaintStrip(strip, place);
  }
  for (const Strip& strip : sharp) PaintStrip(strip, place);
}

void StripPainter::WaitFor(const std::vector<Strip>& strips) {
  QElapsedTimer waited;
  waited.start();
  if (patience_ > 0) pictures_.WaitFor(strips, std::min(patience_, PagePatience));
  patience_ -= static_cast<int>(waited.elapsed());
}

void StripPainter::PaintStrip(const Strip& strip, const QRectF& place) {
  const QImage* picture = pictures_.Find(strip);
  if (picture == nullptr) return;
  const int pageHeight = PagePixelHeight(document_, strip.Width);
  const double scale = place.height() / pageHeight;
  const double top = strip.Index * CutIntoStrips(strip.Width, pageHeight).Height * scale;
  painter_.setRenderHint(QPainter::SmoothPixmapTransform);
  if (strip.Width == pageWidth_) {
    // Pixel for pixel, starting on a whole one: anything else would blur.
    const QPointF corner(std::round(place.left() * ratio_) / ratio_,
                         std::round((place.top() + top) * ratio_) / ratio_);
    painter_.drawImage(QRectF(corner, QSizeF(picture->size()) / ratio_), *picture);
  } else {
    painter_.drawImage(QRectF(place.left(), place.top() + top, place.width(), picture->height() * scale),
                       *picture);
  }
}

}  // namespace tarvis
