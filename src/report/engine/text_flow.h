// How the characters of a line follow each other, and whether they must be shaped.
#pragma once

#include <cstdint>
#include <string_view>

namespace tarvis {

enum class TextFlow : std::uint8_t {
  Plain,        // one glyph for each character, from left to right
  LeftToRight,  // to be shaped, in a paragraph that runs to the right
  RightToLeft,  // to be shaped, in a paragraph that runs to the left
};

// The flow of a whole paragraph (UTF-8). Its direction is that of its first letter that has one.
TextFlow FlowOf(std::string_view paragraph);

// The flow of a line of such a paragraph: a plain line needs no shaping in a paragraph that runs to the
// right.
TextFlow FlowOfLine(std::string_view line, TextFlow paragraph);

}  // namespace tarvis
