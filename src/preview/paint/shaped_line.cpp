#include "preview/paint/shaped_line.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace tarvis {
namespace {

// The toolkit counts pixels in 32 bits with 6 of them for fractions; longer lines are shaped in a smaller
// size.
constexpr qsizetype LongestAtFullSize = 8000;  // UTF-16 units

QString UnitsOf(std::string_view line) {
  return QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size()));
}

QFont FontFor(qsizetype length, bool bold, const ReportFont& font) {
  QFont sized = font.ForLayout(bold);
  if (length > LongestAtFullSize) {
    sized.setPixelSize(std::max(1, static_cast<int>(sized.pixelSize() * LongestAtFullSize / length)));
  }
  return sized;
}

// The face of each font that a line was shaped in; none where the toolkit drew boxes of its own, which belong
// to no file of a font.
std::vector<int> FacesOf(const std::vector<QRawFont>& fonts, ReportFont& font) {
  std::vector<int> faces;
  for (const QRawFont& used : fonts) {
    const bool hasFace = !used.fontTable("head").isEmpty();
    faces.push_back(hasFace ? font.NumberOf(used) : -1);
  }
  return faces;
}

ShapedGlyph Drawn(const TextGlyph& glyph, int face, ReportFont& font) {
  const FontGlyph drawn =
      face < 0 ? font.Drawn(0, 0) : font.Drawn(static_cast<std::uint16_t>(face), glyph.Number);
  return {drawn.Face, drawn.Glyph, static_cast<float>(glyph.X), static_cast<float>(glyph.Y)};
}

}  // namespace

ShapedLine ShapeLine(std::string_view line, bool bold, TextFlow flow, ReportFont& font) {
  const QString units = UnitsOf(line);
  const ShapedText text = ShapeText(units, flow, FontFor(units.size(), bold, font));
  const std::vector<int> faces = FacesOf(text.Fonts, font);
  ShapedLine shaped;
  shaped.Advance = text.Advance;
  shaped.Characters.resize(text.CharacterCount);
  for (std::size_t index = 0; index < text.Clusters.size(); ++index) {
    const TextCluster& cluster = text.Clusters[index];
    const float right = index + 1 < text.Clusters.size() ? text.Clusters[index + 1].Left : text.Advance;
    PlaceCharacters(cluster, cluster.Left, right, shaped.Characters);
    shaped.Clusters.push_back(
        {cluster.Text, cluster.RunsToTheLeft, {}, cluster.Left, right, cluster.FirstCharacter});
    for (const TextGlyph& glyph : cluster.Glyphs)
      shaped.Clusters.back().Glyphs.push_back(Drawn(glyph, faces[glyph.Font], font));
  }
  return shaped;
}

const ShapedLine& KnownLine(std::string_view line, bool bold, TextFlow flow, ReportFont& font) {
  constexpr std::size_t MostLines = 2000;  // some pages of text
  using Key = std::tuple<const ReportFont*, std::string, bool, TextFlow>;
  thread_local std::map<Key, ShapedLine> known;
  if (known.size() >= MostLines) known.clear();
  const auto [place, isNew] = known.try_emplace(Key(&font, line, bold, flow));
  if (isNew) place->second = ShapeLine(line, bold, flow, font);
  return place->second;
}

float ShapedAdvance(std::string_view line, bool bold, TextFlow flow, const ReportFont& font) {
  const QString units = UnitsOf(line);
  return ShapedTextAdvance(units, flow, FontFor(units.size(), bold, font));
}

}  // namespace tarvis
