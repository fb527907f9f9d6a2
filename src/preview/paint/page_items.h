// The items of one page.
#pragma once

#include <cassert>
#include <span>

#include "report/engine/document.h"

namespace tarvis {

// In the order in which they were composed; they live as long as the document.
inline std::span<const Item> ItemsOf(const Document& document, std::size_t page) {
  assert(page < document.Pages.size());
  const Page& range = document.Pages[page];
  return std::span(document.Items).subspan(range.FirstItem, range.ItemCount);
}

}  // namespace tarvis
