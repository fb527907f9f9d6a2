// Any bytes as a picture file: they load and paint, or they are refused with a reason.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include "pictures/metafile/glyph_outlines.h"
#include "pictures/paintable_picture.h"
#include "pictures/picture_file_loader.h"
#include "printfiles/run_time_failure.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "*=false");
  static const QGuiApplication application(*argc, *argv);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static tarvis::GlyphOutlines glyphs;
  try {
    const tarvis::PicturePtr picture = tarvis::DecodePicture("fuzz", {data, size}, glyphs);
    QImage page(200, 150, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    static_cast<const tarvis::PaintablePicture&>(*picture).Paint(painter, QRectF(page.rect()));
  } catch (const tarvis::RunTimeFailure&) {
    return 0;  // refused, with a reason
  }
  return 0;
}
