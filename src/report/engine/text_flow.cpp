#include "report/engine/text_flow.h"

#include <unicode/uchar.h>

#include <algorithm>

#include "report/engine/utf8.h"

namespace tarvis {
namespace {

// Up to here each character is one glyph in its place: Latin letters, and the signs between them.
constexpr char32_t LastPlainCharacter = 0x2FF;
constexpr unsigned char FirstByteAbove = 0xCC;  // with which all further characters begin in UTF-8

// Scripts without marks, joining and clusters. They are most of what isn't Latin, so they are asked first.
struct Range {
  char32_t First;
  char32_t Last;
};
constexpr Range PlainScripts[] = {
    {0x370, 0x482},    // Greek and Cyrillic
    {0x48A, 0x58F},    // Cyrillic and Armenian
    {0x3000, 0x3029},  // signs of Chinese and Japanese
    {0x3030, 0x3098},  // Hiragana
    {0x309B, 0xA48C},  // Katakana, ideographs, Yi
    {0xAC00, 0xD7A3},  // Hangul
    {0xE000, 0xFAFF},  // private use, further ideographs
    {0xFF01, 0xFFFD},  // full and half width
};

bool IsOfPlainScript(char32_t character) {
  return std::ranges::any_of(PlainScripts, [character](const Range& range) {
    return character >= range.First && character <= range.Last;
  });
}

bool RunsToTheLeft(char32_t character) {
  switch (u_charDirection(static_cast<UChar32>(character))) {
    case U_RIGHT_TO_LEFT:
    case U_RIGHT_TO_LEFT_ARABIC:
    case U_ARABIC_NUMBER:
      return true;
    default:
      return false;
  }
}

// Marks, joining letters, and what changes its neighbours without being seen.
bool BelongsToNeighbours(char32_t character) {
  const auto code = static_cast<UChar32>(character);
  const int cluster = u_getIntPropertyValue(code, UCHAR_GRAPHEME_CLUSTER_BREAK);
  return (cluster != U_GCB_OTHER && cluster != U_GCB_CONTROL) ||
         u_getIntPropertyValue(code, UCHAR_JOINING_TYPE) == U_JT_DUAL_JOINING ||
         u_hasBinaryProperty(code, UCHAR_DEFAULT_IGNORABLE_CODE_POINT) != 0;
}

bool NeedsShaping(char32_t character) {
  if (character <= LastPlainCharacter || IsOfPlainScript(character)) return false;
  return RunsToTheLeft(character) || BelongsToNeighbours(character);
}

bool NeedsShaping(std::string_view text) {
  const auto isHigh = [](char byte) { return static_cast<unsigned char>(byte) >= FirstByteAbove; };
  if (std::ranges::none_of(text, isHigh)) return false;
  for (std::size_t offset = 0; offset < text.size();) {
    if (NeedsShaping(NextCharacter(text, offset))) return true;
  }
  return false;
}

bool StartsToTheLeft(std::string_view text) {
  for (std::size_t offset = 0; offset < text.size();) {
    const UCharDirection direction = u_charDirection(static_cast<UChar32>(NextCharacter(text, offset)));
    if (direction == U_LEFT_TO_RIGHT) return false;
    if (direction == U_RIGHT_TO_LEFT || direction == U_RIGHT_TO_LEFT_ARABIC) return true;
  }
  return false;
}

}  // namespace

TextFlow FlowOf(std::string_view paragraph) {
  if (!NeedsShaping(paragraph)) return TextFlow::Plain;
  return StartsToTheLeft(paragraph) ? TextFlow::RightToLeft : TextFlow::LeftToRight;
}

TextFlow FlowOfLine(std::string_view line, TextFlow paragraph) {
  return paragraph == TextFlow::LeftToRight && !NeedsShaping(line) ? TextFlow::Plain : paragraph;
}

}  // namespace tarvis
