// Numbers and operators of PDF content, independent of any locale.
#pragma once

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace tarvis {

// Appends `value` with up to two decimals and a blank after it.
inline void AppendNumber(std::string& out, double value) {
  const long long hundredths = std::llround(value * 100);
  std::array<char, 32> digits;
  char* end = digits.data();
  if (hundredths < 0) *end++ = '-';
  const long long size = std::llabs(hundredths);
  end = std::to_chars(end, digits.data() + digits.size() - 4, size / 100).ptr;
  const int rest = static_cast<int>(size % 100);
  if (rest != 0) {
    *end++ = '.';
    *end++ = static_cast<char>('0' + rest / 10);
    if (rest % 10 != 0) *end++ = static_cast<char>('0' + rest % 10);
  }
  *end++ = ' ';
  out.append(digits.data(), end);
}

inline void AppendHex(std::string& out, std::uint16_t value) {
  constexpr std::string_view Digits = "0123456789ABCDEF";
  for (int shift = 12; shift >= 0; shift -= 4) out += Digits[(value >> shift) & 0xFU];
}

// Appends a code of two bytes to a text in brackets.
inline void AppendCode(std::string& out, std::uint16_t value) {
  for (const int shift : {8, 0}) {
    const char byte = static_cast<char>((value >> shift) & 0xFF);
    if (byte == '(' || byte == ')' || byte == '\\') out += '\\';
    if (byte == '\r') {
      out += "\\r";  // readers take it for the end of a line, as a line feed
    } else {
      out += byte;
    }
  }
}

}  // namespace tarvis
