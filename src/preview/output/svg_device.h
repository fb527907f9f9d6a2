// A device on which pictures become an SVG file. One unit of it is a twip.
//
// Shapes, areas, images and clips stay what they are. Letters become outlines: a program that opens the file
// need not have their font, and what it shows is as on the page. What they say is in the file as its
// description.
#pragma once

#include <QPaintDevice>
#include <QSizeF>
#include <QString>
#include <memory>
#include <string>

namespace tarvis {

class SvgEngine;

class SvgDevice : public QPaintDevice {
 public:
  // `size` is in twips.
  explicit SvgDevice(QSizeF size);
  ~SvgDevice() override;

  QPaintEngine* paintEngine() const override;

  // The file, UTF-8; no painter may be active. `title` and `description` are for readers who can't see it.
  [[nodiscard]] std::string File(const QString& title, const QString& description) const;

 protected:
  int metric(PaintDeviceMetric metric) const override;

 private:
  QSizeF size_;
  std::unique_ptr<SvgEngine> engine_;
};

}  // namespace tarvis
