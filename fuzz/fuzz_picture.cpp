#include "fuzz_picture.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include "pictures/dib_header.h"
#include "pictures/metafile/fonts/glyph_outlines.h"
#include "pictures/metafile/list/draw_list.h"
#include "text/run_time_failure.h"

// NOLINTNEXTLINE(readability-non-const-parameter): the fuzzing library's own signature
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "*=false");
  static const QGuiApplication application(*argc, *argv);
  return 0;
}

namespace tarvis {
namespace {

constexpr int MostSeconds = 2;

void PaintOnPage(const Picture& picture) {
  QImage page(200, 150, QImage::Format_RGB32);
  page.fill(Qt::white);
  QPainter painter(&page);
  static_cast<const PaintablePicture&>(picture).Paint(painter, QRectF(page.rect()));
}

}  // namespace

void FuzzPicture(
    const std::function<PicturePtr(Bytes bytes, GlyphOutlines& glyphs, PictureBudget& budget)>& load,
    Bytes bytes) {
  static GlyphOutlines glyphs;
  try {
    PictureBudget budget({}, MostSeconds);
    PaintOnPage(*load(bytes, glyphs, budget));
  } catch (const RunTimeFailure&) {  // all of these are refusals with a reason
  } catch (const TooCostly&) {
  } catch (const BadMetafile&) {
  } catch (const BadDib&) {
  } catch (const OutOfBytes&) {
  }
}

}  // namespace tarvis
