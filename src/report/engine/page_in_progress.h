// The page that is being filled: what is on it, how much room is left, and what repeats on the next one.
#pragma once

#include "report/engine/band.h"
#include "report/engine/contents_tree.h"
#include "report/engine/document.h"

namespace tarvis {

// A group from its header's first printing to its last footer.
struct OpenGroup {
  OpenGroup* Parent = nullptr;  // the group around it, also that of a report around this report
  Section* Header = nullptr;
  ActiveReport* Report = nullptr;
  std::uint32_t Run = 0;  // of this report, index of DocumentStructure::Runs
  float Left = 0;         // of the report, twips from the paper's left edge
  Keep KeepTogether = Keep::None;
  bool Repeats = false;
  bool CannotBeKept = false;  // longer than a page, or nothing above it to leave: keep the first detail only
  bool Begun = false;         // its header has been placed on a page
  float HeaderHeight = 0;     // as composed last
};

// What is asked for when pages open and close.
class PageBands {
 public:
  virtual ~PageBands() = default;

  // Composes a group header once more for a new page; false if its report has been unloaded.
  virtual bool ComposeRepeat(OpenGroup& group, Band& band) = 0;
  // Composes page header and page footer for the page with this index; absent ones give a band of height 0.
  virtual Band ComposePageHeader(int page) = 0;
  virtual Band ComposePageFooter(int page) = 0;
  // The last page has all of its items.
  virtual void FinishPage() = 0;
};

class PageInProgress {
 public:
  // The heights are those of the page header and footer sections, in twips. All references must outlive it.
  PageInProgress(Document& document, ContentsTree& contents, PageBands& bands, float headerHeight,
                 float footerHeight);

  void OpenIfNone();
  // Begins a fresh page with the repeating headers of `group` and of the groups around it; null for none.
  void Turn(OpenGroup* group);
  // The same if anything has been printed on this page.
  void TurnIfUsed();
  // Closes the last page; a document has at least one page.
  void Finish();

  void Put(const Band& band);
  // Leaves the room up to `height` free, as far as the page goes.
  void LeaveRoomTo(float height);
  // From now on the headers on this page count as rows.
  void CountHeadersAsRows() { rows_ = rows_ || printed_; }

  // How many pages there are, with this one.
  int Count() const { return static_cast<int>(document_.Pages.size()); }
  float Used() const { return used_; }
  float Room() const { return BodyHeight() - used_; }
  bool HasPrinted() const { return printed_; }
  // Whether there is more than headers of the reports around what comes next.
  bool HasRows() const { return rows_; }
  [[nodiscard]] bool Fits(float height) const;
  // Whether it fits on a fresh page below the headers of `group` that repeat there.
  [[nodiscard]] bool FitsNext(float height, const OpenGroup* group) const;
  // The room on a fresh page below these headers.
  float FreshRoom(const OpenGroup* group) const { return BodyHeight() - RepeatedHeight(group); }
  float BodyHeight() const;

 private:
  void Open();
  void Close();
  void RepeatHeaders(OpenGroup* group);
  static float RepeatedHeight(const OpenGroup* group);

  Document& document_;
  ContentsTree& contents_;
  PageBands& bands_;
  const float headerHeight_;
  const float footerHeight_;
  bool open_ = false;
  bool printed_ = false;
  bool rows_ = false;
  float used_ = 0;  // twips below the top of the body
};

}  // namespace tarvis
