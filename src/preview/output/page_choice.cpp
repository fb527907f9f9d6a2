#include "preview/output/page_choice.h"

#include <algorithm>

namespace tarvis {
namespace {

bool IsIn(PageSet set, int number) {
  return set == PageSet::All || (set == PageSet::Odd) == (number % 2 != 0);
}

std::vector<int> ChosenPages(const PageChoice& choice, int pageCount) {
  QList<QPageRanges::Range> ranges = choice.Ranges.toRangeList();
  if (ranges.isEmpty()) ranges.append({1, pageCount});
  std::vector<int> pages;
  for (const QPageRanges::Range& range : ranges) {
    for (int number = range.from; number <= std::min(range.to, pageCount); ++number)
      if (IsIn(choice.Set, number)) pages.push_back(number - 1);
  }
  return pages;
}

}  // namespace

std::vector<int> PagesInOrder(const PageChoice& choice, int pageCount) {
  std::vector<int> pages = ChosenPages(choice, pageCount);
  if (choice.LastFirst) std::reverse(pages.begin(), pages.end());
  std::vector<int> order;
  if (choice.Collated) {
    for (int copy = 0; copy < choice.Copies; ++copy) order.insert(order.end(), pages.begin(), pages.end());
  } else {
    for (const int page : pages) order.insert(order.end(), static_cast<std::size_t>(choice.Copies), page);
  }
  return order;
}

}  // namespace tarvis
