// Which pages of a document are put on paper or into a file, and in which order.
#pragma once

#include <QPageRanges>
#include <vector>

namespace tarvis {

// By the numbers at the foot of the pages.
enum class PageSet { All, Odd, Even };

struct PageChoice {
  QPageRanges Ranges;  // page numbers, counted from 1; empty for all pages
  PageSet Set = PageSet::All;
  bool LastFirst = false;
  int Copies = 1;  // that the printer doesn't make itself
  bool Collated = true;
};

// Indexes of the chosen pages of a document of `pageCount` pages, as they follow one another in the output.
[[nodiscard]] std::vector<int> PagesInOrder(const PageChoice& choice, int pageCount);

}  // namespace tarvis
