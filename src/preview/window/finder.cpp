#include "preview/window/finder.h"

#include <algorithm>

#include "preview/pages/page_places.h"
#include "preview/window/find_bar.h"

namespace tarvis {
namespace {

const QColor HitTint(255, 235, 130);
const QColor CurrentTint(255, 170, 60);

// The first hit on `page` or after it.
std::vector<SearchHit>::const_iterator FirstFrom(const std::vector<SearchHit>& hits, int page) {
  return std::partition_point(hits.begin(), hits.end(),
                              [page](const SearchHit& hit) { return hit.Page < page; });
}

}  // namespace

Finder::Finder(FindBar& bar, DocumentText& text, PageView& view, QObject* parent)
    : QObject(parent), bar_(bar), text_(text), view_(view) {
  setObjectName(QStringLiteral("finder"));
  connect(&bar, &FindBar::Changed, this, &Finder::SearchAgain);
  connect(&bar, &FindBar::NextWanted, this, [this] { Step(1); });
  connect(&bar, &FindBar::PreviousWanted, this, [this] { Step(-1); });
  connect(&bar, &FindBar::Closed, this, &Finder::Close);
}

void Finder::Open() {
  bar_.Open();
  if (!bar_.Text().isEmpty()) SearchAgain();
}

void Finder::Close() {
  bar_.hide();
  hits_ = std::make_shared<std::vector<SearchHit>>();
  current_ = -1;
  emit HitsChanged();
  view_.viewport()->update();
  view_.setFocus();
}

void Finder::Step(int direction) {
  if (bar_.Text().isEmpty()) return bar_.Open();
  if (!bar_.isVisible()) return Open();
  if (hits_->empty()) return;
  const int count = static_cast<int>(hits_->size());
  current_ = (current_ + direction + count) % count;
  ShowCurrent();
}

// As one types, the first hit from the page being read on is shown.
void Finder::SearchAgain() {
  hits_ = std::make_shared<std::vector<SearchHit>>(Search(text_, bar_.Text(), bar_.Options()));
  const auto from = FirstFrom(*hits_, view_.CurrentPage());
  current_ =
      hits_->empty() ? -1 : static_cast<int>((from == hits_->end() ? hits_->begin() : from) - hits_->begin());
  emit HitsChanged();
  ShowCurrent();
}

void Finder::GoTo(int hit) {
  if (hit < 0 || hit >= static_cast<int>(hits_->size())) return;
  // A click in a list chooses the entry twice: as the current one, and as the one that was clicked.
  if (hit == current_ && IsInSight((*hits_)[static_cast<std::size_t>(hit)])) return;
  current_ = hit;
  ShowCurrent();
}

bool Finder::IsInSight(const SearchHit& hit) const {
  const std::vector<int> pages = PagesInSight(view_);
  return std::ranges::find(pages, hit.Page) != pages.end() &&
         QRectF(view_.viewport()->rect()).contains(PlaceInView(view_, hit.Page, hit.Boxes.front()));
}

void Finder::ShowCurrent() {
  bar_.ShowCount(current_ + 1, static_cast<int>(hits_->size()));
  if (current_ >= 0) {
    const SearchHit& hit = (*hits_)[static_cast<std::size_t>(current_)];
    if (hit.Page != view_.CurrentPage()) emit Leaving();
    view_.Reveal(hit.Page, hit.Boxes.front());
    emit CurrentChanged(current_);
  }
  view_.viewport()->update();
}

std::vector<Highlight> Finder::Marks(int page) const {
  std::vector<Highlight> marks;
  for (auto hit = FirstFrom(*hits_, page); hit != hits_->end() && hit->Page == page; ++hit) {
    const bool isCurrent = hit - hits_->begin() == current_;
    for (const QRectF& box : hit->Boxes) marks.push_back({box, isCurrent ? CurrentTint : HitTint});
  }
  return marks;
}

}  // namespace tarvis
