#include "preview/paint/shaped_line.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <utility>

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

// The number of each face that a line was shaped in; none where the toolkit drew boxes of its own, which
// belong to no file of a font.
std::vector<std::optional<std::uint16_t>> NumbersOf(const std::vector<QRawFont>& faces, ReportFont& font) {
  std::vector<std::optional<std::uint16_t>> numbers;
  for (const QRawFont& face : faces) {
    const bool hasFile = !face.fontTable("head").isEmpty();
    numbers.push_back(hasFile ? std::optional(font.NumberOf(face)) : std::nullopt);
  }
  return numbers;
}

void UseDrawn(TextGlyph& glyph, std::optional<std::uint16_t> face, ReportFont& font) {
  const FontGlyph drawn = face ? font.Drawn(*face, glyph.Glyph) : font.Drawn(0, 0);
  glyph.Face = drawn.Face;
  glyph.Glyph = drawn.Glyph;
}

}  // namespace

ShapedLine ShapeLine(std::string_view line, bool bold, TextFlow flow, ReportFont& font) {
  const QString units = UnitsOf(line);
  ShapedText text = ShapeText(units, flow, FontFor(units.size(), bold, font));
  const auto faces = NumbersOf(text.Faces, font);
  std::vector<CharacterPlace> characters(text.CharacterCount);
  for (TextCluster& cluster : text.Clusters) {
    PlaceCharacters(cluster, cluster.Left, cluster.Right, characters);
    for (TextGlyph& glyph : cluster.Glyphs) UseDrawn(glyph, faces[glyph.Face], font);
  }
  return {std::move(text.Clusters), std::move(characters), text.Advance};
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
