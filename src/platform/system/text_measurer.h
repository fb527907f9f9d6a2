// Widths of characters as the reports are painted: the composer's interface to the fonts.
#pragma once

#include "report/engine/text_measurer.h"

namespace tarvis {

// Needs a QGuiApplication; to be used on one thread at a time.
class QtTextMeasurer : public TextMeasurer {
 public:
  // `codePage` is that of the texts.
  explicit QtTextMeasurer(int codePage = 0) : codePage_(codePage) {}

  int CodePage() const override { return codePage_; }
  float AdvanceEm(char32_t character, bool bold) const override;
  float LineAdvanceEm(std::string_view line, bool bold, TextFlow flow) const override;

 private:
  int codePage_;
};

}  // namespace tarvis
