// A shaped line in the fonts of the reports. Measures are in em and don't depend on any device.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "pictures/shaped_text.h"
#include "preview/paint/report_font.h"
#include "report/engine/text_flow.h"

namespace tarvis {

// Its place is that of its origin: from the left edge of the line, and below the baseline.
struct ShapedGlyph {
  std::uint16_t Face = 0;
  std::uint32_t Glyph = 0;
  float X = 0;
  float Y = 0;
};

// Characters that share their glyphs: a letter with its marks, or letters that are one sign.
struct ShapedCluster {
  std::u32string Text;
  bool RunsToTheLeft = false;
  std::vector<ShapedGlyph> Glyphs;
  float Left = 0;
  float Right = 0;
  std::size_t FirstCharacter = 0;
};

struct ShapedLine {
  std::vector<ShapedCluster> Clusters;     // from left to right
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
