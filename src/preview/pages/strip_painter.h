// Paints pages on the screen from the strips that are rendered. Where a strip isn't rendered yet, those of
// the page in another size are shown instead.
#pragma once

#include <QElapsedTimer>
#include <QPainter>

#include "preview/pages/page_pictures.h"

namespace tarvis {

class StripPainter {
 public:
  // A page is `pageWidth` device pixels wide, of which `ratio` make a logical one. All arguments must outlive
  // the painter.
  StripPainter(QPainter& painter, const Document& document, PagePictures& pictures, int pageWidth,
               double ratio);

  // Paints what is inside `exposed` of the page that is at `place`, both in logical pixels of the view.
  void Paint(int page, const QRectF& place, const QRect& exposed);

 private:
  void WaitFor(const std::vector<Strip>& strips);
  void PaintStrip(const Strip& strip, const QRectF& place);

  QPainter& painter_;
  const Document& document_;
  PagePictures& pictures_;
  int pageWidth_;
  double ratio_;
  int patience_;  // milliseconds left in which missing strips are waited for
};

}  // namespace tarvis
