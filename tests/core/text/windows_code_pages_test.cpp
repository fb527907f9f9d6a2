// What Windows makes of code pages, beside ICU, which the program uses elsewhere.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/base/code_page_conversion.h"
#include "platform/base/icu_code_page.h"

namespace tarvis {
namespace {

constexpr char16_t Replacement = 0xFFFD;

class WindowsCodePages : public testing::TestWithParam<int> {
 protected:
  const std::unique_ptr<CodePageConversion> Own = OpenCodePage(GetParam());
  const std::unique_ptr<CodePageConversion> Icu = OpenIcuCodePage(GetParam());
};

INSTANTIATE_TEST_SUITE_P(All, WindowsCodePages,
                         testing::Values(874, 932, 936, 949, 950, 1250, 1251, 1252, 1253, 1254, 1255, 1256,
                                         1257, 1258));

// ICU has the Japanese controls of another system, which exchanges three of them, and not the first byte
// above ASCII; a Greek letter that Windows doesn't have, and not a Hebrew point that it has.
bool IsKnownToDiffer(int codePage, unsigned code) {
  switch (codePage) {
    case 932:
      return code == 0x1A || code == 0x1C || code == 0x7F || code == 0x80;
    case 1253:
      return code == 0xAA;
    case 1255:
      return code == 0xCA || code == 0x5BA;
    default:
      return false;
  }
}

// Each has characters of private use of its own for bytes that mean nothing.
bool IsFreeForPrivateUse(unsigned code) {
  return code >= 0xF850 && code < 0xF900;
}

// Each byte that is a character by itself, and each pair whose first byte announces a second one.
std::vector<std::string> Characters(int codePage) {
  std::vector<std::string> characters;
  for (unsigned first = 0; first < 0x100; ++first) {
    const auto lead = static_cast<char>(first);
    characters.emplace_back(1, lead);
    if (IsDBCSLeadByteEx(static_cast<UINT>(codePage), static_cast<BYTE>(first)) == FALSE) continue;
    for (unsigned second = 0; second < 0x100; ++second)
      characters.push_back({lead, static_cast<char>(second)});
  }
  return characters;
}

TEST_P(WindowsCodePages, DecodeEachCharacterAsIcu) {
  for (const std::string& bytes : Characters(GetParam())) {
    if (IsKnownToDiffer(GetParam(), static_cast<unsigned char>(bytes.back()))) continue;
    std::u16string expected = Icu->Decode(bytes);
    std::ranges::replace_if(expected, IsFreeForPrivateUse, Replacement);
    EXPECT_EQ(Own->Decode(bytes), expected) << std::hex << int{static_cast<unsigned char>(bytes.front())}
                                            << ' ' << int{static_cast<unsigned char>(bytes.back())};
  }
}

// ICU writes nothing for characters that are never seen, where Windows has none.
TEST_P(WindowsCodePages, EncodeEachCharacterAsIcu) {
  for (unsigned code = 1; code < 0x10000; ++code) {
    const bool isSurrogate = code >= 0xD800 && code < 0xE000;
    if (isSurrogate || IsKnownToDiffer(GetParam(), code) || IsFreeForPrivateUse(code)) continue;
    const std::u16string unit(1, static_cast<char16_t>(code));
    const auto expected = Icu->Encode(unit);
    EXPECT_EQ(Own->Encode(unit), expected == "" ? std::nullopt : expected) << std::hex << code;
  }
}

TEST_P(WindowsCodePages, DecodeTextWithHalfACharacterAsIcu) {
  const std::string text = "a\x81\x81 b\xE0|\xE0";
  EXPECT_EQ(Own->Decode(text), Icu->Decode(text));
}

TEST(WindowsCodePage, HasAllCharactersInUtf8) {
  const auto page = OpenCodePage(65001);
  const std::u16string text = u"\u00E4\u8868\xD83D\xDE00";
  const std::string bytes = "\xC3\xA4\xE8\xA1\xA8\xF0\x9F\x98\x80";
  EXPECT_EQ(page->Encode(text), bytes);
  EXPECT_EQ(page->Decode(bytes), text);
  EXPECT_EQ(page->Encode(u"\xD83D"), std::nullopt);
  EXPECT_EQ(page->Decode("a\xC3z"), u"a\uFFFDz");
}

}  // namespace
}  // namespace tarvis
