#include "report/engine/page_flow.h"

#include <algorithm>
#include <utility>

#include "report/engine/band_cut.h"

namespace tarvis {
namespace {

constexpr float Rounding = 0.01F;

}  // namespace

PageFlow::PageFlow(Document& document, ContentsTree& contents, PageBands& bands, float headerHeight,
                   float footerHeight)
    : document_(document),
      contents_(contents),
      bands_(bands),
      headerHeight_(headerHeight),
      footerHeight_(footerHeight) {}

void PageFlow::BeginGroup(OpenGroup& group) {
  Push({StepKind::BeginGroup, {}, &group, nullptr});
}
void PageFlow::EndGroup(OpenGroup& group) {
  Push({StepKind::EndGroup, {}, &group, nullptr});
}
// A header that is higher than half a page, such as a graph, is content: nothing waits below it for its rows.
void PageFlow::Add(Band band) {
  if (band.Height > BodyHeight() / 2) band.IsHeader = false;
  Push({StepKind::Band, std::move(band), nullptr, nullptr});
}
void PageFlow::BeginRow(FlowRow& row) {
  Push({StepKind::BeginRow, {}, nullptr, &row});
}
void PageFlow::EndRow(FlowRow& row) {
  Push({StepKind::EndRow, {}, nullptr, &row});
}
void PageFlow::StartNewPage() {
  Push({StepKind::NewPage, {}, nullptr, nullptr});
}

void PageFlow::Finish() {
  finishing_ = true;
  Drain();
  if (!pageOpen_) OpenPage();
  ClosePage();
}

void PageFlow::Push(Step step) {
  queue_.push_back(std::move(step));
  Drain();
}

void PageFlow::Drain() {
  while (!queue_.empty()) {
    bool fresh = false;
    const std::size_t steps = ReadyUnit(fresh);
    if (steps == 0) return;
    PlaceUnit(steps, fresh);
  }
}

// The front of the queue up to the first band that is no header: headers wait for what follows them. A group
// that is to be kept is ready when its end is known; one that can't be kept counts by its headers and first
// row.
std::size_t PageFlow::ReadyUnit(bool& fresh) {
  float height = 0;
  std::size_t headers = 0;
  for (std::size_t index = 0; index < queue_.size(); ++index) {
    const Step& step = queue_[index];
    switch (step.Kind) {
      case StepKind::BeginGroup:
        if (step.Group->KeepTogether == Keep::All && !step.Group->CannotBeKept) {
          std::size_t end = 0;
          if (!GroupIsReady(index, height, end, fresh)) return 0;
          if (end > 0) return end;
        }
        break;
      case StepKind::Band:
        if (!step.Band.IsHeader) return index + 1;
        height += step.Band.Height;
        ++headers;
        break;
      case StepKind::EndGroup:
      case StepKind::EndRow:
        return index + 1;
      case StepKind::NewPage:
        if (index == 0) return 1;
        if (headers > 0) return index;
        break;
      case StepKind::BeginRow:
        if (headers == 0) return index + 1;
        break;
    }
  }
  return finishing_ ? queue_.size() : 0;
}

// False: wait for the rest of the group that begins at `begin` under `above` twips of waiting headers. True
// with `end` above 0: it can be kept, and ends before `end`. True with `end` 0: it can't be kept.
bool PageFlow::GroupIsReady(std::size_t begin, float above, std::size_t& end, bool& fresh) {
  OpenGroup* const group = queue_[begin].Group;
  const float page = BodyHeight() - RepeatedHeight(group->Parent);
  float height = 0;
  std::size_t index = begin + 1;
  for (; index < queue_.size() && queue_[index].Group != group; ++index) {
    if (queue_[index].Kind == StepKind::Band) height += queue_[index].Band.Height;
    if (queue_[index].Kind == StepKind::EndRow) height = std::max(height, queue_[index].Row->OwnHeight);
  }
  const bool complete = index < queue_.size();
  if (!complete && height <= page + Rounding) return false;
  const bool fitsHere = !newPageWanted_ && Fits(above + height);
  const bool fitsFresh = above + height <= page + Rounding && (rowsOnPage_ || newPageWanted_);
  if (complete && (fitsHere || fitsFresh)) {
    fresh = !fitsHere;
    end = index + 1;
  } else {
    group->CannotBeKept = true;
  }
  return true;
}

// A unit that doesn't fit moves whole to the next page if it fits there. Otherwise as many of its headers as
// must stay here, and the others move along with the row.
void PageFlow::PlaceUnit(std::size_t steps, bool fresh) {
  float height = 0;
  for (std::size_t index = 0; index < steps; ++index) {
    if (queue_[index].Kind == StepKind::Band) height += queue_[index].Band.Height;
  }
  bool isFirst = true;
  for (std::size_t index = 0; index < steps; ++index) {
    Step step = std::move(queue_.front());
    queue_.pop_front();
    if (step.Kind == StepKind::Band) {
      const bool tooHigh = height > Rounding && !Fits(height);
      const bool moves = isFirst && rowsOnPage_ && (fresh || (steps > 1 && tooHigh));
      const bool fitsThere = tooHigh && FitsNextPage(height, step.Band.Group);
      if (printedOnPage_ && !newPageWanted_ && (moves || fitsThere)) TurnPage(step.Band.Group);
      isFirst = false;
      height -= step.Band.Height;
    }
    PlaceStep(step);
  }
}

void PageFlow::PlaceStep(Step& step) {
  switch (step.Kind) {
    case StepKind::Band:
      PlaceBand(step.Band);
      break;
    case StepKind::BeginGroup:
      step.Group->Begun = true;
      break;
    case StepKind::EndGroup:
      // What comes now isn't part of this group: its header counts as something that stands above.
      rowsOnPage_ = rowsOnPage_ || printedOnPage_;
      break;
    case StepKind::NewPage:
      newPageWanted_ = true;
      break;
    case StepKind::BeginRow:
      step.Row->Page = static_cast<int>(document_.Pages.size());
      step.Row->Top = newPageWanted_ ? 0 : y_;
      break;
    case StepKind::EndRow: {
      const bool samePage = step.Row->Page == static_cast<int>(document_.Pages.size());
      const float top = samePage ? step.Row->Top : 0;
      y_ = std::max(y_, std::min(top + step.Row->OwnHeight, BodyHeight()));
      break;
    }
  }
}

void PageFlow::PlaceBand(Band& band) {
  const bool prints = band.Height > 0 || !band.Items.empty();
  if (!pageOpen_) OpenPage();
  if (newPageWanted_ && prints) {
    newPageWanted_ = false;
    if (printedOnPage_) TurnPage(nullptr);
    y_ = 0;
  }
  if (band.Height <= 0 || Fits(band.Height)) {
    PutOnPage(band);
    return;
  }
  PlaceTallBand(band);
}

// Starts on a fresh page unless only headers stand on this one, and is cut between lines of text.
void PageFlow::PlaceTallBand(Band& band) {
  if (rowsOnPage_ || (printedOnPage_ && FitsNextPage(band.Height, band.Group))) TurnPage(band.Group);
  while (!Fits(band.Height)) {
    if (!PlacePieceOf(band)) break;
    if (band.Items.empty()) return;
    TurnPage(band.Group);
  }
  PutOnPage(band);
}

// Places what fits of a band that is too high for this page. False if it must be placed as it is: nothing can
// be cut off it, also not on a fresh page, or it fits by now.
bool PageFlow::PlacePieceOf(Band& band) {
  const float room = BodyHeight() - y_;
  const float freshRoom = BodyHeight() - RepeatedHeight(band.Group);
  const bool isFresh = !printedOnPage_ || room >= freshRoom - Rounding;
  FitPictures(band, room, isFresh ? room : freshRoom, document_);
  if (Fits(band.Height)) return false;
  // The next page has more room: no piece that is nothing but an empty frame.
  if (!isFresh && !HasWholeAbove(band, room)) return true;
  Band first = CutBand(band, room);
  if (first.Height <= 0) return false;
  PutOnPage(first);
  return true;
}

void PageFlow::PutOnPage(Band& band) {
  const float top = document_.Setup.Top + headerHeight_ + y_;
  for (Item item : band.Items) {
    item.Box.Top += top;
    document_.Items.push_back(item);
  }
  const int page = static_cast<int>(document_.Pages.size()) - 1;
  if (band.Landing >= 0) {
    contents_.Land(band.Landing, page, top, band.Height);
  } else {
    contents_.Pass(page, top, band.Height);
  }
  y_ += band.Height;
  const bool prints = band.Height > 0 || !band.Items.empty();
  printedOnPage_ = printedOnPage_ || prints;
  rowsOnPage_ = rowsOnPage_ || (prints && !band.IsHeader);
}

void PageFlow::OpenPage() {
  document_.Pages.push_back({static_cast<std::uint32_t>(document_.Items.size()), 0});
  pageOpen_ = true;
  printedOnPage_ = false;
  rowsOnPage_ = false;
  y_ = 0;
  Band header = bands_.ComposePageHeader(static_cast<int>(document_.Pages.size()) - 1);
  for (Item item : header.Items) {
    item.Box.Top += document_.Setup.Top;
    document_.Items.push_back(item);
  }
}

void PageFlow::ClosePage() {
  const Band footer = bands_.ComposePageFooter(static_cast<int>(document_.Pages.size()) - 1);
  const float top = document_.Setup.Height - document_.Setup.Bottom - footerHeight_;
  for (Item item : footer.Items) {
    item.Box.Top += top;
    document_.Items.push_back(item);
  }
  Page& page = document_.Pages.back();
  page.ItemCount = static_cast<std::uint32_t>(document_.Items.size()) - page.FirstItem;
  pageOpen_ = false;
}

void PageFlow::TurnPage(OpenGroup* group) {
  ClosePage();
  OpenPage();
  RepeatHeaders(group);
}

void PageFlow::RepeatHeaders(OpenGroup* group) {
  if (group == nullptr) return;
  RepeatHeaders(group->Parent);
  if (!group->Repeats || !group->Begun) return;
  Band band;
  if (!bands_.ComposeRepeat(*group, band)) return;
  group->HeaderHeight = band.Height;
  if (Fits(band.Height)) PutOnPage(band);
}

float PageFlow::RepeatedHeight(const OpenGroup* group) const {
  if (group == nullptr) return 0;
  return RepeatedHeight(group->Parent) + (group->Repeats && group->Begun ? group->HeaderHeight : 0);
}

bool PageFlow::Fits(float height) const {
  return y_ + height <= BodyHeight() + Rounding;
}

// Below the headers that repeat there.
bool PageFlow::FitsNextPage(float height, const OpenGroup* group) const {
  return RepeatedHeight(group) + height <= BodyHeight() + Rounding;
}

float PageFlow::BodyHeight() const {
  return document_.Setup.Height - document_.Setup.Top - document_.Setup.Bottom - headerHeight_ -
         footerHeight_;
}

}  // namespace tarvis
