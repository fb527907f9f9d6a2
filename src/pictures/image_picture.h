// A picture made of pixels.
#pragma once

#include <QImage>

#include "pictures/byte_reader.h"
#include "pictures/paintable_picture.h"

namespace tarvis {

class ImagePicture : public PaintablePicture {
 public:
  explicit ImagePicture(QImage image) : image_(std::move(image)) {}

  float NaturalWidth() const override;
  float NaturalHeight() const override;
  void Paint(QPainter& painter, const QRectF& target) const override;

 private:
  QImage image_;
};

// Draws `source` (pixels of `image`) into `target`. On a screen, a picture that is much larger than its place
// is averaged down; printers and PDF files get it whole.
void DrawImageWell(QPainter& painter, const QRectF& target, const QImage& image, const QRectF& source);

enum class ImageKind { None, Bitmap, BareBitmap, Toolkit, Icon, Cursor };

// By content, never by name.
ImageKind FindImageKind(Bytes bytes);

// std::exception with the reason if the bytes can't be shown.
QImage DecodeImage(Bytes bytes, ImageKind kind);

}  // namespace tarvis
