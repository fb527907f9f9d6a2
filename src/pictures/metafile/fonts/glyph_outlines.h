// Outlines of characters, so that text looks alike on every device and can be painted on any thread.
#pragma once

#include <QPainterPath>
#include <map>
#include <memory>
#include <unordered_map>

#include "pictures/metafile/fonts/outline_font.h"

namespace tarvis {

// A character at a size of 1 from baseline to baseline of the em square, y downwards, its origin on the
// baseline.
struct GlyphOutline {
  QPainterPath Path;
  double Advance = 0;
};

// A face, in ems.
class OutlineFace {
 public:
  explicit OutlineFace(const QFont& font);

  double Ascent = 0;
  double Descent = 0;
  double AverageWidth = 0;  // of Latin text, as letters and blanks are frequent in it

  const GlyphOutline& Glyph(char32_t character);

 private:
  QFont font_;
  std::unordered_map<char32_t, GlyphOutline> glyphs_;
};

// Keeps the faces and glyphs of all metafiles that are loaded with it. To be used by one thread.
class GlyphOutlines {
 public:
  OutlineFace& Face(const OutlineFont& font);

 private:
  std::map<OutlineFont, std::unique_ptr<OutlineFace>> faces_;
};

}  // namespace tarvis
