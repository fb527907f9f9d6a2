// The one place that picks the font of the reports: Arial, else its metric twin; other scripts by fallback.
// Metrics are the fonts' design metrics: unhinted, without kerning, the same for every screen and printer.
#pragma once

#include <QFont>
#include <QRawFont>
#include <array>
#include <cstdint>
#include <map>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tarvis {

// How one character prints. One that no font has is glyph 0 of the report's own face, a box.
struct FontGlyph {
  std::uint32_t Glyph = 0;
  std::uint16_t Face = 0;  // see ReportFont::Face
  bool Inks = true;        // false for control characters: no glyph is painted
  float AdvanceEm = 0;
};

// Fonts belong to the thread that made them, so each thread has a ReportFont of its own.
class ReportFont {
 public:
  // `codePage`: that of the texts, by which fallback fonts are chosen; 0 if it isn't known.
  static ReportFont& OfThisThread(int codePage = 0);

  explicit ReportFont(int codePage = 0);

  // Found once for each character and weight.
  const FontGlyph& Find(char32_t character, bool bold);
  // Face 0 is the regular weight, 1 the bold one; further faces are fallback fonts.
  const QRawFont& Face(std::uint16_t face) const { return faces_[face]; }
  // The same at `pixels` to the em.
  const QRawFont& FaceAt(std::uint16_t face, double pixels);
  // Whether the toolkit thickens the glyphs of a bold face, because its family has none.
  bool IsThickened(std::uint16_t face);
  // A face at `pixels` to the em, not thickened.
  QRawFont AsInItsFile(std::uint16_t face, double pixels);
  std::size_t FaceCount() const { return faces_.size(); }

  // For the toolkit to lay out lines, in a size in which its measures are design metrics.
  QFont ForLayout(bool bold) const;
  // The number of a face that the toolkit has chosen for a line.
  std::uint16_t NumberOf(const QRawFont& font);
  // How a glyph of a face is painted: as it is, or as a box.
  const FontGlyph& Drawn(std::uint16_t face, std::uint32_t glyph);

 private:
  FontGlyph Look(char32_t character, bool bold);
  bool LookInFamilies(char32_t character, bool bold, FontGlyph& found);
  bool LookInFallback(char32_t character, bool bold, FontGlyph& found);
  float DesignAdvance(std::uint16_t face, std::uint32_t glyph) const;

  int codePage_;
  std::vector<QRawFont> faces_;  // at one pixel to the design unit
  std::array<std::array<FontGlyph, 128>, 2> ascii_;
  std::array<std::unordered_map<char32_t, FontGlyph>, 2> others_;
  std::map<std::pair<std::uint16_t, std::uint32_t>, FontGlyph> drawn_;
  std::map<std::pair<std::uint16_t, double>, QRawFont> sized_;
  std::map<std::uint16_t, bool> thickened_;  // by face
};

}  // namespace tarvis
