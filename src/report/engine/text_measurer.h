// The interface through which the composer asks how wide text is, without a screen, a printer or a toolkit.
#pragma once

#include <string_view>

#include "report/engine/text_flow.h"
#include "report/engine/utf8.h"

namespace tarvis {

// The font of reports and dialogs, and the one with the same widths that is used where it isn't installed.
inline constexpr const char* FontFamily = "Arial";
inline constexpr const char* SubstituteFamily = "Liberation Sans";

// Arial or its metric twin, in one of two weights; other scripts come from fallback fonts.
// Source of the vertical figures: the font's own ascent 0.905 em and descent 0.212 em, for all scripts.
inline constexpr double AscentEm = 0.905;
inline constexpr double LinePitchEm = 1.117;

class TextMeasurer {
 public:
  virtual ~TextMeasurer() = default;

  // Design advance width of one character in em, without hinting or kerning. A combining mark has 0.
  virtual float AdvanceEm(char32_t character, bool bold) const = 0;

  // The code page of the texts, by which the fonts are chosen; 0 if it isn't known.
  virtual int CodePage() const { return 0; }

  // Advance width in em of a line (UTF-8) that must be shaped, as it is painted. A measurer that knows no
  // shaping adds up the characters.
  virtual float LineAdvanceEm(std::string_view line, bool bold, TextFlow /*flow*/) const {
    float advance = 0;
    for (std::size_t offset = 0; offset < line.size();)
      advance += AdvanceEm(NextCharacter(line, offset), bold);
    return advance;
  }
};

}  // namespace tarvis
