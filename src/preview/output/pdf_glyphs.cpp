#include "preview/output/pdf_glyphs.h"

namespace tarvis {
namespace {

constexpr std::size_t MostCodes = 0xFFFF;  // of a font; a code has two bytes, and 0 is not used

}  // namespace

const PdfGlyph& PdfGlyphs::Use(char32_t character, bool bold) {
  if (character < 128) {
    if (!asciiKnown_[bold][character]) {
      ascii_[bold][character] = Register(character, bold);
      asciiKnown_[bold][character] = true;
    }
    return ascii_[bold][character];
  }
  const auto known = others_[bold].find(character);
  if (known != others_[bold].end()) return known->second;
  return others_[bold].emplace(character, Register(character, bold)).first->second;
}

PdfGlyph PdfGlyphs::Register(char32_t character, bool bold) {
  const FontGlyph& found = font_.Find(character, bold);
  if (!found.Inks) return {};
  const std::u32string text(1, character);
  const auto [place, isNew] = known_.try_emplace({found.Face, found.Glyph, text});
  if (isNew) place->second = NewCode(found, text);
  return place->second;
}

PdfGlyph PdfGlyphs::NewCode(const FontGlyph& glyph, const std::u32string& text) {
  const auto [place, isNew] = fontOfFace_.try_emplace(glyph.Face, static_cast<std::uint16_t>(fonts_.size()));
  if (!isNew && fonts_[place->second].Glyphs.size() == MostCodes)
    place->second = static_cast<std::uint16_t>(fonts_.size());
  if (place->second == fonts_.size()) fonts_.push_back({glyph.Face, {}, {}, {}});
  PdfFont& font = fonts_[place->second];
  font.Glyphs.push_back(glyph.Glyph);
  font.Texts.push_back(text);
  font.AdvancesEm.push_back(glyph.AdvanceEm);
  return {static_cast<std::uint16_t>(font.Glyphs.size()), place->second, true, glyph.AdvanceEm};
}

}  // namespace tarvis
