#include "preview/output/pdf_pages.h"

#include <qpdf/QPDFPageDocumentHelper.hh>
#include <utility>

#include "preview/output/pdf_greys.h"
#include "preview/output/pdf_resources.h"
#include "preview/output/reading_order.h"

namespace tarvis {

QPDFObjectHandle Points(double twips) {
  return QPDFObjectHandle::newReal(twips / TwipsPerPoint, 2);
}

PdfPages::PdfPages(QPDF& pdf, const PdfLook& look, int codePage, const PdfTagPlan* tags)
    : pdf_(pdf), look_(look), glyphs_(ReportFont::OfThisThread(codePage)), tags_(tags) {}

void PdfPages::Add(const Document& document, std::size_t page, std::size_t number) {
  sheets_.push_back(static_cast<int>(number));
  const auto [content, isNew] = contents_.try_emplace(sheets_.back());
  if (isNew) content->second = NewStream(ContentOf(document, page, sheets_.back()));
}

std::string PdfPages::ContentOf(const Document& document, std::size_t page, int number) {
  if (tags_ == nullptr) {
    PdfCanvas canvas(look_, glyphs_, pictures_);
    PaintWithoutPageTotals(document, page, canvas);
    return canvas.Finish();
  }
  TaggedCanvas canvas(look_, glyphs_, pictures_, *tags_);
  PaintWithoutPageTotals(document, page, canvas);
  std::string content = canvas.Finish();
  marks_[number] = canvas.TakeMarks();
  return content;
}

void PdfPages::Finish(const Document& document) {
  std::vector<QPDFObjectHandle> contents;
  for (const int page : sheets_) contents.push_back(WholeContent(document, page));
  const PictureContent wanted{look_.Greys ? Inks::Greys : Inks::AsTheyAre, tags_ != nullptr};
  const PdfResources resources = MakeResources(pdf_, glyphs_, pictures_, glyphs_.Font(), compressed_, wanted);
  compressed_.Finish();
  if (look_.Greys) TurnIntoGreys(pdf_, resources.InkedForms);
  QPDFPageDocumentHelper pages(pdf_);
  for (const QPDFObjectHandle& content : contents)
    pages.addPage(NewPage(content, resources.Dictionary), false);
}

QPDFObjectHandle PdfPages::NewStream(std::string content) {
  QPDFObjectHandle stream = pdf_.newStream();
  compressed_.Add(stream, std::move(content));
  return stream;
}

QPDFObjectHandle PdfPages::WholeContent(const Document& document, int page) {
  PdfCanvas canvas(glyphs_, pictures_);
  PaintPageTotals(document, static_cast<std::size_t>(page), canvas);
  std::string total = canvas.Finish();
  if (total.empty()) return contents_.at(page);
  if (tags_ != nullptr) total = FooterDecoration + total + EndOfMarkedContent;
  const auto [known, isNew] = totals_.try_emplace(total);
  if (isNew) known->second = NewStream(total);
  return QPDFObjectHandle::newArray({contents_.at(page), known->second});
}

QPDFObjectHandle PdfPages::NewPage(const QPDFObjectHandle& content, const QPDFObjectHandle& resources) {
  QPDFObjectHandle page = QPDFObjectHandle::newDictionary();
  page.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
  const QPDFObjectHandle zero = QPDFObjectHandle::newInteger(0);
  page.replaceKey("/MediaBox", QPDFObjectHandle::newArray(
                                   {zero, zero, Points(look_.Paper.width()), Points(look_.Paper.height())}));
  page.replaceKey("/Contents", content);
  page.replaceKey("/Resources", resources);
  return pdf_.makeIndirectObject(page);
}

}  // namespace tarvis
