#include "platform/system/text_measurer.h"

#include "preview/paint/report_font.h"

namespace tarvis {

float QtTextMeasurer::AdvanceEm(char32_t character, bool bold) const {
  return ReportFont::OfThisThread().Find(character, bold).AdvanceEm;
}

}  // namespace tarvis
