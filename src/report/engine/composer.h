// Composes a report into a document, in one pass: no band is ever formatted twice. Pages can be taken one by
// one while later ones are composed.
#pragma once

#include "report/engine/active_report.h"
#include "report/engine/document.h"
#include "report/engine/text_measurer.h"

namespace tarvis {

// Takes pages as soon as nothing on them changes any more but the page total.
class PageTaker {
 public:
  virtual ~PageTaker() = default;

  // `document` is as far as it is composed. Its pictures and the characters of its texts live as long as the
  // document that Compose returns.
  virtual void Take(const Document& document, std::size_t page) = 0;
};

// Runs `report` with all its sub-reports and places its bands on pages. No widget, printer or screen is
// asked. Exceptions of handlers (RunTimeFailure above all) pass through.
// With a `taker` the document keeps no items but its page totals, each on its page.
Document Compose(ActiveReport& report, const PageSetup& setup, const TextMeasurer& measurer,
                 PageTaker* taker = nullptr);

}  // namespace tarvis
