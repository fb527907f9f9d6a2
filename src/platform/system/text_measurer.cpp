#include "platform/system/text_measurer.h"

#include "preview/paint/shaped_line.h"

namespace tarvis {

float QtTextMeasurer::AdvanceEm(char32_t character, bool bold) const {
  return ReportFont::OfThisThread(codePage_).Find(character, bold).AdvanceEm;
}

float QtTextMeasurer::LineAdvanceEm(std::string_view line, bool bold, TextFlow flow) const {
  return ShapedAdvance(line, bold, flow, ReportFont::OfThisThread(codePage_));
}

}  // namespace tarvis
