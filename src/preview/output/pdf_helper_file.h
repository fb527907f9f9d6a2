// A PDF that the toolkit's own painter makes in memory, whose objects are then taken over.
#pragma once

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <utility>
#include <vector>

#include "report/engine/units.h"

namespace tarvis {

// Makes a file in memory: `paint` gets its writer and painter.
template <typename Paint>
QByteArray PaintHelperFile(Paint paint) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(static_cast<int>(TwipsPerInch));
  writer.setPageMargins({});
  QPainter painter(&writer);
  painter.setRenderHint(QPainter::LosslessImageRendering);
  paint(writer, painter);
  painter.end();
  return bytes;
}

class HelperFile {
 public:
  explicit HelperFile(QByteArray bytes) : bytes_(std::move(bytes)) {
    file_.processMemoryFile("helper", bytes_.constData(), static_cast<std::size_t>(bytes_.size()));
    file_.setImmediateCopyFrom(true);  // it no longer exists when the PDF is written
  }
  std::vector<QPDFPageObjectHelper> Pages() { return QPDFPageDocumentHelper(file_).getAllPages(); }

 private:
  QByteArray bytes_;
  QPDF file_;
};

}  // namespace tarvis
