// The conversion of code pages: by the operating system where it has one, by ICU elsewhere.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tarvis {

// One code page. A text has at most 0x20000000 bytes or units. Errors other than those named here are a
// std::runtime_error.
class CodePageConversion {
 public:
  virtual ~CodePageConversion() = default;

  // Bytes to UTF-16. Bytes that mean nothing, half a character among them, become U+FFFD.
  virtual std::u16string Decode(std::string_view bytes) const = 0;
  // UTF-16 to bytes; nothing if the code page doesn't have all of the characters.
  virtual std::optional<std::string> Encode(std::u16string_view units) const = 0;
};

// By the number that Windows gives the code page; null if there is no such code page.
std::unique_ptr<CodePageConversion> OpenCodePage(int number);

}  // namespace tarvis
