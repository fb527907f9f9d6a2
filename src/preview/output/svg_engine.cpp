#include "preview/output/svg_engine.h"

#include <QImage>
#include <QPixmap>

namespace tarvis {
namespace {

std::string ClipAttribute(int clip) {
  return clip == 0 ? std::string() : " clip-path=\"url(#clip" + std::to_string(clip) + ")\"";
}

}  // namespace

bool SvgEngine::begin(QPaintDevice* /*device*/) {
  return true;
}

void SvgEngine::updateState(const QPaintEngineState& now) {
  const DirtyFlags changed = now.state();
  if (changed.testFlag(DirtyTransform)) transform_ = now.transform();
  if (changed.testFlag(DirtyPen)) pen_ = now.pen();
  if (changed.testFlag(DirtyBrush)) brush_ = now.brush();
  if (changed.testFlag(DirtyBrushOrigin)) brushOrigin_ = now.brushOrigin();
  if (changed.testFlag(DirtyOpacity)) opacity_ = now.opacity();
  if (changed.testFlag(DirtyClipEnabled)) isClipping_ = now.isClipEnabled();
  if (changed.testFlag(DirtyClipPath)) Clip(now.clipPath(), now.clipOperation());
  if (changed.testFlag(DirtyClipRegion)) {
    QPainterPath path;
    path.addRegion(now.clipRegion());
    Clip(path, now.clipOperation());
  }
}

// A clip refers to the one around it, so that nothing has to be computed.
void SvgEngine::Clip(const QPainterPath& path, Qt::ClipOperation operation) {
  if (operation == Qt::NoClip) {
    clip_ = 0;
    return;
  }
  const int outer = operation == Qt::IntersectClip ? clip_ : 0;
  std::string shape = "<path d=\"" + SvgPath(path) + '"' + SvgTransform("transform", transform_);
  if (path.fillRule() == Qt::OddEvenFill) shape += " clip-rule=\"evenodd\"";
  const auto [known, isNew] = knownClips_.try_emplace({outer, shape});
  if (isNew) {
    known->second = static_cast<int>(knownClips_.size());
    clips_ += "<clipPath id=\"clip" + std::to_string(known->second) + '"' + ClipAttribute(outer) + '>' +
              shape + "/></clipPath>\n";
  }
  clip_ = known->second;
}

void SvgEngine::OpenClip() {
  const int clip = isClipping_ ? clip_ : 0;
  if (clip == shownClip_) return;
  if (shownClip_ != 0) content_ += "</g>\n";
  if (clip != 0) content_ += "<g" + ClipAttribute(clip) + ">\n";
  shownClip_ = clip;
}

std::string SvgEngine::Content() const {
  return shownClip_ == 0 ? content_ : content_ + "</g>\n";
}

// A brush starts at its origin, unlike that of a pen.
QBrush SvgEngine::PlacedBrush() const {
  if (brushOrigin_.isNull() || brush_.style() == Qt::SolidPattern || brush_.style() == Qt::NoBrush)
    return brush_;
  QBrush placed = brush_;
  placed.setTransform(brush_.transform() * QTransform::fromTranslate(brushOrigin_.x(), brushOrigin_.y()));
  return placed;
}

// A pen of a fixed width on the device paints a shape that is there already.
void SvgEngine::drawPath(const QPainterPath& path) {
  OpenClip();
  const bool isPlaced = pen_.style() == Qt::NoPen ? brush_.style() == Qt::SolidPattern : pen_.isCosmetic();
  content_ += "<path d=\"" + SvgPath(isPlaced ? transform_.map(path) : path) + '"';
  if (!isPlaced) content_ += SvgTransform("transform", transform_);
  content_ += inks_.Fill(PlacedBrush(), opacity_);
  if (path.fillRule() == Qt::OddEvenFill && brush_.style() != Qt::NoBrush)
    content_ += " fill-rule=\"evenodd\"";
  content_ += inks_.Stroke(pen_, opacity_) + "/>\n";
}

void SvgEngine::drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) {
  if (count == 0) return;
  QPainterPath path(points[0]);
  for (int index = 1; index < count; ++index) path.lineTo(points[index]);
  path.setFillRule(mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
  const QBrush brush = brush_;
  if (mode == PolylineMode) {
    brush_ = Qt::NoBrush;
  } else {
    path.closeSubpath();
  }
  drawPath(path);
  brush_ = brush;
}

void SvgEngine::drawImage(const QRectF& place, const QImage& image, const QRectF& source,
                          Qt::ImageConversionFlags /*flags*/) {
  const QRect part = source.toAlignedRect() & image.rect();
  if (part.isEmpty() || source.isEmpty()) return;
  // Only whole pixels can be cut out: the place grows with what is cut.
  const double across = place.width() / source.width(), down = place.height() / source.height();
  const QPointF corner =
      place.topLeft() + QPointF((part.left() - source.left()) * across, (part.top() - source.top()) * down);
  OpenClip();
  content_ += "<image" +
              SvgTransform("transform", QTransform::fromScale(part.width() * across, part.height() * down) *
                                            QTransform::fromTranslate(corner.x(), corner.y()) * transform_);
  content_ += R"( width="1" height="1" preserveAspectRatio="none")";
  if (opacity_ < 1) content_ += " opacity=\"" + QByteArray::number(opacity_, 'g', 4).toStdString() + '"';
  content_ += SvgImage(image.copy(part)) + "/>\n";
}

void SvgEngine::drawPixmap(const QRectF& place, const QPixmap& pixmap, const QRectF& source) {
  drawImage(place, pixmap.toImage(), source, Qt::AutoColor);
}

}  // namespace tarvis
