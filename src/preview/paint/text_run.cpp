#include "preview/paint/text_run.h"

#include "report/engine/units.h"
#include "report/engine/utf8.h"

namespace tarvis {

std::vector<TextRun> MakeRuns(std::string_view text, float size, bool bold, ReportFont& font) {
  std::vector<TextRun> runs;
  const float em = size * TwipsPerPoint;
  float x = 0;
  for (std::size_t offset = 0; offset < text.size();) {
    const FontGlyph& glyph = font.Find(NextCharacter(text, offset), bold);
    if (!glyph.Inks) continue;
    if (runs.empty() || runs.back().Face != glyph.Face) {
      runs.push_back({glyph.Face, {}, {}});
      runs.back().Glyphs.reserve(static_cast<qsizetype>(text.size()));
      runs.back().Places.reserve(static_cast<qsizetype>(text.size()));
    }
    runs.back().Glyphs.append(glyph.Glyph);
    runs.back().Places.append(QPointF(static_cast<double>(x), 0));
    x += glyph.AdvanceEm * em;
  }
  return runs;
}

std::vector<float> CharacterEdges(std::string_view text, float size, bool bold, ReportFont& font) {
  std::vector<float> edges{0};
  for (std::size_t offset = 0; offset < text.size();) {
    edges.push_back(edges.back() +
                    font.Find(NextCharacter(text, offset), bold).AdvanceEm * size * TwipsPerPoint);
  }
  return edges;
}

}  // namespace tarvis
