#include "preview/output/pdf_glyphs.h"

#include <algorithm>

namespace tarvis {
namespace {

// How many parts a character may be painted as.
std::size_t PartsOf(char32_t character) {
  const QString parts = QString::fromUcs4(&character, 1).normalized(QString::NormalizationForm_KD);
  return static_cast<std::size_t>(parts.toUcs4().size());
}

// The text of each glyph of a cluster: a character at the last of its parts, and nothing at the others; where
// glyphs are no such parts, the first one has all of the text.
std::vector<std::u32string> TextsOfGlyphs(const std::u32string& text, std::size_t glyphs) {
  const std::u32string nothing(1, U'\u200B');  // shows nothing and takes no room
  std::vector<std::u32string> texts;
  for (const char32_t character : text) {
    if (glyphs != text.size()) texts.resize(texts.size() + PartsOf(character) - 1, nothing);
    texts.emplace_back(1, character);
  }
  if (texts.size() == glyphs) return texts;
  texts.assign(glyphs, nothing);
  if (glyphs > 0) texts.front() = text;
  return texts;
}

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
  return Known(found, std::u32string(1, character));
}

// The blank of a face, which shows nothing and can stand for a character that shares the glyph of another
// one.
FontGlyph PdfGlyphs::Blank(std::uint16_t face) {
  const QList<quint32> blank = font_.Face(face).glyphIndexesForString(QStringLiteral(" "));
  if (blank.size() != 1 || blank.front() == 0) return font_.Find(U' ', false);
  return font_.Drawn(face, blank.front());
}

// Tools that take text out of a PDF disagree on the order of several characters of one glyph where the line
// runs to the left. So each character has a glyph of its own there: the first ones are blanks in their parts
// of the sign.
PdfCluster PdfGlyphs::UseSharedGlyphs(const TextCluster& cluster) {
  const std::size_t count = cluster.Text.size();
  const std::size_t blanks = count - cluster.Glyphs.size();
  const float part = (cluster.Right - cluster.Left) / static_cast<float>(count);
  PdfCluster used;
  for (std::size_t index = 0; index < count; ++index) {
    const std::u32string text(1, cluster.Text[index]);
    if (index < blanks) {
      const float left = cluster.Left + part * static_cast<float>(count - 1 - index);
      used.Glyphs.push_back({Known(Blank(cluster.Glyphs.front().Face), text), left, 0});
    } else {
      const TextGlyph& glyph = cluster.Glyphs[index - blanks];
      used.Glyphs.push_back({Known(font_.Drawn(glyph.Face, glyph.Glyph), text), glyph.X, glyph.Y});
    }
  }
  return used;
}

PdfCluster PdfGlyphs::Use(const TextCluster& cluster) {
  if (cluster.RunsToTheLeft && !cluster.Glyphs.empty() && cluster.Glyphs.size() < cluster.Text.size())
    return UseSharedGlyphs(cluster);
  const std::vector<std::u32string> texts = TextsOfGlyphs(cluster.Text, cluster.Glyphs.size());
  PdfCluster used;
  std::u32string all;
  for (std::size_t index = 0; index < texts.size(); ++index) {
    const TextGlyph& glyph = cluster.Glyphs[index];
    used.Glyphs.push_back({Known(font_.Drawn(glyph.Face, glyph.Glyph), texts[index]), glyph.X, glyph.Y});
    all += texts[index];
  }
  // Some tools take a mark at another height for another line, and one beyond its letter for one of the next.
  constexpr float Rounding = 0.001F;
  const auto isBeyond = [&](const TextGlyph& glyph) {
    return glyph.Y != 0 || glyph.X > cluster.Right + Rounding;
  };
  const bool hasMarksBeyond = !cluster.RunsToTheLeft && std::ranges::any_of(cluster.Glyphs, isBeyond);
  used.NeedsText = all != cluster.Text || hasMarksBeyond;
  return used;
}

const PdfGlyph& PdfGlyphs::Known(const FontGlyph& glyph, const std::u32string& text) {
  const auto [place, isNew] = known_.try_emplace({glyph.Face, glyph.Glyph, text});
  if (isNew) place->second = NewCode(glyph, text);
  return place->second;
}

PdfGlyph PdfGlyphs::NewCode(const FontGlyph& glyph, const std::u32string& text) {
  const bool isBox = glyph.Glyph == 0;
  const auto [place, isNew] =
      fontOfFace_.try_emplace({glyph.Face, isBox}, static_cast<std::uint16_t>(fonts_.size()));
  if (!isNew && fonts_[place->second].Glyphs.size() == MostCodes)
    place->second = static_cast<std::uint16_t>(fonts_.size());
  if (place->second == fonts_.size())
    fonts_.push_back({glyph.Face, {}, {}, {}, font_.IsThickened(glyph.Face), isBox});
  PdfFont& font = fonts_[place->second];
  font.Glyphs.push_back(glyph.Glyph);
  font.Texts.push_back(text);
  font.AdvancesEm.push_back(glyph.AdvanceEm);
  return {static_cast<std::uint16_t>(font.Glyphs.size()), place->second, true, glyph.AdvanceEm};
}

}  // namespace tarvis
