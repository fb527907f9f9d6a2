// Fields, line breaks, escapes and byte limits of a text.
#include "text/text.h"

#include <gtest/gtest.h>

#include "support/test_run.h"

namespace tarvis {
namespace {

TEST(NextField, TakesFieldsUpToTheComma) {
  std::string_view text = "a,b c,,d";
  EXPECT_EQ(NextField(text), "a");
  EXPECT_EQ(NextField(text), "b c");
  EXPECT_EQ(NextField(text), "");
  EXPECT_EQ(text, "d");
}

TEST(NextField, EmptiesATextWithoutComma) {
  std::string_view text = "only";
  EXPECT_EQ(NextField(text), "only");
  EXPECT_EQ(NextField(text), "");
}

TEST(NextTextLine, SkipsOneCharacterAfterTheCarriageReturnWhateverItIs) {
  std::string_view text = "one\r\ntwo\rXthree\r";
  EXPECT_EQ(NextTextLine(text), "one");
  EXPECT_EQ(NextTextLine(text), "two");
  EXPECT_EQ(NextTextLine(text), "three");
  EXPECT_EQ(text, "");
}

TEST(NextTextLine, SkipsAWholeCharacterOfSeveralBytes) {
  std::string_view text = "one\r\u00E4two";
  EXPECT_EQ(NextTextLine(text), "one");
  EXPECT_EQ(text, "two");
}

TEST(NextTextLine, KeepsALineFeedAlone) {
  std::string_view text = "one\ntwo";
  EXPECT_EQ(NextTextLine(text), "one\ntwo");
  EXPECT_EQ(text, "");
}

TEST(Newlines, AreEscapedAndUnescaped) {
  EXPECT_EQ(EscapeNewlines("a\r\nb\r\n"), "a\\r\\nb\\r\\n");
  EXPECT_EQ(UnescapeNewlines("a\\r\\nb\\r\\n"), "a\r\nb\r\n");
  EXPECT_EQ(NewlinesToBlanks("a\r\nb\r\n"), "a b ");
}

TEST(Newlines, StayWhereCarriageReturnOrLineFeedIsAlone) {
  EXPECT_EQ(EscapeNewlines("a\rb\nc\n\rd"), "a\rb\nc\n\rd");
  EXPECT_EQ(NewlinesToBlanks("a\rb\nc"), "a\rb\nc");
  EXPECT_EQ(UnescapeNewlines("a\\rb\\n"), "a\\rb\\n");
}

TEST(Newlines, AreUnescapedInsideAPathToo) {
  EXPECT_EQ(UnescapeNewlines("C:\\r\\names"), "C:\r\names");
}

TEST(CountLineBreaks, CountsBreaksNotLines) {
  EXPECT_EQ(CountLineBreaks(""), 0);
  EXPECT_EQ(CountLineBreaks("a\r\nb\r\nc"), 2);
  EXPECT_EQ(CountLineBreaks("\r"), 1);
  EXPECT_EQ(CountLineBreaks("\r\r"), 1) << "the character after a CR goes with it";
  EXPECT_EQ(CountLineBreaks("\n\n"), 0);
}

TEST(CountLineBreaks, OverflowsAbove16Bits) {
  const auto breaks = [](std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) text += "\r\n";
    return text;
  };
  EXPECT_EQ(CountLineBreaks(breaks(32767)), 32767);
  EXPECT_EQ(RunTimeFailureOf([&] { CountLineBreaks(breaks(32768)); }), "overflow: too many line breaks");
}

TEST(LeftBytes, CutsAtBytesOfTheCodePage) {
  EXPECT_EQ(LeftBytes(CodePage(1252), "Gr\u00FC\u00DFe", 4), "Gr\u00FC\u00DF");
  EXPECT_EQ(LeftBytes(CodePage(932), "\u8868\u793A", 2), "\u8868");
  EXPECT_EQ(LeftBytes(CodePage(1252), "abc", 3), "abc");
  EXPECT_EQ(LeftBytes(CodePage(1252), "abc", 9), "abc");
  EXPECT_EQ(LeftBytes(CodePage(1252), "abc", 0), "");
}

TEST(LeftBytes, MayHalveADoubleByteCharacter) {
  EXPECT_EQ(LeftBytes(CodePage(932), "\u8868\u793A", 3), "\u8868\uFFFD");
}

TEST(LeftBytes, MayHalveALineBreak) {
  EXPECT_EQ(LeftBytes(CodePage(1252), "ab\r\ncd", 3), "ab\r");
}

TEST(CutToBytes, RemovesWholeCharactersFromTheEnd) {
  const CodePage japanese(932);
  EXPECT_EQ(CutToBytes(japanese, "ab\u8868\u793A", 6), "ab\u8868\u793A");
  EXPECT_EQ(CutToBytes(japanese, "ab\u8868\u793A", 5), "ab\u8868");
  EXPECT_EQ(CutToBytes(japanese, "\u8868", 1), "");
  EXPECT_EQ(CutToBytes(CodePage(1252), "Gr\u00FC\u00DFe", 4), "Gr\u00FC\u00DF");
  EXPECT_EQ(CutToBytes(CodePage(1252), "\U0001F600\U0001F600", 1), "\U0001F600");
}

TEST(CountWrappedLines, CountsBytesOfTheCodePageAgainstTheWidth) {
  const CodePage western(1252);
  EXPECT_EQ(CountWrappedLines(western, "", 2), 0);
  EXPECT_EQ(CountWrappedLines(western, "abc", 2), 2);
  EXPECT_EQ(CountWrappedLines(western, "ab", 2), 1);
  EXPECT_EQ(CountWrappedLines(western, "abcd", 2), 2);
  EXPECT_EQ(CountWrappedLines(western, "\u00E4\u00F6", 2), 1);
  EXPECT_EQ(CountWrappedLines(CodePage(932), "\u8868\u793A", 2), 2);
}

TEST(CountWrappedLines, CountsAnEmptyLineButNoneAfterTheLastBreak) {
  const CodePage western(1252);
  EXPECT_EQ(CountWrappedLines(western, "a\r\n\r\nb", 2), 3);
  EXPECT_EQ(CountWrappedLines(western, "a\r\n", 2), 1);
  EXPECT_EQ(CountWrappedLines(western, "\r\n", 2), 1);
}

TEST(LeftCharacters, CountsCodeUnitsOfUtf16) {
  EXPECT_EQ(LeftCharacters("200.5", 3), "200");
  EXPECT_EQ(LeftCharacters("20", 3), "20");
  EXPECT_EQ(LeftCharacters("\u00E4\u8868\u00F6x", 3), "\u00E4\u8868\u00F6");
  EXPECT_EQ(LeftCharacters("\U0001F600ab", 3), "\U0001F600a");
}

TEST(CharacterCount, CountsCodeUnitsOfUtf16) {
  EXPECT_EQ(CharacterCount(""), 0U);
  EXPECT_EQ(CharacterCount("abc"), 3U);
  EXPECT_EQ(CharacterCount("\u00E4\u8868"), 2U);
  EXPECT_EQ(CharacterCount("\U0001F600a"), 3U);
}

TEST(EqualIgnoringCase, ComparesWholeTextsOfAnyScript) {
  EXPECT_TRUE(EqualIgnoringCase("", ""));
  EXPECT_TRUE(EqualIgnoringCase("Pn00A", "pN00a"));
  EXPECT_FALSE(EqualIgnoringCase("Pn00A", "Pn00B"));
  EXPECT_FALSE(EqualIgnoringCase("Pn00", "Pn000"));
  EXPECT_FALSE(EqualIgnoringCase("Pn000", "Pn00"));
  EXPECT_FALSE(EqualIgnoringCase("", "a"));
  EXPECT_TRUE(EqualIgnoringCase("\u00C4", "\u00E4"));
  EXPECT_FALSE(EqualIgnoringCase("\u00C4", "\u00F6"));
}

}  // namespace
}  // namespace tarvis
