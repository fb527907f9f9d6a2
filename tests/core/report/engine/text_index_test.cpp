// The index of texts that are known.
#include "report/engine/text_index.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>

namespace tarvis {
namespace {

TEST(TextIndex, FindsEachTextAmongMany) {
  constexpr std::uint32_t Count = 20000;
  std::deque<std::string> texts;
  TextIndex index;
  for (std::uint32_t number = 0; number < Count; ++number)
    index.Add({texts.emplace_back("S-" + std::to_string(number)), 1, TextFlow::Plain}, number);
  for (std::uint32_t number = 0; number < Count; ++number)
    ASSERT_EQ(index.Find({texts[number], 1, TextFlow::Plain}), number);
  EXPECT_EQ(index.Find({"S-20000", 1, TextFlow::Plain}), std::nullopt);
}

TEST(TextIndex, TellsStylesAndParagraphsApart) {
  TextIndex index;
  index.Add({"text", 1, TextFlow::Plain}, 10);
  index.Add({"text", 2, TextFlow::Plain}, 20);
  index.Add({"text", 1, TextFlow::LeftToRight}, 30);
  EXPECT_EQ(index.Find({"text", 1, TextFlow::Plain}), 10U);
  EXPECT_EQ(index.Find({"text", 2, TextFlow::Plain}), 20U);
  EXPECT_EQ(index.Find({"text", 1, TextFlow::LeftToRight}), 30U);
  EXPECT_EQ(index.Find({"text", 2, TextFlow::LeftToRight}), std::nullopt);
}

TEST(TextIndex, HoldsTheEmptyText) {
  TextIndex index;
  EXPECT_EQ(index.Find({}), std::nullopt);
  index.Add({}, 0);
  EXPECT_EQ(index.Find({}), 0U);
}

}  // namespace
}  // namespace tarvis
