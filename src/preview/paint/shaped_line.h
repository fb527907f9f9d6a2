// A shaped line in the fonts of the reports. Measures are in em and don't depend on any device.
#pragma once

#include <string_view>
#include <vector>

#include "pictures/shaped_text.h"
#include "preview/paint/report_font.h"
#include "report/engine/text_flow.h"

namespace tarvis {

struct ShapedLine {
  std::vector<TextCluster> Clusters;       // from left to right; their faces are those of the ReportFont
  std::vector<CharacterPlace> Characters;  // in the order of the text
  float Advance = 0;
};

// `line` is UTF-8 in normal form C.
ShapedLine ShapeLine(std::string_view line, bool bold, TextFlow flow, ReportFont& font);

// The same, kept for the thread that asks; valid until its next call.
const ShapedLine& KnownLine(std::string_view line, bool bold, TextFlow flow, ReportFont& font);

// Its advance only, which costs less.
float ShapedAdvance(std::string_view line, bool bold, TextFlow flow, const ReportFont& font);

}  // namespace tarvis
