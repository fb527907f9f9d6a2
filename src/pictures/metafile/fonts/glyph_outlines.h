// Outlines of characters, so that text looks the same on every device and can be painted on any thread.
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
  // `wanted` is the family that a record names.
  OutlineFace(const QFont& font, const QString& wanted);

  double Ascent = 0;
  double Descent = 0;
  double AverageWidth = 0;  // of Latin text, as letters and blanks are frequent in it

  const GlyphOutline& Glyph(char32_t character);
  // For lines whose characters must be shaped.
  const QFont& Font() const { return font_; }
  // The character that a record means by a number of a glyph in its font; 0 if that isn't known. It is known
  // where the font itself is installed, and for the first characters of its metric twins, which have the same
  // numbers.
  char32_t CharacterOf(std::uint32_t glyph);
  // Whether the font that a record names, or its metric twin, is installed.
  bool KnowsGlyphNumbers();
  // Of the font that is painted.
  const QString& InstalledFamily();

 private:
  void ReadGlyphNumbers();

  QFont font_;
  QString wanted_;
  std::unordered_map<char32_t, GlyphOutline> glyphs_;
  std::unordered_map<std::uint32_t, char32_t> characters_;  // by number of the glyph
  QString installed_;                                       // empty until the numbers are read
};

// Keeps the faces and glyphs of all metafiles that are loaded with it. To be used by one thread.
class GlyphOutlines {
 public:
  OutlineFace& Face(const OutlineFont& font);

 private:
  std::map<OutlineFont, std::unique_ptr<OutlineFace>> faces_;
};

}  // namespace tarvis
