// The glyphs that a PDF uses, with the codes under which its content shows them.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>

#include "preview/paint/report_font.h"
#include "preview/paint/shaped_line.h"

namespace tarvis {

struct PdfGlyph {
  std::uint16_t Code = 0;  // in its font; counts from 1 in order of first use
  std::uint16_t Font = 0;  // index of PdfGlyphs::Fonts
  bool Inks = false;
  float AdvanceEm = 0;
};

// A font of the PDF: glyphs of one face, by code less one. A glyph has a code for each text that it
// represents, so that a box can be copied as the character that no font has.
struct PdfFont {
  std::uint16_t Face = 0;
  std::vector<std::uint32_t> Glyphs;
  std::vector<std::u32string> Texts;  // what is copied for the glyph
  std::vector<float> AdvancesEm;
  bool IsThickened = false;  // by the content, since no bold font can be embedded
  bool ShowsBoxes = false;   // all its glyphs are the face's first one, the box
};

// A glyph of a shaped line, at its place in em from the line's left edge and below its baseline.
struct PdfPlacedGlyph {
  PdfGlyph Glyph;
  float X = 0;
  float Y = 0;
};

struct PdfCluster {
  std::vector<PdfPlacedGlyph> Glyphs;
  bool NeedsText = false;  // tools wouldn't take its text from its glyphs, one after the other
};

class PdfGlyphs {
 public:
  explicit PdfGlyphs(ReportFont& font) : font_(font) {}

  const PdfGlyph& Use(char32_t character, bool bold);
  PdfCluster Use(const TextCluster& cluster);
  const std::vector<PdfFont>& Fonts() const { return fonts_; }
  ReportFont& Font() { return font_; }

 private:
  PdfGlyph Register(char32_t character, bool bold);
  PdfCluster UseSharedGlyphs(const TextCluster& cluster);
  FontGlyph Blank(std::uint16_t face);
  const PdfGlyph& Known(const FontGlyph& glyph, const std::u32string& text);
  PdfGlyph NewCode(const FontGlyph& glyph, const std::u32string& text);

  ReportFont& font_;
  std::vector<PdfFont> fonts_;
  // The font that still has free codes; by face, and whether it shows boxes.
  std::map<std::pair<std::uint16_t, bool>, std::uint16_t> fontOfFace_;
  std::map<std::tuple<std::uint16_t, std::uint32_t, std::u32string>, PdfGlyph> known_;
  std::array<std::array<PdfGlyph, 128>, 2> ascii_{};
  std::array<std::array<bool, 128>, 2> asciiKnown_{};
  std::array<std::unordered_map<char32_t, PdfGlyph>, 2> others_;
};

}  // namespace tarvis
