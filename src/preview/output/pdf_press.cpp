#include "preview/output/pdf_press.h"

#include <memory>
#include <utility>

namespace tarvis {
namespace {

// A document whose only page that isn't empty is the given one. Its characters are those of `document`.
std::shared_ptr<const Document> WithThisPage(const Document& document, std::size_t number) {
  const Page& page = document.Pages[number];
  auto one = std::make_shared<Document>();
  one->Setup = document.Setup;
  one->CodePage = document.CodePage;
  one->Styles = document.Styles;
  one->Pages.resize(number);
  one->Pages.push_back({0, page.ItemCount});
  const auto first = document.Items.begin() + static_cast<std::ptrdiff_t>(page.FirstItem);
  one->Items.assign(first, first + static_cast<std::ptrdiff_t>(page.ItemCount));
  for (Item& item : one->Items) {
    if (item.Kind == ItemKind::Text) {
      one->Texts.push_back(document.Texts[item.Source]);
      item.Source = static_cast<std::uint32_t>(one->Texts.size() - 1);
    } else if (item.Kind == ItemKind::Picture) {
      one->Pictures.push_back(document.Pictures[item.Source]);
      item.Source = static_cast<std::uint32_t>(one->Pictures.size() - 1);
    }
  }
  for (const std::uint32_t total : PageTotalsOf(document, page))
    one->PageTotals.push_back(total - page.FirstItem);
  return one;
}

}  // namespace

// Fonts take a while to open, which the reading of the data takes, too.
PdfPress::PdfPress(const PdfLook& look, int codePage, Progress progress) : progress_(std::move(progress)) {
  painter_.Add([this, look, codePage] { pdf_.emplace(look, codePage); });
}

void PdfPress::Take(const Document& document, std::size_t page) {
  painter_.Add([this, taken = WithThisPage(document, page)] { Paint(*taken); });
}

void PdfPress::Paint(const Document& document) {
  const std::size_t page = document.Pages.size() - 1;
  isCancelled_ = isCancelled_ || !progress_(static_cast<int>(page), 0);
  if (isCancelled_) return;
  pdf_->Add(document, page);
}

std::string PdfPress::Finish(const Document& document, const PdfInfo& info) {
  std::string bytes;
  painter_.Add([&] {
    if (isCancelled_) return;
    bytes = pdf_->Finish(document, info);
    const int count = static_cast<int>(document.Pages.size());
    if (!progress_(count, count)) bytes.clear();
  });
  painter_.Finish();
  return bytes;
}

}  // namespace tarvis
