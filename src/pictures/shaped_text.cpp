#include "pictures/shaped_text.h"

#include <QGlyphRun>
#include <QTextBoundaryFinder>
#include <QTextLayout>
#include <algorithm>
#include <utility>

namespace tarvis {
namespace {

QString WithoutControls(QString text) {
  constexpr QChar WordJoiner(0x2060);
  for (QChar& unit : text) {
    if (unit.category() == QChar::Other_Control) unit = unit == QLatin1Char('\t') ? QChar(u' ') : WordJoiner;
  }
  return text;
}

class Layout {
 public:
  Layout(const QString& text, TextFlow flow, const QFont& font)
      : text_(WithoutControls(text)), layout_(text_, font) {
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
  std::vector<TextGlyph> Glyphs(int from, int end, std::vector<QRawFont>& faces, bool& runsToTheLeft) const;

 private:
  float InEm(double pixels) const { return static_cast<float>(pixels / layout_.font().pixelSize()); }

  QString text_;
  QTextLayout layout_;
  QTextLine line_;
};

std::uint16_t NumberOf(const QRawFont& face, std::vector<QRawFont>& faces) {
  const auto known = std::ranges::find(faces, face);
  const auto number = static_cast<std::uint16_t>(known - faces.begin());
  if (known == faces.end()) faces.push_back(face);
  return number;
}

std::vector<TextGlyph> Layout::Glyphs(int from, int end, std::vector<QRawFont>& faces,
                                      bool& runsToTheLeft) const {
  std::vector<TextGlyph> glyphs;
  const double baseline = line_.y() + line_.ascent();
  for (const QGlyphRun& run : line_.glyphRuns(from, end - from)) {
    const QList<quint32> numbers = run.glyphIndexes();
    const QList<QPointF> places = run.positions();
    const std::uint16_t face = NumberOf(run.rawFont(), faces);
    runsToTheLeft = run.isRightToLeft();
    for (qsizetype index = 0; index < numbers.size(); ++index)
      glyphs.push_back({face, numbers[index], InEm(places[index].x()), InEm(places[index].y() - baseline)});
  }
  return glyphs;
}

bool IsSameSign(const std::vector<TextGlyph>& one, const std::vector<TextGlyph>& other) {
  if (one.empty() || other.empty()) return false;
  const TextGlyph& a = one.back();
  const TextGlyph& b = other.back();
  return a.Face == b.Face && a.Glyph == b.Glyph && a.X == b.X && a.Y == b.Y;
}

// In the order of the text. What shows nothing has the place of what comes before it.
void AddClusters(const Layout& layout, ShapedText& shaped) {
  std::vector<TextCluster>& clusters = shaped.Clusters;
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, layout.Text());
  int from = 0;
  bool runsToTheLeft = false;
  float left = 0;
  while (finder.toNextBoundary() >= 0) {
    const auto end = static_cast<int>(finder.position());
    const QList<uint> codes = QStringView(layout.Text()).mid(from, end - from).toUcs4();
    const std::u32string text(codes.begin(), codes.end());
    std::vector<TextGlyph> glyphs = layout.Glyphs(from, end, shaped.Faces, runsToTheLeft);
    if (!glyphs.empty()) left = glyphs.front().X;
    if (!clusters.empty() && IsSameSign(clusters.back().Glyphs, glyphs)) {
      clusters.back().Text += text;
    } else {
      clusters.push_back({text, runsToTheLeft, std::move(glyphs), left, left, shaped.CharacterCount, {}});
    }
    clusters.back().Sizes.push_back(text.size());
    shaped.CharacterCount += text.size();
    from = end;
  }
}

}  // namespace

ShapedText ShapeText(const QString& text, TextFlow flow, const QFont& font) {
  const Layout layout(text, flow, font);
  ShapedText shaped;
  shaped.Advance = layout.Advance();
  AddClusters(layout, shaped);
  std::ranges::stable_sort(shaped.Clusters, {}, &TextCluster::Left);
  float right = shaped.Advance;
  for (auto cluster = shaped.Clusters.rbegin(); cluster != shaped.Clusters.rend(); ++cluster)
    cluster->Right = std::exchange(right, cluster->Left);
  return shaped;
}

float ShapedTextAdvance(const QString& text, TextFlow flow, const QFont& font) {
  return Layout(text, flow, font).Advance();
}

void PlaceCharacters(const TextCluster& cluster, float left, float right,
                     std::vector<CharacterPlace>& places) {
  const std::size_t parts = cluster.Sizes.size();
  const float width = (right - left) / static_cast<float>(parts);
  std::size_t character = cluster.FirstCharacter;
  for (std::size_t part = 0; part < parts; ++part) {
    const std::size_t fromLeft = cluster.RunsToTheLeft ? parts - 1 - part : part;
    const float start = left + width * static_cast<float>(fromLeft);
    for (std::size_t count = 0; count < cluster.Sizes[part]; ++count)
      places[character++] = {start, start + width, cluster.RunsToTheLeft};
  }
}

}  // namespace tarvis
