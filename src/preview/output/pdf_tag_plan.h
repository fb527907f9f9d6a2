// Which items of a document are read from a tagged PDF, and which are decoration there.
#pragma once

#include <vector>

#include "report/engine/document.h"

namespace tarvis {

class PdfTagPlan {
 public:
  // `pages` are those that the file has, as indexes in any order. A header that is repeated on a later page
  // is read only if its first printing isn't in the file. `document` must outlive the plan.
  PdfTagPlan(const Document& document, std::vector<int> pages);

  const Document& Source() const { return document_; }
  bool IsRead(std::uint32_t band) const { return isRead_[band]; }
  // What the item is to a reader; nullptr for decoration.
  const BandPart* PartOf(const Item& item) const;
  // How content marks an item that isn't read.
  const char* DecorationMark(const Item& item) const;

 private:
  const Document& document_;
  std::vector<bool> isRead_;  // by Item::Band
};

// How content marks what belongs to no item: fills, borders, lines; and what is at the foot of each page.
inline constexpr const char* PlainDecoration = "/Artifact BMC\n";
inline constexpr const char* FooterDecoration = "/Artifact<</Type/Pagination/Subtype/Footer>>BDC\n";
// The end of these and of all other marked content.
inline constexpr const char* EndOfMarkedContent = "EMC\n";

}  // namespace tarvis
