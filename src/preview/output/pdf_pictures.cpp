#include "preview/output/pdf_pictures.h"

#include <cmath>

#include "pictures/paintable_picture.h"

namespace tarvis {

std::size_t PdfPictures::Number(const Picture& picture, float width, float height) {
  const auto [place, isNew] = numbers_.try_emplace({&picture, width, height}, numbers_.size());
  if (isNew) Paint(picture, width, height);
  return place->second;
}

// Text of pictures has fonts of its own in the helper file: the fonts of the pages are recognized by glyphs
// and widths that pictures don't share.
void PdfPictures::Paint(const Picture& picture, float width, float height) {
  if (!painted_) painted_.emplace();
  const QRectF place(0, 0, width, height);
  const QSizeF points(std::floor(place.width() / TwipsPerPoint) + 1, PdfPictureHeight(height));
  painted_->Writer().setPageSize(QPageSize(points, QPageSize::Point, {}, QPageSize::ExactMatch));
  painted_->Writer().newPage();
  const auto* paintable = dynamic_cast<const PaintablePicture*>(&picture);
  if (paintable == nullptr) return;
  QPainter& painter = painted_->Painter();
  painter.save();
  paintable->Paint(painter, place);
  painter.restore();
}

}  // namespace tarvis
