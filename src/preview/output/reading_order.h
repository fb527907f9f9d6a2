// Pages for files and printers: they are painted with their texts in reading order, since what is copied from
// a PDF, or read aloud, comes in the order of painting. The screen does without, as that order takes time to
// find.
#pragma once

#include "preview/paint/page_painter.h"

namespace tarvis {

void PaintInReadingOrder(const Document& document, std::size_t page, Canvas& canvas);

// The same in two steps, for pages that are painted before it is known how many there are.
void PaintWithoutPageTotals(const Document& document, std::size_t page, Canvas& canvas);
void PaintPageTotals(const Document& document, std::size_t page, Canvas& canvas);

}  // namespace tarvis
