#include "preview/output/pdf_tag_plan.h"

#include <algorithm>
#include <set>
#include <utility>

#include "preview/paint/page_items.h"

namespace tarvis {
namespace {

using SectionOfRun = std::pair<std::uint32_t, const char*>;

bool IsOfPage(const BandLayout& layout) {
  return layout.Role == BandRole::PageHeader || layout.Role == BandRole::PageFooter;
}

}  // namespace

PdfTagPlan::PdfTagPlan(const Document& document, std::vector<int> pages)
    : document_(document), isRead_(document.Structure.Bands.size(), false) {
  std::ranges::sort(pages);
  std::set<SectionOfRun> headers;
  std::uint32_t last = 0;
  for (const int page : pages) {
    for (const Item& item : ItemsOf(document, static_cast<std::size_t>(page))) {
      if (item.Band == last || isRead_[item.Band]) continue;
      last = item.Band;
      const BandLayout& layout = document.Structure.LayoutOf(last);
      if (IsOfPage(layout)) continue;
      const bool isNew = layout.Role == BandRole::Row || headers.insert({layout.Run, layout.Section}).second;
      isRead_[last] = isNew || !layout.IsRepeated;
    }
  }
}

const BandPart* PdfTagPlan::PartOf(const Item& item) const {
  if (!IsRead(item.Band)) return nullptr;
  const DocumentStructure& structure = document_.Structure;
  for (const BandPart& part : structure.PartsOf(structure.LayoutOf(item.Band))) {
    if (part.Control != item.Control) continue;
    const bool isSilent =
        part.Role == PartRole::Picture && structure.FigureTextOf(item.Band, item.Control) == nullptr;
    return isSilent ? nullptr : &part;
  }
  return nullptr;
}

// What is at the head or foot of each page says so: readers leave it out, or offer to.
const char* PdfTagPlan::DecorationMark(const Item& item) const {
  const BandLayout& layout = document_.Structure.LayoutOf(item.Band);
  if (layout.Role == BandRole::PageFooter) return FooterDecoration;
  if (layout.Role == BandRole::PageHeader || layout.IsRepeated)
    return "/Artifact<</Type/Pagination/Subtype/Header>>BDC\n";
  return PlainDecoration;
}

}  // namespace tarvis
