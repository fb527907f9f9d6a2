// Decides on which page each finished band is placed: page breaks, kept groups, repeated headers, page
// footers.
//
//   composer ──bands, groups, rows──> queue ──when nothing can change it any more──> pages of the document
//
// The queue holds back headers until something follows them, and a group that is to stay on one page until
// its end is known or it has become longer than a page. Bands are moved, never composed again.
#pragma once

#include <deque>
#include <optional>
#include <variant>
#include <vector>

#include "report/engine/page_in_progress.h"

namespace tarvis {

// A row of a section that holds a sub-report; its inner bands flow.
struct FlowRow {
  float OwnHeight = 0;
  int Page = 0;  // where it begins
  float Top = 0;
};

// Where a unit of bands begins.
enum class PageStart { WhereItFits, FreshPage };

class PageFlow {
 public:
  // The heights are those of the page header and footer sections, in twips. All references must outlive the
  // flow.
  PageFlow(Document& document, ContentsTree& contents, PageBands& bands, float headerHeight,
           float footerHeight);

  void BeginGroup(OpenGroup& group);
  void EndGroup(OpenGroup& group);
  void Add(Band band);
  void BeginRow(FlowRow& row);
  void EndRow(FlowRow& row);
  // What prints next starts on a fresh page.
  void StartNewPage();
  // Places what is left and closes the last page; a document has at least one page.
  void Finish();

 private:
  struct GroupBegins {
    OpenGroup* Group;
  };
  struct GroupEnds {
    OpenGroup* Group;
  };
  struct RowBegins {
    FlowRow* Row;
  };
  struct RowEnds {
    FlowRow* Row;
  };
  struct NewPage {};
  enum class Cut { Done, Impossible };
  using Step = std::variant<Band, GroupBegins, GroupEnds, RowBegins, RowEnds, NewPage>;

  // How many steps at the front of the queue can be placed together, 0 to wait, and from where on.
  struct Unit {
    std::size_t Steps = 0;
    PageStart Start = PageStart::WhereItFits;
  };

  void Push(Step step);
  void Drain();
  Unit ReadyUnit();
  // The unit of the group that begins at `begin` under `headers` twips of waiting headers; without a value if
  // the group can't be kept on one page.
  std::optional<Unit> KeptGroup(std::size_t begin, float headers);
  void PlaceUnit(const Unit& unit);
  void Place(Band& band);
  static void Place(const GroupBegins& begins);
  void Place(const GroupEnds& ends);
  void Place(const RowBegins& begins) const;
  void Place(const RowEnds& ends);
  void Place(const NewPage& newPage);
  void PlaceTallBand(Band& band);
  [[nodiscard]] Cut PlacePieceOf(Band& band);

  Document& document_;
  PageInProgress page_;
  std::deque<Step> queue_;
  bool finishing_ = false;
  bool newPageWanted_ = false;
};

}  // namespace tarvis
