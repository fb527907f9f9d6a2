// The fonts of pages: widths, fallbacks, marks.
#include "preview/paint/report_font.h"

#include <gtest/gtest.h>

#include "preview/paint/text_run.h"

namespace tarvis {
namespace {

double Width(const char* text, float size, bool bold = false) {
  return static_cast<double>(CharacterEdges(text, size, bold, ReportFont::OfThisThread()).back());
}

TEST(ReportFont, WidthsAreThoseOfArialsDesignMetrics) {
  EXPECT_NEAR(Width("Sincerely yours,", 10), 1423, 0.6);
  EXPECT_NEAR(Width("SUBJECT:", 14, true), 1400, 0.6);
  EXPECT_NEAR(Width("Default Setting", 8.5F), 1115, 0.6);
  EXPECT_NEAR(Width("STEP", 9, true), 470, 0.6);
  EXPECT_NEAR(Width("Reference Pattern", 8.5F), 1380, 0.6);
  EXPECT_NEAR(Width("Digit Position", 8.5F), 992, 0.6);
  EXPECT_NEAR(Width("Encoder Dividing Ratio", 8.5F), 1729, 0.6);
  EXPECT_NEAR(Width("Printing Date : September 30, 2026", 8.5F), 2665, 0.6);
  EXPECT_NEAR(Width("9999", 8.5F), 378, 0.6);
  EXPECT_NEAR(Width("1234.567", 8.5F), 708.9, 0.2);
  EXPECT_NEAR(Width("Dynamics Simulation-Overlapping target", 12, true), 4641, 0.6);
}

TEST(ReportFont, PairsAreNotKerned) {
  EXPECT_NEAR(Width("AVAVAV", 10), 3 * Width("A", 10) + 3 * Width("V", 10), 0.01);
}

TEST(ReportFont, JapaneseComesFromAFallbackFontOneEmWide) {
  ReportFont& font = ReportFont::OfThisThread();
  const FontGlyph& glyph = font.Find(U'日', false);
  EXPECT_NE(glyph.Glyph, 0U);
  EXPECT_GT(glyph.Face, 1);
  EXPECT_FLOAT_EQ(glyph.AdvanceEm, 1.0F);
  EXPECT_EQ(font.Find(U'本', false).Face, glyph.Face);
}

TEST(ReportFont, CombiningMarksAndControlCharactersTakeNoWidth) {
  EXPECT_DOUBLE_EQ(Width("e\xCC\x81", 10), Width("e", 10));
  EXPECT_DOUBLE_EQ(Width("a\x01\x02"
                         "b",
                         10),
                   Width("ab", 10));
}

TEST(ReportFont, ATabIsABlank) {
  EXPECT_DOUBLE_EQ(Width("\t", 10), Width(" ", 10));
}

TEST(ReportFont, ACharacterOfNoFontStillShowsSomething) {
  const FontGlyph& glyph = ReportFont::OfThisThread().Find(char32_t{0xE123}, false);
  EXPECT_TRUE(glyph.Inks);
  EXPECT_GT(glyph.AdvanceEm, 0);
}

TEST(ReportFont, WritesIdeographsAsTheReadersOfTheCodePageDo) {
  const auto family = [](int codePage) {
    ReportFont& font = ReportFont::OfThisThread(codePage);
    return font.Face(font.Find(U'直', false).Face).familyName();
  };
  EXPECT_EQ(family(932), QStringLiteral("Noto Sans CJK JP"));
  EXPECT_EQ(family(936), QStringLiteral("Noto Sans CJK SC"));
  EXPECT_EQ(family(949), QStringLiteral("Noto Sans CJK KR"));
  EXPECT_EQ(family(950), QStringLiteral("Noto Sans CJK TC"));
}

TEST(ReportFont, KeepsArialForWhatItHasInEveryCodePage) {
  for (const int codePage : {0, 874, 932, 936, 949, 950, 1255, 1256}) {
    ReportFont& font = ReportFont::OfThisThread(codePage);
    EXPECT_EQ(font.Find(U'A', false).Face, 0) << codePage;
    EXPECT_FLOAT_EQ(font.Find(U'0', true).AdvanceEm, 1139.0F / 2048) << codePage;
  }
}

}  // namespace
}  // namespace tarvis
