#include "report/engine/line_breaker.h"

#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/utext.h>

#include "text/run_time_failure.h"

namespace tarvis {

namespace {

using Breaks = std::unique_ptr<icu::BreakIterator>;

// Sets the iterator to UTF-8 text, for as long as this object lives.
class OpenText {
 public:
  OpenText(icu::BreakIterator& breaks, std::string_view text)
      : text_(utext_openUTF8(nullptr, text.data(), static_cast<std::int64_t>(text.size()), &status_)) {
    breaks.setText(text_, status_);
  }
  ~OpenText() { utext_close(text_); }
  OpenText(const OpenText&) = delete;
  OpenText& operator=(const OpenText&) = delete;

  bool IsReady() const { return U_SUCCESS(status_); }

 private:
  UErrorCode status_ = U_ZERO_ERROR;
  UText* text_;
};

Breaks Make(icu::BreakIterator* (*create)(const icu::Locale&, UErrorCode&)) {
  UErrorCode status = U_ZERO_ERROR;
  Breaks breaks(create(icu::Locale::getRoot(), status));
  if (U_FAILURE(status)) throw RunTimeFailure("no rules for line breaking");
  return breaks;
}

}  // namespace

struct LineBreaker::Iterators {
  Breaks Lines = Make(icu::BreakIterator::createLineInstance);
  Breaks Clusters = Make(icu::BreakIterator::createCharacterInstance);
};

LineBreaker::LineBreaker() : iterators_(std::make_unique<Iterators>()) {}

LineBreaker::~LineBreaker() = default;

const std::vector<int>& LineBreaker::Opportunities(std::string_view text) {
  offsets_.clear();
  icu::BreakIterator& breaks = *iterators_->Lines;
  if (const OpenText open(breaks, text); open.IsReady()) {
    breaks.first();
    for (int offset = breaks.next(); offset != icu::BreakIterator::DONE; offset = breaks.next())
      offsets_.push_back(offset);
  }
  if (offsets_.empty() || offsets_.back() != static_cast<int>(text.size())) {
    offsets_.push_back(static_cast<int>(text.size()));
  }
  return offsets_;
}

std::size_t LineBreaker::FirstCluster(std::string_view text) {
  icu::BreakIterator& breaks = *iterators_->Clusters;
  const OpenText open(breaks, text);
  if (!open.IsReady()) return text.size();
  breaks.first();
  const int end = breaks.next();
  return end == icu::BreakIterator::DONE ? text.size() : static_cast<std::size_t>(end);
}

}  // namespace tarvis
