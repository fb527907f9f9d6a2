// What the usual symbol fonts show, by the published tables of their characters.
#include <gtest/gtest.h>

#include "pictures/metafile/fonts/charset.h"

namespace tarvis {
namespace {

char32_t Shown(const std::u16string& face, char32_t code) {
  constexpr std::uint8_t symbolCharset = 2;
  return SymbolCharacter(FindSymbolSet(face, symbolCharset), code);
}

TEST(SymbolFonts, ShowBulletsArrowsAndTicks) {
  EXPECT_EQ(Shown(u"Wingdings", 'l'), U'\u25CF');
  EXPECT_EQ(Shown(u"Wingdings", 'p'), U'\u25A1');
  EXPECT_EQ(Shown(u"Wingdings", 'x'), U'\u2327');
  EXPECT_EQ(Shown(u"Wingdings", 0xE0), U'\u2192');
  EXPECT_EQ(Shown(u"Wingdings", 0xFC), U'\u2713');
  EXPECT_EQ(Shown(u"Wingdings", 0xFE), U'\u2611');
}

TEST(SymbolFonts, ShowNumbersInCirclesAndTheZodiac) {
  EXPECT_EQ(Shown(u"Wingdings", 0x81), U'\u2460');
  EXPECT_EQ(Shown(u"Wingdings", 0x95), U'\u277F');
  EXPECT_EQ(Shown(u"Wingdings", 0x5E), U'\u2648');
  EXPECT_EQ(Shown(u"Wingdings 2", 0x6B), U'\u2461');
}

TEST(SymbolFonts, ShowTheMarkersOfCharts) {
  EXPECT_EQ(Shown(u"Webdings", 'g'), U'\u25A0');
  EXPECT_EQ(Shown(u"Webdings", 'n'), U'\u25CF');
  EXPECT_EQ(Shown(u"Monotype Sorts", 'n'), U'\u25A0');
  EXPECT_EQ(Shown(u"Monotype Sorts", '4'), U'\u2714');
  EXPECT_EQ(Shown(u"ZapfDingbats", 0xAC), U'\u2460');
  EXPECT_EQ(Shown(u"ZapfDingbats", 0xFE), U'\u27BE');
}

TEST(SymbolFonts, ShowTheSameForACodeInThePrivateArea) {
  EXPECT_EQ(Shown(u"Wingdings", 0xF0FC), U'\u2713');
  EXPECT_EQ(Shown(u"Symbol", 0xF061), U'\u03B1');
}

TEST(SymbolFonts, HaveNoCharacterForPicturesThatNoFontHas) {
  EXPECT_EQ(Shown(u"Wingdings", 0x24), U'\0');
  EXPECT_EQ(Shown(u"Wingdings", 0xFF), U'\0');
  EXPECT_EQ(Shown(u"Webdings", 0xFF), U'\0');
  EXPECT_EQ(Shown(u"Monotype Sorts", 0xF0), U'\0');
  EXPECT_EQ(Shown(u"Wingdings 3", 'a'), U'\0');
}

}  // namespace
}  // namespace tarvis
