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

// Makes a file in memory, of which it begins the first page. Belongs to the thread that made it, as the
// fonts of its painter do.
class HelperFilePainter {
 public:
  HelperFilePainter() : writer_(&buffer_) {
    buffer_.open(QIODevice::WriteOnly);
    writer_.setResolution(static_cast<int>(TwipsPerInch));
    writer_.setPageMargins({});
    painter_.begin(&writer_);
    painter_.setRenderHint(QPainter::LosslessImageRendering);
  }
  QPdfWriter& Writer() { return writer_; }
  QPainter& Painter() { return painter_; }
  // The bytes of the file. To be called once, as the last one.
  QByteArray Finish() {
    painter_.end();
    return buffer_.data();
  }

 private:
  QBuffer buffer_;
  QPdfWriter writer_;
  QPainter painter_;
};

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
