// Walking over UTF-8, one character at a time.
#pragma once

#include <cstddef>
#include <string_view>

namespace tarvis {

// The character at `offset`, which is moved to the next one. A broken sequence counts as one U+FFFD a byte.
inline char32_t NextCharacter(std::string_view text, std::size_t& offset) {
  const auto byteAt = [&](std::size_t index) { return static_cast<unsigned char>(text[index]); };
  const unsigned char lead = byteAt(offset++);
  if (lead < 0x80) return lead;
  const int length = lead >= 0xF0 && lead < 0xF8 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC2 ? 1 : 0;
  if (length == 0 || lead >= 0xF8 || offset + static_cast<std::size_t>(length) > text.size()) return 0xFFFD;
  char32_t character = lead & (0x3FU >> length);
  for (int index = 0; index < length; ++index) {
    const unsigned char next = byteAt(offset + static_cast<std::size_t>(index));
    if ((next & 0xC0U) != 0x80U) return 0xFFFD;
    character = (character << 6U) | (next & 0x3FU);
  }
  offset += static_cast<std::size_t>(length);
  return character;
}

}  // namespace tarvis
