#include "report/engine/page_in_progress.h"

#include <algorithm>

#include "report/engine/group_place.h"

namespace tarvis {

PageInProgress::PageInProgress(Document& document, ContentsTree& contents, PageBands& bands,
                               float headerHeight, float footerHeight)
    : document_(document),
      contents_(contents),
      bands_(bands),
      headerHeight_(headerHeight),
      footerHeight_(footerHeight) {}

void PageInProgress::OpenIfNone() {
  if (!open_) Open();
}

void PageInProgress::TurnIfUsed() {
  if (printed_) Turn(nullptr);
  used_ = 0;
}

void PageInProgress::Finish() {
  OpenIfNone();
  Close();
}

void PageInProgress::LeaveRoomTo(float height) {
  used_ = std::max(used_, std::min(height, BodyHeight()));
}

void PageInProgress::Put(const Band& band) {
  const float top = document_.Setup.Top + headerHeight_ + used_;
  for (Item item : band.Items) {
    item.Box.Top += top;
    document_.Items.push_back(item);
  }
  const int page = Count() - 1;
  if (band.Landing >= 0) {
    contents_.Land(band.Landing, page, top, band.Height);
  } else {
    contents_.Pass(page, top, band.Height);
  }
  used_ += band.Height;
  const bool prints = band.Height > 0 || !band.Items.empty();
  printed_ = printed_ || prints;
  rows_ = rows_ || (prints && !band.IsHeader);
}

void PageInProgress::Open() {
  document_.Pages.push_back({static_cast<std::uint32_t>(document_.Items.size()), 0});
  open_ = true;
  printed_ = false;
  rows_ = false;
  used_ = 0;
  const Band header = bands_.ComposePageHeader(Count() - 1);
  for (Item item : header.Items) {
    item.Box.Top += document_.Setup.Top;
    document_.Items.push_back(item);
  }
}

void PageInProgress::Close() {
  const Band footer = bands_.ComposePageFooter(Count() - 1);
  const float top = document_.Setup.Height - document_.Setup.Bottom - footerHeight_;
  for (Item item : footer.Items) {
    item.Box.Top += top;
    document_.Items.push_back(item);
  }
  Page& page = document_.Pages.back();
  page.ItemCount = static_cast<std::uint32_t>(document_.Items.size()) - page.FirstItem;
  open_ = false;
  bands_.FinishPage();
}

void PageInProgress::Turn(OpenGroup* group) {
  Close();
  Open();
  RepeatHeaders(group);
}

void PageInProgress::RepeatHeaders(OpenGroup* group) {
  if (group == nullptr) return;
  RepeatHeaders(group->Parent);
  if (!group->Repeats || !group->Begun) return;
  Band band;
  if (!bands_.ComposeRepeat(*group, band)) return;
  group->HeaderHeight = band.Height;
  if (Fits(band.Height)) Put(band);
}

float PageInProgress::RepeatedHeight(const OpenGroup* group) {
  if (group == nullptr) return 0;
  return RepeatedHeight(group->Parent) + (group->Repeats && group->Begun ? group->HeaderHeight : 0);
}

bool PageInProgress::Fits(float height) const {
  return used_ + height <= BodyHeight() + RoundingRoom;
}

// Below the headers that repeat there.
bool PageInProgress::FitsNext(float height, const OpenGroup* group) const {
  return RepeatedHeight(group) + height <= BodyHeight() + RoundingRoom;
}

float PageInProgress::BodyHeight() const {
  return document_.Setup.Height - document_.Setup.Top - document_.Setup.Bottom - headerHeight_ -
         footerHeight_;
}

}  // namespace tarvis
