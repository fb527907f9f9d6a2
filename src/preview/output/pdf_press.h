// A PDF that is made while its document is composed: another thread paints each page as soon as it is
// finished.
//
//   composing thread ──pages──> thread that paints ──contents──> ContentCompressor
#pragma once

#include <optional>
#include <string>

#include "preview/output/pdf_in_progress.h"
#include "preview/output/pdf_info.h"
#include "preview/output/pdf_sheets.h"
#include "preview/output/progress.h"
#include "preview/output/work_thread.h"
#include "report/engine/composer.h"

namespace tarvis {

// The PDF has the same bytes as the one that is made of the whole document.
class PdfPress : public PageTaker {
 public:
  // `codePage` is that of the texts. `progress` is called in the thread that paints, with a total of 0 as
  // long as that isn't known. What is not finished when the press ends is given up.
  PdfPress(const PdfLook& look, int codePage, Progress progress);

  // Waits while many pages are still to be painted, so that they don't fill the memory.
  void Take(const Document& document, std::size_t page) override;
  // The bytes of the PDF of the document that Compose has returned; empty if `progress` cancelled. To be
  // called once, as the last one. Throws what painting threw.
  std::string Finish(const Document& document, const PdfInfo& info);

 private:
  // `document` has one page, which is that number of the whole.
  void Paint(const Document& document, std::size_t number);

  static constexpr std::size_t MostWaiting = 8;  // pages

  const Progress progress_;
  // Of the thread that paints.
  std::optional<PdfInProgress> pdf_;
  bool isCancelled_ = false;
  // The last one, since it ends before all that it works on. The fonts of the PDF belong to its thread.
  WorkThread painter_{MostWaiting, [this] { pdf_.reset(); }};
};

}  // namespace tarvis
