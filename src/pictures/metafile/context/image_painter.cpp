#include "pictures/metafile/context/image_painter.h"

#include <cmath>

#include "pictures/metafile/context/raster_ops.h"
#include "pictures/metafile/list/metafile_picture.h"

namespace tarvis {
namespace {

QImage Mirrored(const QImage& image, bool left, bool up) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 9, 0)  // where the older function is deprecated
  return image.flipped((left ? Qt::Horizontal : Qt::Orientations()) |
                       (up ? Qt::Vertical : Qt::Orientations()));
#else
  return image.mirrored(left, up);
#endif
}

bool Near(const QRectF& a, const QRectF& b) {
  return std::abs(a.left() - b.left()) + std::abs(a.top() - b.top()) + std::abs(a.right() - b.right()) +
             std::abs(a.bottom() - b.bottom()) <
         2;
}

// `image` where `mask` is black, nothing elsewhere.
QImage Masked(const QImage& image, const QImage& mask) {
  QImage shown = image.convertToFormat(QImage::Format_ARGB32);
  const QImage fitting = mask.size() == image.size() ? mask : mask.scaled(image.size());
  const QImage holes = fitting.convertToFormat(QImage::Format_RGB32);
  for (int y = 0; y < shown.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(shown.scanLine(y));
    const auto* hole = reinterpret_cast<const QRgb*>(holes.constScanLine(y));
    for (int x = 0; x < shown.width(); ++x)
      if (qGray(hole[x]) > 127) row[x] = 0;
  }
  return shown;
}

}  // namespace

// A mask ANDed and a picture XORed at one place show the picture where the mask is black, whether the picture
// was XORed before the mask too or not.
bool ImagePainter::MergeMask(const LastBlock& block) {
  const bool masked = block.Rop == SourceInvert && !blocks_.empty() && blocks_.back().Rop == SourceAnd &&
                      Near(blocks_.back().Box, block.Box);
  const bool twice = blocks_.size() == 2 && blocks_[0].Rop == SourceInvert && Near(blocks_[0].Box, block.Box);
  if (!masked || !surface_.DropLastImages(twice ? 2 : 1)) {
    blocks_.push_back(block);
    if (blocks_.size() > 2) blocks_.erase(blocks_.begin());
    return false;
  }
  const QImage mask = blocks_.back().Image;
  blocks_.clear();
  Place(Masked(block.Image, mask), block.Place);
  return true;
}

// `place` maps the pixels of the whole image.
void ImagePainter::Place(QImage image, QTransform place) {
  if (place.type() <= QTransform::TxScale && (place.m11() < 0 || place.m22() < 0)) {
    const bool left = place.m11() < 0;
    const bool up = place.m22() < 0;
    image = Mirrored(image, left, up);
    const QTransform mirror(left ? -1 : 1, 0, 0, up ? -1 : 1, left ? image.width() : 0,
                            up ? image.height() : 0);
    place = mirror * place;
  }
  const QRectF all(image.rect());
  surface_.ClippedList().AddImage({std::move(image), all, place});
}

void ImagePainter::Block(BlockRecord block) {
  if (!UsesSource(block.Rop)) return areas_.PatternBlock(block.Destination, block.Rop);
  const QRectF source = block.Source.normalized();
  const QRectF& to = block.Destination;
  if (source.isEmpty() || to.width() == 0 || to.height() == 0) return;
  const QRect part = source.toAlignedRect() & block.Image.rect();
  if (part.isEmpty()) return;
  const QTransform fit = QTransform::fromTranslate(-source.left(), -source.top()) *
                         QTransform::fromScale(to.width() / source.width(), to.height() / source.height()) *
                         QTransform::fromTranslate(to.left(), to.top());
  const QTransform place = QTransform::fromTranslate(part.left(), part.top()) * fit * surface_.ToDevice();
  const QImage image = part == block.Image.rect() ? std::move(block.Image) : block.Image.copy(part);
  const LastBlock last{block.Rop, place.mapRect(QRectF(image.rect())), image, place};
  if (MergeMask(last)) return;
  const QColor brush = surface_.State().Brush->Is == MetaBrush::Kind::Solid ? surface_.State().Brush->Color
                                                                            : QColor(Qt::black);
  Place(SourceOnWhite(block.Rop, image, brush), place);
}

void ImagePainter::Parallelogram(const QImage& image, const QRectF& source,
                                 const std::vector<QPointF>& corners) {
  const QRect part = source.normalized().toAlignedRect() & image.rect();
  if (part.isEmpty() || corners.size() < 3) return;
  const QPointF across = (corners[1] - corners[0]) / source.width();
  const QPointF down = (corners[2] - corners[0]) / source.height();
  const QTransform fit(across.x(), across.y(), down.x(), down.y(), corners[0].x(), corners[0].y());
  const QTransform offset = QTransform::fromTranslate(part.left() - source.left(), part.top() - source.top());
  Place(part == image.rect() ? image : image.copy(part), offset * fit * surface_.ToDevice());
}

void ImagePainter::Inner(const std::shared_ptr<const MetafilePicture>& picture, QRectF source,
                         const std::vector<QPointF>& corners) {
  constexpr double rounding = 0.02;  // of the size
  const QRectF& frame = picture->Frame();
  if (source.width() == 0 || source.height() == 0) throw SkipRecord();
  // Writers round the frame, and measure that of old-style metafiles from another origin.
  const bool isAll = std::abs(source.width() - frame.width()) < rounding * frame.width() &&
                     std::abs(source.height() - frame.height()) < rounding * frame.height();
  if (isAll) source = frame;
  const QPointF across = (corners[1] - corners[0]) / source.width();
  const QPointF down = (corners[2] - corners[0]) / source.height();
  const QTransform fit(across.x(), across.y(), down.x(), down.y(), corners[0].x(), corners[0].y());
  const QTransform place =
      QTransform::fromTranslate(-source.left(), -source.top()) * fit * surface_.ToDevice();
  if (!place.isInvertible()) throw SkipRecord();
  surface_.ClippedList().AddPart(
      {std::shared_ptr<const DrawList>(picture, &picture->List()), source & frame, place});
}

}  // namespace tarvis
