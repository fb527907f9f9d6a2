// The checks of typed text by bytes and lines.
#include "dialogs/controls/input_limits.h"

#include "dialogs/dialog_run.h"

namespace tarvis {
namespace {

// U+8A66, two bytes in a Japanese code page and three in UTF-8.
const std::string Wide = "\xE8\xA9\xA6";

class InputLimits : public testing::Test, protected TestRun {
 protected:
  using TestRun::Run;

  InputLimits() { Run.CodePage = CodePage(932); }

  bool Trim(const std::string& text) {
    Box.SetText(text);
    return TrimToByteLimit(Run, 40, Box);
  }

  QWidget Window;
  LineBox Box{"box", NoFamily, "box", 40, {0, 0, 3000, 300}, &Window};
};

TEST_F(InputLimits, FortyBytesPassAndFortyOneAreCutWithOneMessage) {
  EXPECT_TRUE(Trim(Repeat("a", 40)));
  EXPECT_TRUE(Desktop.Messages.empty());
  EXPECT_FALSE(Trim(Repeat("a", 41)));
  EXPECT_EQ(Box.Text(), Repeat("a", 40));
  EXPECT_THAT(Desktop.Messages, testing::ElementsAre(TitleTooLong));
}

TEST_F(InputLimits, TheTwentyFirstDoubleByteCharacterIsRemovedWhole) {
  EXPECT_TRUE(Trim(Repeat(Wide, 20)));
  EXPECT_FALSE(Trim(Repeat(Wide, 21)));
  EXPECT_EQ(Box.Text(), Repeat(Wide, 20));
}

TEST_F(InputLimits, ADoubleByteCharacterAcrossTheLimitIsNotHalved) {
  EXPECT_FALSE(Trim(Repeat("a", 39) + Wide));
  EXPECT_EQ(Box.Text(), Repeat("a", 39));
  EXPECT_EQ(Box.MaximumLength(), 39);
}

TEST_F(InputLimits, ACutTextFillsItsBoxUntilTheNextChangeWithinTheLimit) {
  Trim(Repeat(Wide, 21));
  EXPECT_EQ(Box.MaximumLength(), 20);
  EXPECT_TRUE(Trim("short"));
  EXPECT_EQ(Box.MaximumLength(), 40);
}

TEST_F(InputLimits, AVeryLongTextIsCutInOneMessage) {
  EXPECT_FALSE(Trim(Repeat("a", 100000)));
  EXPECT_EQ(Box.Text(), Repeat("a", 40));
  EXPECT_EQ(Desktop.Messages.size(), 1u);
}

TEST_F(InputLimits, ACharacterOutsideOfTheCodePageCountsOne) {
  const std::string euro = "\xE2\x82\xAC";
  EXPECT_TRUE(Trim(Repeat(euro, 40)));
  EXPECT_FALSE(Trim(Repeat(euro, 41)));
}

TEST_F(InputLimits, TheByteCheckRefusesAndLeavesTheText) {
  Box.SetText(Repeat("a", 51));
  EXPECT_FALSE(CheckByteLimit(Run, 50, Box));
  EXPECT_EQ(Box.Text(), Repeat("a", 51));
  EXPECT_THAT(
      Desktop.Messages,
      testing::ElementsAre("Input Error|Try with  Less Characters.  Up to 50 Characters can be Inputted."));
  Box.SetText(Repeat("a", 50));
  EXPECT_TRUE(CheckByteLimit(Run, 50, Box));
}

TEST_F(InputLimits, LinesAreCountedAsTheyWrapAtTheirWidth) {
  struct Case {
    std::string Text;
    bool Passes;
  };
  const std::vector<Case> cases{{Repeat("a", 50), true},
                                {Repeat("a", 51), true},
                                {Repeat("a", 100), true},
                                {Repeat("a", 101), false},
                                {Repeat("a", 51) + "\r\n" + "b", false},
                                {Repeat("a", 50) + "\r\n" + Repeat("b", 50), true},
                                {"\r\n", true},
                                {"a\r\nb\r\n", true},
                                {"a\r\nb\r\nc", false}};
  for (const Case& one : cases) {
    struct Memory : InputBox {
      std::string Text() const override { return Held; }
      void SetText(const std::string& text) override { Held = text; }
      void SetMaximumLength(int) override {}
      int MaximumLength() const override { return 0; }
      void GiveFocus() override {}
      std::string Held;
    } box;
    box.Held = one.Text;
    EXPECT_EQ(CheckLineLimit(Run, 2, 50, box), one.Passes) << one.Text;
  }
}

TEST_F(InputLimits, TheLineMessageBreaksWithOneLineFeed) {
  Box.SetText(Repeat("a", 84 * 11 + 1));
  EXPECT_FALSE(CheckLineLimit(Run, 11, 84, Box));
  EXPECT_THAT(Desktop.Messages,
              testing::ElementsAre("Input Error|Try with Less Lines. Up to 11\nLines can be Inputted."));
}

TEST_F(InputLimits, AnEmptyTextPassesEverything) {
  EXPECT_TRUE(TrimToByteLimit(Run, 40, Box));
  EXPECT_TRUE(CheckByteLimit(Run, 50, Box));
  EXPECT_TRUE(CheckLineLimit(Run, 2, 50, Box));
}

}  // namespace
}  // namespace tarvis
