// Shaped lines: what is measured is what is painted, in the order in which it is read.
#include "preview/paint/shaped_line.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "preview/document_builder.h"
#include "preview/paint/painter_canvas.h"
#include "preview/paint/text_run.h"

namespace tarvis {
namespace {

ShapedLine Shape(std::string_view line) {
  return ShapeLine(line, false, FlowOf(line), ReportFont::OfThisThread());
}

std::u32string FromLeft(const ShapedLine& line) {
  std::u32string text;
  for (const TextCluster& cluster : line.Clusters) text += cluster.Text;
  return text;
}

TEST(ShapedLine, HebrewRunsToTheLeft) {
  EXPECT_EQ(FromLeft(Shape("שלום")), U"םולש");
}

TEST(ShapedLine, LatinAndNumbersInAHebrewParagraphKeepTheirOrder) {
  EXPECT_EQ(FromLeft(Shape("שלום Pn100.")), U".Pn100 םולש");
  EXPECT_EQ(FromLeft(Shape("Pn100: שלום")), U"Pn100: םולש");
}

TEST(ShapedLine, ALineOfLatinLettersInAHebrewParagraphEndsAtTheLeft) {
  const ShapedLine line = ShapeLine("Pn100.", false, TextFlow::RightToLeft, ReportFont::OfThisThread());
  EXPECT_EQ(FromLeft(line), U".Pn100");
}

TEST(ShapedLine, ArabicLettersJoin) {
  const ShapedLine together = Shape("سرعة");
  const ShapedLine apart = Shape("س");
  ASSERT_EQ(together.Clusters.size(), 4U);
  EXPECT_NE(together.Clusters.back().Glyphs.at(0).Glyph, apart.Clusters.at(0).Glyphs.at(0).Glyph);
}

TEST(ShapedLine, ArabicLettersThatBecomeOneSignAreOneCluster) {
  const ShapedLine line = Shape("لا");
  ASSERT_EQ(line.Clusters.size(), 1U);
  EXPECT_EQ(line.Clusters[0].Text, U"لا");
  ASSERT_EQ(line.Characters.size(), 2U);
  EXPECT_NEAR(line.Characters[0].Left, line.Characters[1].Right, 0.01F);
  EXPECT_NEAR(line.Characters[0].Right, line.Advance, 0.01F);
}

TEST(ShapedLine, ThaiMarksTakeNoRoomAndSaraAmKeepsBothHalves) {
  const auto advance = [](const char* text) {
    return ShapedAdvance(text, false, TextFlow::LeftToRight, ReportFont::OfThisThread());
  };
  EXPECT_FLOAT_EQ(advance("ที่"), advance("ท"));
  const ShapedLine line = Shape("กำ");
  ASSERT_EQ(line.Clusters.size(), 1U);
  EXPECT_EQ(line.Clusters[0].Glyphs.size(), 3U);
}

TEST(ShapedLine, ThaiToneMarksDoNotCollideWithVowels) {
  const ShapedLine line = Shape("ที่");
  ASSERT_EQ(line.Clusters.size(), 1U);
  const auto& glyphs = line.Clusters[0].Glyphs;
  ASSERT_EQ(glyphs.size(), 3U);
  ReportFont& font = ReportFont::OfThisThread();
  const auto box = [&](const TextGlyph& glyph) {
    const QRawFont& face = font.Face(glyph.Face);
    return face.boundingRect(glyph.Glyph)
        .translated(static_cast<double>(glyph.X) * face.unitsPerEm(),
                    static_cast<double>(glyph.Y) * face.unitsPerEm());
  };
  EXPECT_FALSE(box(glyphs[1]).intersects(box(glyphs[2])));
}

TEST(ShapedLine, IsPaintedAsWideAsItIsMeasured) {
  for (const char* text :
       {"שלום Pn100.", "سرعة المحرك لا", "ความเร็วที่กำหนด", "x\xCC\xB2y ", "हिन्दी", "שלום  "}) {
    const ShapedLine line = Shape(text);
    const float measured = ShapedAdvance(text, false, FlowOf(text), ReportFont::OfThisThread());
    EXPECT_FLOAT_EQ(line.Advance, measured) << text;
    float left = line.Advance, right = 0;
    for (const CharacterPlace& place : line.Characters) {
      left = std::min(left, place.Left);
      right = std::max(right, place.Right);
    }
    EXPECT_NEAR(left, 0, 0.01F) << text;
    EXPECT_NEAR(right, measured, 0.01F) << text;
  }
}

// The ink of a line that ends at 4000 twips, painted as on the screen.
TEST(ShapedLine, EndsWhereTheComposerPutsItsEnd) {
  for (const char* text : {"מהירות המנוע", "سرعة المحرك", "ความเร็วที่กำหนด"}) {
    DocumentBuilder builder;
    builder.Page().Text(text, 0, 400, 20);
    const float width = builder.Peek().Texts[0].Advance;
    QImage page(1000, 200, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    painter.scale(0.2, 0.2);
    PainterCanvas canvas(painter);
    canvas.Text(builder.Peek().Texts[0], builder.Peek().Styles[0], {4000 - width, 400, width, 447});
    painter.end();
    int last = 0, first = page.width();
    for (int x = 0; x < page.width(); ++x) {
      for (int y = 0; y < page.height(); ++y) {
        if (qGray(page.pixel(x, y)) > 128) continue;
        last = std::max(last, x);
        first = std::min(first, x);
      }
    }
    EXPECT_NEAR(last * 5, 4000, 40) << text;
    EXPECT_NEAR(first * 5, 4000 - width, 40) << text;
  }
}

TEST(ShapedLine, LatinWordsAreAsWideAsInPlainLines) {
  ReportFont& font = ReportFont::OfThisThread();
  const float plain = CharacterEdges("AVAVA final office", 10, false, font).back();
  EXPECT_NEAR(ShapedAdvance("AVAVA final office", false, TextFlow::LeftToRight, font) * 200, plain, 0.5F);
}

TEST(ShapedLine, AVeryLongLineIsMeasuredInFull) {
  const std::string half(30'000, 'm');
  ReportFont& font = ReportFont::OfThisThread();
  const float plain = CharacterEdges(half, 1, false, font).back() / TwipsPerPoint;
  EXPECT_NEAR(ShapedAdvance(half, false, TextFlow::LeftToRight, font) / plain, 1, 0.01F);
}

TEST(ShapedLine, ControlCharactersShowNothing) {
  EXPECT_FLOAT_EQ(Shape("ש\x01ש").Advance, Shape("שש").Advance);
}

}  // namespace
}  // namespace tarvis
