#include "report/engine/line_breaker.h"

#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/utext.h>

#include "text/run_time_failure.h"

namespace tarvis {

struct LineBreaker::Iterator {
  std::unique_ptr<icu::BreakIterator> Breaks;
};

LineBreaker::LineBreaker() : iterator_(std::make_unique<Iterator>()) {
  UErrorCode status = U_ZERO_ERROR;
  iterator_->Breaks.reset(icu::BreakIterator::createLineInstance(icu::Locale::getRoot(), status));
  if (U_FAILURE(status)) throw RunTimeFailure("no rules for line breaking");
}

LineBreaker::~LineBreaker() = default;

const std::vector<int>& LineBreaker::Opportunities(std::string_view text) {
  offsets_.clear();
  UErrorCode status = U_ZERO_ERROR;
  UText* utf8 = utext_openUTF8(nullptr, text.data(), static_cast<std::int64_t>(text.size()), &status);
  iterator_->Breaks->setText(utf8, status);
  if (U_SUCCESS(status)) {
    iterator_->Breaks->first();
    for (int offset = iterator_->Breaks->next(); offset != icu::BreakIterator::DONE;
         offset = iterator_->Breaks->next()) {
      offsets_.push_back(offset);
    }
  }
  utext_close(utf8);
  if (offsets_.empty() || offsets_.back() != static_cast<int>(text.size())) {
    offsets_.push_back(static_cast<int>(text.size()));
  }
  return offsets_;
}

}  // namespace tarvis
