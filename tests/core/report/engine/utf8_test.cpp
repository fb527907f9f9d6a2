// Characters of UTF-8, also of bytes that are none.
#include "report/engine/utf8.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace tarvis {
namespace {

using testing::ElementsAre;

std::vector<char32_t> CharactersOf(std::string_view text) {
  std::vector<char32_t> characters;
  for (std::size_t offset = 0; offset < text.size();) characters.push_back(NextCharacter(text, offset));
  return characters;
}

TEST(Utf8, HasCharactersOfOneToFourBytes) {
  EXPECT_THAT(CharactersOf("a\xC3\xA9\xE2\x82\xAC\xF0\xA0\xAE\xB7"),
              ElementsAre(U'a', U'\u00E9', U'\u20AC', U'\U00020BB7'));
}

TEST(Utf8, HasTheFirstCharactersOfEachLength) {
  EXPECT_THAT(CharactersOf("\xC2\x80\xE0\xA0\x80\xF0\x90\x80\x80"), ElementsAre(0x80, 0x800, 0x10000));
}

TEST(Utf8, ShowsEachByteThatStartsNoCharacterAsTheSignForOne) {
  EXPECT_THAT(CharactersOf("\xC2"), ElementsAre(0xFFFD)) << "the rest is missing";
  EXPECT_THAT(CharactersOf("\xC2x"), ElementsAre(0xFFFD, U'x')) << "the rest is another character";
  EXPECT_THAT(CharactersOf("\xE2\x82y"), ElementsAre(0xFFFD, 0xFFFD, U'y'));
  EXPECT_THAT(CharactersOf("\x80\xFFz"), ElementsAre(0xFFFD, 0xFFFD, U'z'));
  EXPECT_THAT(CharactersOf("\xC1\x81z"), ElementsAre(0xFFFD, 0xFFFD, U'z'))
      << "two bytes for a letter of one";
}

}  // namespace
}  // namespace tarvis
