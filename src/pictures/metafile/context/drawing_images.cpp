#include <cmath>

#include "pictures/metafile/context/drawing.h"
#include "pictures/metafile/context/raster_ops.h"
#include "pictures/metafile/list/metafile_picture.h"

namespace tarvis {
namespace {

constexpr int MostFineTriangles = 200;
constexpr int FineSteps = 12;

QColor Mix(const std::vector<QColor>& colors, double a, double b) {
  const double c = 1 - a - b;
  const auto part = [&](auto channel) {
    return static_cast<float>(std::clamp(static_cast<double>((colors[0].*channel)()) * c +
                                             static_cast<double>((colors[1].*channel)()) * a +
                                             static_cast<double>((colors[2].*channel)()) * b,
                                         0.0, 1.0));
  };
  return QColor::fromRgbF(part(&QColor::redF), part(&QColor::greenF), part(&QColor::blueF),
                          part(&QColor::alphaF));
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
bool Drawing::MergeMask(const LastBlock& block) {
  const bool masked = block.Rop == SourceInvert && !blocks_.empty() && blocks_.back().Rop == SourceAnd &&
                      Near(blocks_.back().Box, block.Box);
  const bool twice = blocks_.size() == 2 && blocks_[0].Rop == SourceInvert && Near(blocks_[0].Box, block.Box);
  if (!masked || !list_.DropLastImages(twice ? 2 : 1)) {
    blocks_.push_back(block);
    if (blocks_.size() > 2) blocks_.erase(blocks_.begin());
    return false;
  }
  const QImage mask = blocks_.back().Image;
  blocks_.clear();
  PlaceImage(Masked(block.Image, mask), block.Place);
  return true;
}

// `place` maps the pixels of the whole image.
void Drawing::PlaceImage(QImage image, QTransform place) {
  if (place.type() <= QTransform::TxScale && (place.m11() < 0 || place.m22() < 0)) {
    const bool left = place.m11() < 0;
    const bool up = place.m22() < 0;
    image = image.mirrored(left, up);
    const QTransform mirror(left ? -1 : 1, 0, 0, up ? -1 : 1, left ? image.width() : 0,
                            up ? image.height() : 0);
    place = mirror * place;
  }
  list_.SetClip(State().Clip);
  const QRectF all(image.rect());
  list_.AddImage({std::move(image), all, place});
}

void Drawing::Block(BlockRecord block) {
  if (!UsesSource(block.Rop)) return PatternBlock(block.Destination, block.Rop);
  const QRectF source = block.Source.normalized();
  const QRectF& to = block.Destination;
  if (source.isEmpty() || to.width() == 0 || to.height() == 0) return;
  const QRect part = source.toAlignedRect() & block.Image.rect();
  if (part.isEmpty()) return;
  const QTransform fit = QTransform::fromTranslate(-source.left(), -source.top()) *
                         QTransform::fromScale(to.width() / source.width(), to.height() / source.height()) *
                         QTransform::fromTranslate(to.left(), to.top());
  const QTransform place = QTransform::fromTranslate(part.left(), part.top()) * fit * ToDevice();
  const QImage image = part == block.Image.rect() ? std::move(block.Image) : block.Image.copy(part);
  const LastBlock last{block.Rop, place.mapRect(QRectF(image.rect())), image, place};
  if (MergeMask(last)) return;
  const QColor brush = State().Brush->Is == MetaBrush::Kind::Solid ? State().Brush->Color : QColor(Qt::black);
  PlaceImage(SourceOnWhite(block.Rop, image, brush), place);
}

void Drawing::PatternBlock(const QRectF& box, std::uint32_t rop) {
  if (State().Brush->Is == MetaBrush::Kind::Null && (rop >> 16 & 0xFF) == PatternCopy >> 16) return;
  QPainterPath path;
  path.addRect(box.normalized());
  const QPainterPath device = ToDevice().map(path);
  if ((rop >> 16 & 0xFF) == PatternCopy >> 16) return EmitFill(device, *State().Brush);
  const std::optional<QColor> color = PatternOnWhite(rop, State().Brush->Color);
  if (color) FillBox(box.normalized(), *color);
}

void Drawing::Parallelogram(const QImage& image, const QRectF& source, const Points& corners) {
  const QRect part = source.normalized().toAlignedRect() & image.rect();
  if (part.isEmpty() || corners.size() < 3) return;
  const QPointF across = (corners[1] - corners[0]) / source.width();
  const QPointF down = (corners[2] - corners[0]) / source.height();
  const QTransform fit(across.x(), across.y(), down.x(), down.y(), corners[0].x(), corners[0].y());
  const QTransform offset = QTransform::fromTranslate(part.left() - source.left(), part.top() - source.top());
  PlaceImage(part == image.rect() ? image : image.copy(part), offset * fit * ToDevice());
}

void Drawing::Inner(const std::shared_ptr<const MetafilePicture>& picture, QRectF source,
                    const Points& corners) {
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
  const QTransform place = QTransform::fromTranslate(-source.left(), -source.top()) * fit * ToDevice();
  if (!place.isInvertible()) throw SkipRecord();
  list_.SetClip(State().Clip);
  list_.AddPart({std::shared_ptr<const DrawList>(picture, &picture->List()), source & frame, place});
}

void Drawing::GradientBox(const QRectF& box, QColor from, QColor to, bool down) {
  const QTransform toDevice = ToDevice();
  QLinearGradient gradient(toDevice.map(box.topLeft()),
                           toDevice.map(down ? box.bottomLeft() : box.topRight()));
  gradient.setColorAt(0, from);
  gradient.setColorAt(1, to);
  QPainterPath path;
  path.addRect(box);
  const ListBrush brush{QBrush(gradient)};
  list_.SetClip(State().Clip);
  list_.AddShape(toDevice.map(path), nullptr, &brush);
}

// In small triangles of one colour each.
void Drawing::GradientTriangle(const Points& corners, const std::vector<QColor>& colors) {
  const int steps = ++triangles_ <= MostFineTriangles ? FineSteps : 1;
  const QTransform toDevice = ToDevice();
  const auto at = [&](double a, double b) {
    return toDevice.map(corners[0] * (1 - a - b) + corners[1] * a + corners[2] * b);
  };
  const auto draw = [&](double a, double b, double step) {
    QPainterPath path(at(a, b));
    path.lineTo(at(a + step, b));
    path.lineTo(at(a, b + step));
    path.closeSubpath();
    const QColor color = Mix(colors, a + step / 3, b + step / 3);
    const ListBrush brush{QBrush(color)};
    const ListPen pen{QPen(color), 0, true};  // closes the seam to the next
    list_.AddShape(path, &pen, &brush);
  };
  list_.SetClip(State().Clip);
  const double step = 1.0 / steps;
  for (int i = 0; i < steps; ++i) {
    for (int j = 0; i + j < steps; ++j) {
      draw(i * step, j * step, step);
      if (i + j + 1 < steps) draw((i + 1) * step, (j + 1) * step, -step);
    }
  }
}

}  // namespace tarvis
