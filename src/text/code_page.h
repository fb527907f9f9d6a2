// The system's code page: converts between the bytes of the files and text, and counts the bytes of a text.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace tarvis {

// The number of a code page from a text of digits; anything else is a RunTimeFailure.
int CodePageNumber(std::string_view text);

// Whether `text` has the same bytes in UTF-8 and in every code page of the system.
bool IsAscii(std::string_view text);

// Text in memory is UTF-8. A byte length is always that of the text in this code page.
class CodePage {
 public:
  // A Windows code page number: 1252, 932, 936, 949, 950, ... RunTimeFailure if there is no such code page.
  explicit CodePage(int number = 1252);
  ~CodePage();
  CodePage(CodePage&&) noexcept;
  CodePage& operator=(CodePage&&) noexcept;

  int Number() const;

  // Bytes of the code page to UTF-8. Bytes that mean nothing, half a character among them, become the
  // replacement that the code page's own conversion uses; never fails.
  std::string ToUtf8(std::string_view bytes) const;
  // UTF-8 to bytes of the code page. Characters that it doesn't have become its substitution character ("?").
  std::string FromUtf8(std::string_view text) const;
  // The number of bytes that FromUtf8 would give.
  std::size_t ByteLength(std::string_view text) const;

 private:
  struct Converter;
  std::unique_ptr<Converter> converter_;
};

}  // namespace tarvis
