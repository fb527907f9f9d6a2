#include "report/engine/document.h"

#include <algorithm>

namespace tarvis {

std::span<const std::uint32_t> PageTotalsOf(const Document& document, const Page& page) {
  const std::vector<std::uint32_t>& totals = document.PageTotals;
  const auto first = std::ranges::lower_bound(totals, page.FirstItem);
  const auto end = std::lower_bound(first, totals.end(), page.FirstItem + page.ItemCount);
  return {first, end};
}

std::uint16_t StyleIndex(Document& document, const TextStyle& style) {
  auto& styles = document.Styles;
  auto found = std::find(styles.begin(), styles.end(), style);
  if (found == styles.end()) found = styles.insert(styles.end(), style);
  return static_cast<std::uint16_t>(found - styles.begin());
}

}  // namespace tarvis
