#include "text/excerpt.h"

#include <cstddef>

namespace tarvis {
namespace {

constexpr std::size_t Longest = 60;

bool IsContinuation(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}
bool IsControl(char c) {
  return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

}  // namespace

std::string Excerpt(std::string_view text) {
  const bool isLong = text.size() > Longest;
  if (isLong) {
    std::size_t end = Longest;
    while (end > 0 && IsContinuation(text[end])) --end;
    text = text.substr(0, end);
  }
  constexpr std::string_view HexDigits = "0123456789ABCDEF";
  std::string shown;
  for (const char c : text) {
    if (!IsControl(c)) {
      shown += c;
      continue;
    }
    const auto code = static_cast<unsigned char>(c);
    shown += {'\\', 'x', HexDigits[code >> 4], HexDigits[code & 15]};
  }
  return isLong ? shown + "..." : shown;
}

}  // namespace tarvis
