// A font of boxes: what pages show for characters that no font has, and for those of a face that can't be
// embedded. Archives don't take the first glyph of a font for that, which is the font's own box.
#pragma once

#include <QPainterPath>
#include <span>
#include <string>

namespace tarvis {

// Units to the em, of outlines and of the font: those of most fonts, whose outlines so stay what they are.
inline constexpr int BoxFontUnits = 2048;

// A TrueType font with as much as PDFs ask for. Each of its glyphs shows `box`, which is in units below the
// baseline; they differ in their advances. The first glyph of all is empty and not meant to be shown, so the
// glyph of the first advance is number 1.
[[nodiscard]] std::string BoxFont(const QPainterPath& box, std::span<const float> advancesEm);

}  // namespace tarvis
