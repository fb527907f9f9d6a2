// Long texts shortened for a message.
#include "text/excerpt.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvis {
namespace {

TEST(Excerpt, ShowsSixtyBytesAndMarksWhatIsMissing) {
  EXPECT_EQ(Excerpt(""), "");
  EXPECT_EQ(Excerpt(std::string(60, 'x')), std::string(60, 'x'));
  EXPECT_EQ(Excerpt(std::string(61, 'x')), std::string(60, 'x') + "...");
}

TEST(Excerpt, CutsBetweenCharacters) {
  const std::string umlaut = "\u00E4";     // two bytes
  const std::string kanji = "\u8868";      // three bytes
  const std::string smile = "\U0001F600";  // four bytes
  for (const std::string& last : {umlaut, kanji, smile}) {
    const std::string before(61 - last.size(), 'x');
    EXPECT_EQ(Excerpt(before + last), before + "...") << "the last character would end after byte 60";
    const std::string fits(60 - last.size(), 'x');
    EXPECT_EQ(Excerpt(fits + last + "x"), fits + last + "...");
  }
}

TEST(Excerpt, WritesControlCharactersAsTheirNumber) {
  EXPECT_EQ(Excerpt("a\tb\r\nc"), "a\\x09b\\x0D\\x0Ac");
  EXPECT_EQ(Excerpt(std::string(1, '\0') + "\x1F \x7F~\x10"), "\\x00\\x1F \\x7F~\\x10");
  EXPECT_EQ(Excerpt("\u00E4\u8868"), "\u00E4\u8868") << "bytes of other characters are no control characters";
}

}  // namespace
}  // namespace tarvis
