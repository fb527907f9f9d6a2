// What a painter paints, as the elements of an SVG file.
#pragma once

#include <QPaintEngine>
#include <QPainterPath>
#include <QTransform>
#include <map>
#include <string>
#include <utility>

#include "preview/output/svg_inks.h"

namespace tarvis {

class SvgEngine : public QPaintEngine {
 public:
  SvgEngine() : QPaintEngine(AllFeatures) {}

  // What the content refers to, and the content.
  std::string Definitions() const { return clips_ + inks_.Definitions(); }
  std::string Content() const;

  bool begin(QPaintDevice* device) override;
  bool end() override { return true; }
  void updateState(const QPaintEngineState& now) override;
  void drawPath(const QPainterPath& path) override;
  void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override;
  void drawImage(const QRectF& place, const QImage& image, const QRectF& source,
                 Qt::ImageConversionFlags flags) override;
  void drawPixmap(const QRectF& place, const QPixmap& pixmap, const QRectF& source) override;
  Type type() const override { return User; }

 private:
  void Clip(const QPainterPath& path, Qt::ClipOperation operation);
  void OpenClip();
  QBrush PlacedBrush() const;

  QTransform transform_;
  QPen pen_;
  QBrush brush_;
  QPointF brushOrigin_;
  double opacity_ = 1;
  SvgInks inks_;
  // Numbers of clips, which are defined once each; 0 for none. `shownClip_` is that of the group which is
  // open in the content.
  int clip_ = 0;
  int shownClip_ = 0;
  bool isClipping_ = true;                                 // `clip_` is kept while clipping is switched off
  std::map<std::pair<int, std::string>, int> knownClips_;  // by the clip around it and its shape
  std::string clips_;
  std::string content_;
};

}  // namespace tarvis
