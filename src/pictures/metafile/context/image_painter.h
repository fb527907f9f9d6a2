// Places bitmaps and inner pictures in logical units.
#pragma once

#include <QImage>

#include "pictures/metafile/context/area_painter.h"

namespace tarvis {

class MetafilePicture;

// A bitmap on its way into the picture.
struct BlockRecord {
  QImage Image;
  QRectF Source;       // pixels
  QRectF Destination;  // logical units; either size may be below 0
  std::uint32_t Rop = 0;
};

class ImagePainter {
 public:
  ImagePainter(Surface& surface, AreaPainter& areas) : surface_(surface), areas_(areas) {}

  void Block(BlockRecord block);
  // `corners` are the top left, top right and bottom left one; what follows them is ignored.
  void Parallelogram(const QImage& image, const QRectF& source, const std::vector<QPointF>& corners);
  // The same with `source` in the units of the inner picture.
  void Inner(const std::shared_ptr<const MetafilePicture>& picture, QRectF source,
             const std::vector<QPointF>& corners);

 private:
  struct LastBlock {
    std::uint32_t Rop;
    QRectF Box;
    QImage Image;
    QTransform Place;
  };

  bool MergeMask(const LastBlock& block);
  void Place(QImage image, QTransform place);

  Surface& surface_;
  AreaPainter& areas_;
  std::vector<LastBlock> blocks_;  // at most two
};

}  // namespace tarvis
