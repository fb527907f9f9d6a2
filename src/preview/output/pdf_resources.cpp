#include "preview/output/pdf_resources.h"

#include <cmath>

#include "pictures/paintable_picture.h"
#include "preview/output/pdf_fonts.h"
#include "preview/output/pdf_helper_file.h"

namespace tarvis {
namespace {

// A page for each picture, after an empty one. Text of pictures has fonts of its own in this file: the fonts
// of the pages are recognized by glyphs and widths that pictures don't share.
void PaintPictures(const PdfPictures& pictures, QPdfWriter& writer, QPainter& painter) {
  for (const PdfPicture& picture : pictures.All()) {
    const QSizeF points(std::floor(static_cast<double>(picture.Width) / TwipsPerPoint) + 1,
                        PdfPictureHeight(picture.Height));
    writer.setPageSize(QPageSize(points, QPageSize::Point, {}, QPageSize::ExactMatch));
    writer.newPage();
    const auto* paintable = dynamic_cast<const PaintablePicture*>(picture.Source);
    if (paintable == nullptr) continue;
    painter.save();
    paintable->Paint(painter,
                     QRectF(0, 0, static_cast<double>(picture.Width), static_cast<double>(picture.Height)));
    painter.restore();
  }
}

// A helper page as a form. Its content is taken as it is compressed.
QPDFObjectHandle TakeForm(QPDF& pdf, QPDFPageObjectHelper& page) {
  QPDFObjectHandle form = pdf.copyForeignObject(page.getObjectHandle().getKey("/Contents"));
  QPDFObjectHandle dictionary = form.getDict();
  dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
  dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
  dictionary.replaceKey("/BBox", page.getMediaBox().shallowCopy());
  dictionary.replaceKey("/Resources", pdf.copyForeignObject(page.getAttribute("/Resources", false)));
  return form;
}

}  // namespace

QPDFObjectHandle MakeResources(QPDF& pdf, const PdfGlyphs& glyphs, const PdfPictures& pictures,
                               ReportFont& font) {
  HelperFile pictureFile(PaintHelperFile(
      [&](QPdfWriter& writer, QPainter& painter) { PaintPictures(pictures, writer, painter); }));
  QPDFObjectHandle resources = QPDFObjectHandle::newDictionary();
  resources.replaceKey("/Font", MakeFonts(pdf, glyphs, font));
  QPDFObjectHandle forms = QPDFObjectHandle::newDictionary();
  std::vector<QPDFPageObjectHelper> pages = pictureFile.Pages();
  for (std::size_t number = 0; number < pictures.All().size(); ++number) {
    forms.replaceKey("/P" + std::to_string(number), TakeForm(pdf, pages.at(number + 1)));
  }
  resources.replaceKey("/XObject", forms);
  return pdf.makeIndirectObject(resources);
}

}  // namespace tarvis
