// One way to write each letter, and what a search compares.
#include "text/normal_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvis {
namespace {

using testing::ElementsAre;

TEST(Composed, JoinsALetterWithItsMarks) {
  EXPECT_EQ(ToComposed("khu\xC3\xAA\xCC\x81"
                       "ch"),
            "khuếch");
  EXPECT_EQ(ToComposed("か\xE3\x82\x99"), "が");
}

TEST(Composed, LeavesAloneWhatIsSoAlready) {
  for (const char* text : {"", "plain", "Größe", "khuếch", "日本", "ที่", "ﾊﾟﾗ", "①"})
    EXPECT_EQ(ToComposed(text), std::nullopt) << text;
}

TEST(Folded, MakesCaseAndWidthAlike) {
  EXPECT_EQ(Fold("ＰＮ１００", false).Units, u"pn100");
  EXPECT_EQ(Fold("ﾊﾟﾗﾒｰﾀ", false).Units, Fold("パラメータ", false).Units);
  EXPECT_EQ(Fold("KHU\xE1\xBA\xBE"
                 "CH",
                 false)
                .Units,
            Fold("khu\xC3\xAA\xCC\x81"
                 "ch",
                 false)
                .Units);
  EXPECT_EQ(Fold("Straße", false).Units, u"strasse");
}

TEST(Folded, MakesPlainLettersSmall) {
  EXPECT_EQ(Fold("Pn100 AZaz@[", false).Units, u"pn100 azaz@[");
}

TEST(Folded, KeepsCaseWhereItMatters) {
  EXPECT_EQ(Fold("ＰＮ", true).Units, u"PN");
}

TEST(Folded, ReturnsTheCharactersThatEachUnitComesFrom) {
  const FoldedText marks = Fold("ﾊﾟx㎜", false);
  EXPECT_EQ(marks.Units, u"パxmm");
  EXPECT_THAT(marks.Firsts, ElementsAre(0, 2, 3, 3));
  EXPECT_THAT(marks.Ends, ElementsAre(2, 3, 4, 4));
  const FoldedText beyond = Fold("𠮷x", false);
  EXPECT_THAT(beyond.Firsts, ElementsAre(0, 0, 1));
  EXPECT_THAT(beyond.Ends, ElementsAre(1, 1, 2));
}

TEST(Folded, CountsAMarkAtTheBeginningAsACharacter) {
  const FoldedText folded = Fold("\xCC\x81ﾊﾟ", false);
  EXPECT_THAT(folded.Firsts, ElementsAre(0, 1));
  EXPECT_THAT(folded.Ends, ElementsAre(1, 3));
}

TEST(Folded, ReturnsNoCharactersWhereEachIsOneUnit) {
  for (const char* text : {"Pn100", "日本語"}) {
    const FoldedText folded = Fold(text, false);
    EXPECT_TRUE(folded.Firsts.empty()) << text;
    EXPECT_EQ(folded.FirstOf(2), 2U);
    EXPECT_EQ(folded.EndOf(2), 3U);
  }
}

}  // namespace
}  // namespace tarvis
