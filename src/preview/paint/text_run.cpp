#include "preview/paint/text_run.h"

#include "report/engine/units.h"
#include "report/engine/utf8.h"

namespace tarvis {

namespace {

// Runs of one face each, in the order in which glyphs are added.
class Runs {
 public:
  // `size`: how many glyphs there may be.
  explicit Runs(std::size_t size) : size_(static_cast<qsizetype>(size)) {}

  void Add(std::uint16_t face, std::uint32_t glyph, float x, float y) {
    if (runs_.empty() || runs_.back().Face != face) {
      runs_.push_back({face, {}, {}});
      runs_.back().Glyphs.reserve(size_);
      runs_.back().Places.reserve(size_);
    }
    runs_.back().Glyphs.append(glyph);
    runs_.back().Places.append(QPointF(x, y));
  }
  std::vector<TextRun> Take() { return std::move(runs_); }

 private:
  qsizetype size_;
  std::vector<TextRun> runs_;
};

std::vector<TextRun> PlainRuns(std::string_view text, float em, bool bold, ReportFont& font) {
  Runs runs(text.size());
  float x = 0;
  for (std::size_t offset = 0; offset < text.size();) {
    const FontGlyph& glyph = font.Find(NextCharacter(text, offset), bold);
    if (!glyph.Inks) continue;
    runs.Add(glyph.Face, glyph.Glyph, x, 0);
    x += glyph.AdvanceEm * em;
  }
  return runs.Take();
}

}  // namespace

std::vector<TextRun> MakeRuns(const TextPiece& piece, const TextStyle& style, ReportFont& font) {
  const float em = style.Size * TwipsPerPoint;
  if (piece.Flow == TextFlow::Plain) return PlainRuns(piece.Text, em, style.Bold, font);
  Runs runs(piece.Text.size());
  for (const TextCluster& cluster : KnownLine(piece.Text, style.Bold, piece.Flow, font).Clusters) {
    for (const TextGlyph& glyph : cluster.Glyphs)
      runs.Add(glyph.Face, glyph.Glyph, glyph.X * em, glyph.Y * em);
  }
  return runs.Take();
}

std::vector<CharacterPlace> CharacterPlaces(const TextPiece& piece, const TextStyle& style,
                                            ReportFont& font) {
  std::vector<CharacterPlace> places;
  if (piece.Flow == TextFlow::Plain) {
    const std::vector<float> edges = CharacterEdges(piece.Text, style.Size, style.Bold, font);
    for (std::size_t index = 0; index + 1 < edges.size(); ++index)
      places.push_back({edges[index], edges[index + 1], false});
    return places;
  }
  const float em = style.Size * TwipsPerPoint;
  for (const CharacterPlace& place : KnownLine(piece.Text, style.Bold, piece.Flow, font).Characters)
    places.push_back({place.Left * em, place.Right * em, place.RunsToTheLeft});
  return places;
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
