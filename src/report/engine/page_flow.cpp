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
    : document_(document), page_(document, contents, bands, headerHeight, footerHeight) {}

void PageFlow::BeginGroup(OpenGroup& group) {
  Push(GroupBegins{&group});
}
void PageFlow::EndGroup(OpenGroup& group) {
  Push(GroupEnds{&group});
}
// A header that is higher than half a page, such as a graph, is content: nothing waits below it for its rows.
void PageFlow::Add(Band band) {
  if (band.Height > page_.BodyHeight() / 2) band.IsHeader = false;
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
  page_.Finish();
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
                 .Used = page_.Used(),
                 .Page = page_.BodyHeight(),
                 .FreshPage = page_.FreshRoom(group->Parent),
                 .StartsNewPage = newPageWanted_,
                 .HasRows = page_.HasRows()};
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
      const bool tooHigh = height > RoundingRoom && !page_.Fits(height);
      const bool startsFresh = unit.Start == PageStart::FreshPage || (unit.Steps > 1 && tooHigh);
      const bool moves = isFirst && page_.HasRows() && startsFresh;
      const bool fitsThere = tooHigh && page_.FitsNext(height, band->Group);
      if (page_.HasPrinted() && !newPageWanted_ && (moves || fitsThere)) page_.Turn(band->Group);
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
  page_.CountHeadersAsRows();
}

void PageFlow::Place(const NewPage& /*newPage*/) {
  newPageWanted_ = true;
}

void PageFlow::Place(const RowBegins& begins) const {
  begins.Row->Page = page_.Count();
  begins.Row->Top = newPageWanted_ ? 0 : page_.Used();
}

void PageFlow::Place(const RowEnds& ends) {
  const FlowRow& row = *ends.Row;
  const float top = row.Page == page_.Count() ? row.Top : 0;
  page_.LeaveRoomTo(top + row.OwnHeight);
}

void PageFlow::Place(Band& band) {
  const bool prints = band.Height > 0 || !band.Items.empty();
  page_.OpenIfNone();
  if (newPageWanted_ && prints) {
    newPageWanted_ = false;
    page_.TurnIfUsed();
  }
  if (band.Height <= 0 || page_.Fits(band.Height)) {
    page_.Put(band);
    return;
  }
  PlaceTallBand(band);
}

// Starts on a fresh page unless this one has only headers, and is cut between lines of text.
void PageFlow::PlaceTallBand(Band& band) {
  if (page_.HasRows() || (page_.HasPrinted() && page_.FitsNext(band.Height, band.Group)))
    page_.Turn(band.Group);
  while (!page_.Fits(band.Height)) {
    if (PlacePieceOf(band) == Cut::Impossible) break;
    if (band.Items.empty()) return;
    page_.Turn(band.Group);
  }
  page_.Put(band);
}

// Places what fits of a band that is too high for this page. Impossible if it must be placed as it is:
// nothing can be cut off it, also not on a fresh page, or it fits by now.
PageFlow::Cut PageFlow::PlacePieceOf(Band& band) {
  const float room = page_.Room();
  const float freshRoom = page_.FreshRoom(band.Group);
  const bool isFresh = !page_.HasPrinted() || room >= freshRoom - RoundingRoom;
  FitPictures(band, room, isFresh ? room : freshRoom, document_);
  if (page_.Fits(band.Height)) return Cut::Impossible;
  // The next page has more room: no piece that is nothing but an empty frame.
  if (!isFresh && !HasWholeAbove(band, room)) return Cut::Done;
  Band first = CutBand(band, room);
  if (first.Height <= 0) return Cut::Impossible;
  page_.Put(first);
  return Cut::Done;
}

}  // namespace tarvis
