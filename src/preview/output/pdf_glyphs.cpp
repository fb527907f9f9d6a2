#include "preview/output/pdf_glyphs.h"

namespace tarvis {

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
  PdfFace& face = faces_[found.Face];
  const auto [place, isNew] = codes_.try_emplace({found.Face, found.Glyph}, 0);
  if (isNew) {
    face.Glyphs.push_back(found.Glyph);
    face.Characters.push_back(character);
    face.AdvancesEm.push_back(found.AdvanceEm);
    place->second = static_cast<std::uint16_t>(face.Glyphs.size());
  }
  return {place->second, found.Face, true, found.AdvanceEm};
}

}  // namespace tarvis
