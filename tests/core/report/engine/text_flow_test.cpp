// Which texts must be shaped, and how lines of such texts are measured and broken.
#include "report/engine/text_flow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "report/engine/text_cache.h"

namespace tarvis {
namespace {

using testing::ElementsAre;

TEST(TextFlow, IsPlainForScriptsOfOneGlyphACharacter) {
  for (const char* text : {"", "Speed Loop Gain", "Größe µs ±5 °C", "Ελληνικά", "Скорость", "サーボ一覧",
                           "한국어", "中文", "ﾊﾟﾗﾒｰﾀ", "5 – 10 … “x”", "\xEE\x80\x80"}) {
    EXPECT_EQ(FlowOf(text), TextFlow::Plain) << text;
  }
}

TEST(TextFlow, IsPlainForTheFirstAndTheLastSyllableOfHangul) {
  EXPECT_EQ(FlowOf("가"), TextFlow::Plain);
  EXPECT_EQ(FlowOf("힣"), TextFlow::Plain);
}

TEST(TextFlow, IsToBeShapedWithMarksAndComplexScripts) {
  for (const char* text :
       {"ที่", "กำ", "q\xCC\x80", "e\xCC\xB2", "हिन्दी", "か\xE3\x82\x9A", "\xE1\x84\x92\xE1\x85\xA1"})
    EXPECT_EQ(FlowOf(text), TextFlow::LeftToRight) << text;
}

TEST(TextFlow, RunsAsTheFirstLetterOfTheParagraphDoes) {
  EXPECT_EQ(FlowOf("שלום Pn100"), TextFlow::RightToLeft);
  EXPECT_EQ(FlowOf("12: مرحبا"), TextFlow::RightToLeft);
  EXPECT_EQ(FlowOf("Pn100 שלום"), TextFlow::LeftToRight);
}

TEST(TextFlow, GoesOnInTheLinesOfAParagraph) {
  EXPECT_EQ(FlowOfLine("Pn100.", TextFlow::RightToLeft), TextFlow::RightToLeft);
  EXPECT_EQ(FlowOfLine("שלום", TextFlow::LeftToRight), TextFlow::LeftToRight);
  EXPECT_EQ(FlowOfLine("Pn100.", TextFlow::LeftToRight), TextFlow::Plain);
}

// Counts a shaped line as half as wide as its characters, plain characters as one em.
class HalfWidthWhenShaped : public TextMeasurer {
 public:
  float AdvanceEm(char32_t /*character*/, bool /*bold*/) const override { return 1; }
  float LineAdvanceEm(std::string_view line, bool bold, TextFlow flow) const override {
    return TextMeasurer::LineAdvanceEm(line, bold, flow) / 2;
  }
};

class ShapedText : public testing::Test {
 protected:
  static constexpr float Em = 10 * TwipsPerPoint;

  std::vector<std::string> Lines(std::string_view text, float width) {
    pieces_.clear();
    std::vector<std::string> lines;
    for (const std::uint32_t piece : cache_.Lines(text, cache_.Style(10, false), width)) {
      pieces_.push_back(document_.Texts[piece]);
      lines.emplace_back(pieces_.back().Text);
    }
    return lines;
  }

  HalfWidthWhenShaped measurer_;
  Document document_;
  TextCache cache_{document_, measurer_};
  std::vector<TextPiece> pieces_;
};

TEST_F(ShapedText, IsAsWideAsTheShapedLine) {
  Lines("שלום", 10 * Em);
  EXPECT_FLOAT_EQ(pieces_[0].Advance, 2 * Em);
  EXPECT_EQ(pieces_[0].Flow, TextFlow::RightToLeft);
  Lines("Pn100", 10 * Em);
  EXPECT_FLOAT_EQ(pieces_[0].Advance, 5 * Em);
  EXPECT_EQ(pieces_[0].Flow, TextFlow::Plain);
}

TEST_F(ShapedText, WrapsByTheWidthOfTheShapedLine) {
  EXPECT_THAT(Lines("שלום שלום שלום", 4.5F * Em), ElementsAre("שלום שלום", "שלום"));
}

TEST_F(ShapedText, KeepsTheDirectionOfItsParagraphOnEveryLine) {
  EXPECT_THAT(Lines("שלום Pn100", 3 * Em), ElementsAre("שלום", "Pn100"));
  EXPECT_EQ(pieces_[1].Flow, TextFlow::RightToLeft);
  EXPECT_THAT(Lines("Pn100 שלום", 5 * Em), ElementsAre("Pn100 שלום"));
  EXPECT_THAT(Lines("Pn100 שלום", 3 * Em), ElementsAre("Pn100", "שלום"));
  EXPECT_EQ(pieces_[0].Flow, TextFlow::Plain);
  EXPECT_EQ(pieces_[1].Flow, TextFlow::LeftToRight);
}

TEST_F(ShapedText, NeverBreaksInsideACluster) {
  // Three times a letter with two marks, which together are wider than the box.
  EXPECT_THAT(Lines("ที่ที่ที่", Em), ElementsAre("ที่", "ที่", "ที่"));
}

TEST_F(ShapedText, BreaksThaiBetweenItsWordsWhichNoBlankParts) {
  EXPECT_THAT(Lines("ความเร็วที่กำหนด", 5 * Em), ElementsAre("ความเร็ว", "ที่กำหนด"));
  EXPECT_THAT(Lines("น้ำหนักที่กำหนด", 4 * Em), ElementsAre("น้ำหนัก", "ที่กำหนด"));
}

TEST_F(ShapedText, BreaksBesideBlanksAndNeverBeforeSignsThatEndASentence) {
  EXPECT_THAT(Lines("הגבלת 300%, (Pn100)!", 5 * Em), ElementsAre("הגבלת", "300%,", "(Pn100)!"));
  EXPECT_THAT(Lines("السرعة، الوضع.", 4 * Em), ElementsAre("السرعة،", "الوضع."));
}

TEST_F(ShapedText, NeverPartsSignsThatAreSeveralCharacters) {
  EXPECT_THAT(Lines("👨‍👩‍👧👍🏽", 2.5F * Em), ElementsAre("👨‍👩‍👧", "👍🏽"));
  EXPECT_THAT(Lines("שָׁלוֹם", 1.5F * Em), ElementsAre("שָׁ", "לוֹ", "ם"));
}

TEST_F(ShapedText, BreaksALongWordThatIsWiderThanItsBoxInGoodTime) {
  std::string word;
  for (int letter = 0; letter < 20'000; ++letter) word += "ש";
  EXPECT_EQ(Lines(word, 10 * Em).size(), 1000U);
}

TEST_F(ShapedText, IsComposedOnItsWayToThePage) {
  EXPECT_THAT(Lines("khu\xC3\xAA\xCC\x81"
                    "ch",
                    20 * Em),
              ElementsAre("khuếch"));
  EXPECT_EQ(pieces_[0].Flow, TextFlow::Plain);
  EXPECT_FLOAT_EQ(pieces_[0].Advance, 6 * Em);
}

}  // namespace
}  // namespace tarvis
