#include "report/engine/page_flow.h"

#include <algorithm>
#include <utility>

#include "report/engine/band_cut.h"
#include "report/engine/group_place.h"

namespace tarvis {
namespace {

float HeightOf(const auto& step) {
  const Band* band = std::get_if<Band>(&step);
  return band == nullptr ? 0 : band->Height;
}

}  // namespace

PageFlow::PageFlow(Document& document, ContentsTree& contents, PageBands& bands, float headerHeight,
                   float footerHeight)
    : document_(document),
      contents_(contents),
      bands_(bands),
      headerHeight_(headerHeight),
      footerHeight_(footerHeight) {}

void PageFlow::BeginGroup(OpenGroup& group) {
  Push(GroupBegins{&group});
}
void PageFlow::EndGroup(OpenGroup& group) {
  Push(GroupEnds{&group});
}
// A header that is higher than half a page, such as a graph, is content: nothing waits below it for its rows.
void PageFlow::Add(Band band) {
  if (band.Height > BodyHeight() / 2) band.IsHeader = false;
  Push(std::move(band));
}
void PageFlow::BeginRow(FlowRow& row) {
  Push(RowBegins{&row});
}
void PageFlow::EndRow(FlowRow& row) {
  Push(RowEnds{&row});
}
void PageFlow::StartNewPage() {
  Push(NewPage{});
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
    const Unit unit = ReadyUnit();
    if (unit.Steps == 0) return;
    PlaceUnit(unit);
  }
}

// The front of the queue up to the first band that is no header: headers wait for what follows them. A group
// that is to be kept is ready when its end is known; one that can't be kept counts by its headers and first
// row.
PageFlow::Unit PageFlow::ReadyUnit() {
  float headers = 0;
  bool hasHeaders = false;
  for (std::size_t index = 0; index < queue_.size(); ++index) {
    const Step& step = queue_[index];
    if (const auto* begins = std::get_if<GroupBegins>(&step)) {
      if (begins->Group->KeepTogether != Keep::All || begins->Group->CannotBeKept) continue;
      if (const std::optional<Unit> kept = KeptGroup(index, headers)) return *kept;
    } else if (const auto* band = std::get_if<Band>(&step)) {
      if (!band->IsHeader) return {.Steps = index + 1};
      headers += band->Height;
      hasHeaders = true;
    } else if (std::holds_alternative<NewPage>(step)) {
      if (index == 0) return {.Steps = 1};
      if (hasHeaders) return {.Steps = index};
    } else if (!hasHeaders || !std::holds_alternative<RowBegins>(step)) {
      return {.Steps = index + 1};
    }
  }
  return {.Steps = finishing_ ? queue_.size() : 0};
}

std::optional<PageFlow::Unit> PageFlow::KeptGroup(std::size_t begin, float headers) {
  OpenGroup* const group = std::get<GroupBegins>(queue_[begin]).Group;
  GroupRoom room{.Headers = headers,
                 .Used = y_,
                 .Page = BodyHeight(),
                 .FreshPage = BodyHeight() - RepeatedHeight(group->Parent),
                 .StartsNewPage = newPageWanted_,
                 .HasRows = rowsOnPage_};
  std::size_t index = begin + 1;
  for (; index < queue_.size(); ++index) {
    const auto* ends = std::get_if<GroupEnds>(&queue_[index]);
    room.IsComplete = ends != nullptr && ends->Group == group;
    if (room.IsComplete) break;
    room.Group += HeightOf(queue_[index]);
    if (const auto* row = std::get_if<RowEnds>(&queue_[index]))
      room.Group = std::max(room.Group, row->Row->OwnHeight);
  }
  switch (PlaceOf(room)) {
    case GroupPlace::NotKnownYet:
      return Unit{};
    case GroupPlace::ThisPage:
      return Unit{.Steps = index + 1};
    case GroupPlace::FreshPage:
      return Unit{.Steps = index + 1, .Start = PageStart::FreshPage};
    case GroupPlace::CannotBeKept:
      break;
  }
  group->CannotBeKept = true;
  return std::nullopt;
}

