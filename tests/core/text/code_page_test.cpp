// Text to bytes of a code page and back, lengths in bytes.
#include "text/code_page.h"

#include <gtest/gtest.h>

#include <string>

#include "support/test_run.h"
#include "text/normal_form.h"

namespace tarvis {
namespace {

struct Page {
  int Number;
  std::string Bytes;
  std::string Text;
};

class CodePages : public testing::TestWithParam<Page> {};

TEST_P(CodePages, ConvertBothWaysAndCountBytes) {
  const CodePage page(GetParam().Number);
  EXPECT_EQ(page.ToUtf8(GetParam().Bytes), GetParam().Text);
  EXPECT_EQ(page.FromUtf8(GetParam().Text), GetParam().Bytes);
  EXPECT_EQ(page.ByteLength(GetParam().Text), GetParam().Bytes.size());
  EXPECT_EQ(page.Number(), GetParam().Number);
}

// Second bytes 5C and 7C are the backslash and the bar elsewhere.
INSTANTIATE_TEST_SUITE_P(All, CodePages,
                         testing::Values(Page{1252, "\xC4\x80\\|", "\u00C4\u20AC\\|"},
                                         Page{1252, "\x81\x8D\x8F\x90\x9D", "\u0081\u008D\u008F\u0090\u009D"},
                                         Page{932, "\x95\x5C\x83\x7C\xB1\\", "\u8868\u30DD\uFF71\\"},
                                         Page{936, "\x81\x5C\x81\x7C\\", "\u4E57\u4E85\\"},
                                         Page{949, "\xB0\xA1\xC7\xD1\\", "\uAC00\uD55C\\"},
                                         Page{950, "\xA5\x5C\xB3\x5C\\", "\u529F\u8A31\\"}));

TEST(CodePage, GivesAReplacementForHalfACharacter) {
  EXPECT_EQ(CodePage(932).ToUtf8("a\x95"), "a\uFFFD");
  EXPECT_EQ(CodePage(950).ToUtf8("\xA5"), "\uFFFD");
}

TEST(CodePage, GivesAQuestionMarkForACharacterThatItDoesNotHave) {
  EXPECT_EQ(CodePage(1252).FromUtf8("a\u8868b"), "a?b");
  EXPECT_EQ(CodePage(932).FromUtf8("a\uAC00b"), "a?b");
  EXPECT_EQ(CodePage(1252).ByteLength("a\u8868b"), 3U);
}

// Vietnamese input methods write a letter and its marks as one character, the code page has the tone apart.
TEST(CodePage, WritesLettersWithTheirMarksApartWhereItHasThemOnlySo) {
  const CodePage page(1258);
  EXPECT_EQ(page.FromUtf8("khu\u1EBFch \u0111\u1EA1i"),
            "khu\xEA\xEC"
            "ch \xF0"
            "a\xF2"
            "i");
  EXPECT_EQ(page.FromUtf8("\u1EAD \u1EE3 \u1EB5 \u00FD \u1EA6"), "\xE2\xF2 \xF5\xF2 \xE3\xDE y\xEC \xC2\xCC");
  EXPECT_EQ(page.ByteLength("khu\u1EBFch"), 7U);
  EXPECT_EQ(CodePage(1255).FromUtf8("\uFB2A"), "\xF9\xD1");
}

TEST(CodePage, EveryVietnameseLetterComesBackFromItsBytes) {
  const CodePage page(1258);
  const auto composed = [](const std::string& text) { return ToComposed(text).value_or(text); };
  const std::string letters =
      "ăâđêôơưĂÂĐÊÔƠƯáàãéèíìóòõúùýÁÀÃÉÈÍÌÓÒÕÚÙÝẠạẢảẤấẦầẨẩẪẫẬậẮắẰằẲẳẴẵẶặẸẹẺẻẼẽẾếỀềỂểỄễỆệỈỉỊịỌọỎỏỐốỒồỔổỖỗỘộ"
      "ỚớỜờỞởỠỡỢợỤụỦủỨứỪừỬửỮữỰựỲỳỴỵỶỷỸỹ";
  EXPECT_EQ(composed(page.ToUtf8(page.FromUtf8(letters))), letters);
}

TEST(CodePage, WritesLettersAndMarksTogetherWhereItHasThemOnlySo) {
  EXPECT_EQ(CodePage(1252).FromUtf8("Cafe\u0301 xe\u0323"), "Caf\xE9 xe?");
  EXPECT_EQ(CodePage(932).FromUtf8("\u304B\u3099"), "\x82\xAA");
}

TEST(CodePage, KeepsBytesOfLettersThatItHasInTwoWays) {
  const CodePage page(1258);
  for (const std::string bytes : {"a\xCC \xE0", "e\xEC \xE9", "\xEA\xEC"})
    EXPECT_EQ(page.FromUtf8(page.ToUtf8(bytes)), bytes);
}

TEST(CodePage, KeepsNulBytes) {
  const std::string bytes("a\0\xE4", 3);
  EXPECT_EQ(CodePage(1252).FromUtf8(CodePage(1252).ToUtf8(bytes)), bytes);
}

TEST(CodePage, RefusesANumberThatIsNone) {
  EXPECT_EQ(RunTimeFailureOf([] { CodePage page(7); }), "CodePage: no such code page: '7'");
  for (const int number : {1200, 65000}) {
    EXPECT_EQ(RunTimeFailureOf([&] { CodePage page(number); }),
              "CodePage: not a code page that holds ASCII: '" + std::to_string(number) + "'");
  }
}

TEST(CodePage, MovesWithItsConverter) {
  CodePage page(1252);
  page = CodePage(932);
  EXPECT_EQ(page.ToUtf8("\x95\x5C"), "\u8868");
}

}  // namespace
}  // namespace tarvis
