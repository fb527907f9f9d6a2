#include "preview/output/pdf_press.h"

#include <memory>
#include <string>
#include <utility>

namespace tarvis {
namespace {

bool IsText(const Item& item) {
  return item.Kind == ItemKind::Text;
}

// Adds the texts of the items, with characters of their own: those of `document` end with it if composing
// fails while the page is still painted.
void TakeTexts(const Document& document, Document& one) {
  std::size_t size = 0;
  for (const Item& item : one.Items) size += IsText(item) ? document.Texts[item.Source].Text.size() : 0;
  std::string& characters = one.Storage.emplace_back();
  characters.reserve(size);  // texts point into it
  for (Item& item : one.Items) {
    if (!IsText(item)) continue;
    TextPiece piece = document.Texts[item.Source];
    const std::size_t begin = characters.size();
    characters += piece.Text;
    piece.Text = {characters.data() + begin, piece.Text.size()};
    item.Source = static_cast<std::uint32_t>(one.Texts.size());
    one.Texts.push_back(piece);
  }
}

// A document of which the given page is the only one.
std::shared_ptr<const Document> WithThisPage(const Document& document, const Page& page) {
  auto one = std::make_shared<Document>();
  one->Setup = document.Setup;
  one->CodePage = document.CodePage;
  one->Styles = document.Styles;
  one->Pages.push_back({0, page.ItemCount});
  const auto first = document.Items.begin() + static_cast<std::ptrdiff_t>(page.FirstItem);
  one->Items.assign(first, first + static_cast<std::ptrdiff_t>(page.ItemCount));
  TakeTexts(document, *one);
  for (Item& item : one->Items) {
    if (item.Kind != ItemKind::Picture) continue;
    one->Pictures.push_back(document.Pictures[item.Source]);
    item.Source = static_cast<std::uint32_t>(one->Pictures.size() - 1);
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
  painter_.Add([this, taken = WithThisPage(document, document.Pages[page]), page] { Paint(*taken, page); });
}

void PdfPress::Paint(const Document& document, std::size_t number) {
  isCancelled_ = isCancelled_ || !progress_(static_cast<int>(number), 0);
  if (isCancelled_) return;
  pdf_->Add(document, 0, number);
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
