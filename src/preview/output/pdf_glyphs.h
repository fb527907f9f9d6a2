// The glyphs that a PDF uses, with the codes under which its content shows them.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <unordered_map>
#include <vector>

#include "preview/paint/report_font.h"
#include "report/engine/units.h"

namespace tarvis {

struct PdfGlyph {
  std::uint16_t Code = 0;  // in its face; counts from 1 in order of first use
  std::uint16_t Face = 0;
  bool Inks = false;
  float AdvanceEm = 0;
};

// The glyphs of one face, by code less one.
struct PdfFace {
  std::vector<std::uint32_t> Glyphs;
  std::vector<char32_t> Characters;  // what is copied for the glyph
  std::vector<float> AdvancesEm;
};

class PdfGlyphs {
 public:
  explicit PdfGlyphs(ReportFont& font) : font_(font) {}

  const PdfGlyph& Use(char32_t character, bool bold);
  // By number of the face; those that are not used are empty.
  const std::map<std::uint16_t, PdfFace>& Faces() const { return faces_; }

 private:
  PdfGlyph Register(char32_t character, bool bold);

  ReportFont& font_;
  std::map<std::uint16_t, PdfFace> faces_;
  std::map<std::pair<std::uint16_t, std::uint32_t>, std::uint16_t> codes_;
  std::array<std::array<PdfGlyph, 128>, 2> ascii_{};
  std::array<std::array<bool, 128>, 2> asciiKnown_{};
  std::array<std::unordered_map<char32_t, PdfGlyph>, 2> others_;
};

// Height in points of the form that holds a picture `height` twips high.
inline int PdfPictureHeight(float height) {
  return static_cast<int>(height / TwipsPerPoint) + 1;
}

}  // namespace tarvis
