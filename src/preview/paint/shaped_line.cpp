#include "preview/paint/shaped_line.h"

#include <QGlyphRun>
#include <QTextBoundaryFinder>
#include <QTextLayout>
#include <algorithm>
#include <map>
#include <numeric>
#include <tuple>

namespace tarvis {
namespace {

// The toolkit counts pixels in 32 bits with 6 of them for fractions; longer lines are shaped in a smaller
// size.
constexpr qsizetype LongestAtFullSize = 8000;  // UTF-16 units

// Control characters take no room and show nothing.
QString WithoutControls(std::string_view line) {
  constexpr QChar WordJoiner(0x2060);
  QString text = QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size()));
  for (QChar& unit : text) {
    if (unit.category() == QChar::Other_Control) unit = unit == QLatin1Char('\t') ? QChar(u' ') : WordJoiner;
  }
  return text;
}

QFont FontFor(qsizetype length, bool bold, const ReportFont& font) {
  QFont sized = font.ForLayout(bold);
  if (length > LongestAtFullSize) {
    sized.setPixelSize(std::max(1, static_cast<int>(sized.pixelSize() * LongestAtFullSize / length)));
  }
  return sized;
}

class Layout {
 public:
  Layout(std::string_view line, bool bold, TextFlow flow, const ReportFont& font)
      : text_(WithoutControls(line)), layout_(text_, FontFor(text_.size(), bold, font)) {
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(flow == TextFlow::RightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(QTextOption::NoWrap);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    layout_.setTextOption(option);
    layout_.setCacheEnabled(true);
    layout_.beginLayout();
    line_ = layout_.createLine();
    layout_.endLayout();
  }

  const QString& Text() const { return text_; }
  float Advance() const { return InEm(line_.naturalTextWidth()); }
  // The glyphs of a part of the text; `runsToTheLeft` stays as it is where there are none.
  std::vector<ShapedGlyph> Glyphs(int from, int end, ReportFont& font, bool& runsToTheLeft) const;

 private:
  float InEm(double pixels) const { return static_cast<float>(pixels / layout_.font().pixelSize()); }

  QString text_;
  QTextLayout layout_;
  QTextLine line_;
};

std::vector<ShapedGlyph> Layout::Glyphs(int from, int end, ReportFont& font, bool& runsToTheLeft) const {
  std::vector<ShapedGlyph> glyphs;
  const double baseline = line_.y() + line_.ascent();
  for (const QGlyphRun& run : line_.glyphRuns(from, end - from)) {
    const QList<quint32> numbers = run.glyphIndexes();
    const QList<QPointF> places = run.positions();
    // Where no font has them, the toolkit's own boxes belong to no file of a font.
    const bool hasFace = !run.rawFont().fontTable("head").isEmpty();
    const std::uint16_t face = hasFace ? font.NumberOf(run.rawFont()) : std::uint16_t{0};
    runsToTheLeft = run.isRightToLeft();
    for (qsizetype index = 0; index < numbers.size(); ++index) {
      const FontGlyph drawn = font.Drawn(face, hasFace ? numbers[index] : 0);
      glyphs.push_back(
          {drawn.Face, drawn.Glyph, InEm(places[index].x()), InEm(places[index].y() - baseline)});
    }
  }
  return glyphs;
}

// A cluster with its place in the text and on the line.
struct Placed {
  ShapedCluster Cluster;
  float Left = 0;
  std::size_t FirstCharacter = 0;
  std::vector<std::size_t> Sizes;  // in characters, of each character with marks
};

bool IsSameSign(const std::vector<ShapedGlyph>& one, const std::vector<ShapedGlyph>& other) {
  if (one.empty() || other.empty()) return false;
  const ShapedGlyph& a = one.back();
  const ShapedGlyph& b = other.back();
  return a.Face == b.Face && a.Glyph == b.Glyph && a.X == b.X && a.Y == b.Y;
}

// In the order of the text. What shows nothing has the place of what comes before it.
std::vector<Placed> ClustersOf(const Layout& layout, ReportFont& font) {
  std::vector<Placed> clusters;
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, layout.Text());
  int from = 0;
  std::size_t character = 0;
  bool runsToTheLeft = false;
  float left = 0;
  while (finder.toNextBoundary() >= 0) {
    const auto end = static_cast<int>(finder.position());
    const QList<uint> codes = QStringView(layout.Text()).mid(from, end - from).toUcs4();
    const std::u32string text(codes.begin(), codes.end());
    std::vector<ShapedGlyph> glyphs = layout.Glyphs(from, end, font, runsToTheLeft);
    if (!glyphs.empty()) left = glyphs.front().X;
    if (!clusters.empty() && IsSameSign(clusters.back().Cluster.Glyphs, glyphs)) {
      clusters.back().Cluster.Text += text;
    } else {
      clusters.push_back({{text, runsToTheLeft, std::move(glyphs)}, left, character, {}});
    }
    clusters.back().Sizes.push_back(text.size());
    character += text.size();
    from = end;
  }
  return clusters;
}

// The parts of a cluster that are selected by themselves share its room.
void PlaceCharacters(const Placed& cluster, float right, std::vector<CharacterPlace>& places) {
  const bool toTheLeft = cluster.Cluster.RunsToTheLeft;
  const float width = (right - cluster.Left) / static_cast<float>(cluster.Sizes.size());
  std::size_t character = cluster.FirstCharacter;
  for (std::size_t part = 0; part < cluster.Sizes.size(); ++part) {
    const std::size_t fromLeft = toTheLeft ? cluster.Sizes.size() - 1 - part : part;
    const float left = cluster.Left + width * static_cast<float>(fromLeft);
    for (std::size_t count = 0; count < cluster.Sizes[part]; ++count)
      places[character++] = {left, left + width, toTheLeft};
  }
}

}  // namespace

ShapedLine ShapeLine(std::string_view line, bool bold, TextFlow flow, ReportFont& font) {
  const Layout layout(line, bold, flow, font);
  ShapedLine shaped;
  shaped.Advance = layout.Advance();
  std::vector<Placed> clusters = ClustersOf(layout, font);
  if (clusters.empty()) return shaped;
  shaped.Characters.resize(clusters.back().FirstCharacter + std::accumulate(clusters.back().Sizes.begin(),
                                                                            clusters.back().Sizes.end(),
                                                                            std::size_t{0}));
  std::ranges::stable_sort(clusters, {}, &Placed::Left);
  for (std::size_t index = 0; index < clusters.size(); ++index) {
    const float right = index + 1 < clusters.size() ? clusters[index + 1].Left : shaped.Advance;
    PlaceCharacters(clusters[index], right, shaped.Characters);
    shaped.Clusters.push_back(std::move(clusters[index].Cluster));
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
  return Layout(line, bold, flow, font).Advance();
}

}  // namespace tarvis