// A unit that doesn't fit moves whole to the next page if it fits there. Otherwise as many of its headers as
// must stay here, and the others move along with the row.
void PageFlow::PlaceUnit(const Unit& unit) {
  float height = 0;
  for (std::size_t index = 0; index < unit.Steps; ++index) height += HeightOf(queue_[index]);
  bool isFirst = true;
  for (std::size_t index = 0; index < unit.Steps; ++index) {
    Step step = std::move(queue_.front());
    queue_.pop_front();
    if (const auto* band = std::get_if<Band>(&step)) {
      const bool tooHigh = height > RoundingRoom && !Fits(height);
      const bool startsFresh = unit.Start == PageStart::FreshPage || (unit.Steps > 1 && tooHigh);
      const bool moves = isFirst && rowsOnPage_ && startsFresh;
      const bool fitsThere = tooHigh && FitsNextPage(height, band->Group);
      if (printedOnPage_ && !newPageWanted_ && (moves || fitsThere)) TurnPage(band->Group);
      isFirst = false;
      height -= band->Height;
    }
    std::visit([this](auto& each) { Place(each); }, step);
  }
}

void PageFlow::Place(const GroupBegins& begins) {
  begins.Group->Begun = true;
}

// What comes now isn't part of this group: its header counts as something above it.
void PageFlow::Place(const GroupEnds& /*ends*/) {
  rowsOnPage_ = rowsOnPage_ || printedOnPage_;
}

void PageFlow::Place(const NewPage& /*newPage*/) {
  newPageWanted_ = true;
}

void PageFlow::Place(const RowBegins& begins) const {
  begins.Row->Page = static_cast<int>(document_.Pages.size());
  begins.Row->Top = newPageWanted_ ? 0 : y_;
}

void PageFlow::Place(const RowEnds& ends) {
  const FlowRow& row = *ends.Row;
  const float top = row.Page == static_cast<int>(document_.Pages.size()) ? row.Top : 0;
  y_ = std::max(y_, std::min(top + row.OwnHeight, BodyHeight()));
}

void PageFlow::Place(Band& band) {
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

// Starts on a fresh page unless this one has only headers, and is cut between lines of text.
void PageFlow::PlaceTallBand(Band& band) {
  if (rowsOnPage_ || (printedOnPage_ && FitsNextPage(band.Height, band.Group))) TurnPage(band.Group);
  while (!Fits(band.Height)) {
    if (PlacePieceOf(band) == Cut::Impossible) break;
    if (band.Items.empty()) return;
    TurnPage(band.Group);
  }
  PutOnPage(band);
}

// Places what fits of a band that is too high for this page. Impossible if it must be placed as it is:
// nothing can be cut off it, also not on a fresh page, or it fits by now.
PageFlow::Cut PageFlow::PlacePieceOf(Band& band) {
  const float room = BodyHeight() - y_;
  const float freshRoom = BodyHeight() - RepeatedHeight(band.Group);
  const bool isFresh = !printedOnPage_ || room >= freshRoom - RoundingRoom;
  FitPictures(band, room, isFresh ? room : freshRoom, document_);
  if (Fits(band.Height)) return Cut::Impossible;
  // The next page has more room: no piece that is nothing but an empty frame.
  if (!isFresh && !HasWholeAbove(band, room)) return Cut::Done;
  Band first = CutBand(band, room);
  if (first.Height <= 0) return Cut::Impossible;
  PutOnPage(first);
  return Cut::Done;
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
  return y_ + height <= BodyHeight() + RoundingRoom;
}

// Below the headers that repeat there.
bool PageFlow::FitsNextPage(float height, const OpenGroup* group) const {
  return RepeatedHeight(group) + height <= BodyHeight() + RoundingRoom;
}

float PageFlow::BodyHeight() const {
  return document_.Setup.Height - document_.Setup.Top - document_.Setup.Bottom - headerHeight_ -
         footerHeight_;
}

}  // namespace tarvis
