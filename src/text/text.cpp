#include "text/text.h"

#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <limits>

#include "text/run_time_failure.h"

namespace tarvis {
namespace {

constexpr std::string_view LineBreak = "\r\n";
constexpr std::string_view Escape = "\\r\\n";

std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with) {
  std::string result;
  std::size_t start = 0;
  for (std::size_t found; (found = text.find(what, start)) != std::string_view::npos;
       start = found + what.size()) {
    result += text.substr(start, found - start);
    result += with;
  }
  result += text.substr(start);
  return result;
}

// Removes the piece before `position` from the front, and the `skipped` bytes that follow it.
std::string_view TakePiece(std::string_view& text, std::size_t position, std::size_t skipped) {
  const std::string_view piece = text.substr(0, position);
  text.remove_prefix(position == std::string_view::npos ? text.size()
                                                        : std::min(position + skipped, text.size()));
  return piece;
}

// The bytes that the character at the front of a UTF-8 text takes.
std::size_t CharacterSize(std::string_view text) {
  std::size_t size = 1;
  while (size < text.size() && (static_cast<unsigned char>(text[size]) & 0xC0) == 0x80) ++size;
  return size;
}

}  // namespace

std::string_view NextField(std::string_view& text) {
  return TakePiece(text, text.find(','), 1);
}

std::string_view NextTextLine(std::string_view& text) {
  const std::size_t position = text.find('\r');
  if (position == std::string_view::npos) return TakePiece(text, position, 0);
  return TakePiece(text, position, 1 + CharacterSize(text.substr(position + 1)));
}

std::string EscapeNewlines(std::string_view text) {
  return ReplaceAll(text, LineBreak, Escape);
}
std::string UnescapeNewlines(std::string_view text) {
  return ReplaceAll(text, Escape, LineBreak);
}
std::string NewlinesToBlanks(std::string_view text) {
  return ReplaceAll(text, LineBreak, " ");
}

std::int16_t CountLineBreaks(std::string_view text) {
  int count = 0;
  for (; text.find('\r') != std::string_view::npos; ++count) NextTextLine(text);
  if (count > std::numeric_limits<std::int16_t>::max())
    throw RunTimeFailure("overflow: too many line breaks");
  return static_cast<std::int16_t>(count);
}

std::string LeftBytes(const CodePage& page, std::string_view text, std::size_t bytes) {
  return page.ToUtf8(std::string_view(page.FromUtf8(text)).substr(0, bytes));
}

std::string CutToBytes(const CodePage& page, std::string_view text, std::size_t bytes) {
  std::size_t end = 0;
  // A character takes a byte at least.
  for (std::size_t count = 0; end < text.size() && count < bytes; ++count)
    end += CharacterSize(text.substr(end));
  while (page.ByteLength(text.substr(0, end)) > bytes) {
    do --end;
    while ((static_cast<unsigned char>(text[end]) & 0xC0) == 0x80);
  }
  return std::string(text.substr(0, end));
}

int CountWrappedLines(const CodePage& page, std::string_view text, std::size_t width) {
  std::size_t count = 0;
  while (!text.empty()) {
    const std::size_t bytes = page.ByteLength(NextTextLine(text));
    count += std::max<std::size_t>(1, (bytes + width - 1) / width);
  }
  return static_cast<int>(count);
}

std::string LeftCharacters(std::string_view text, std::size_t count) {
  std::size_t end = 0;
  for (std::size_t units = 0; end < text.size() && units < count;) {
    const std::size_t size = CharacterSize(text.substr(end));
    units += size > 3 ? 2 : 1;
    end += size;
  }
  return std::string(text.substr(0, end));
}

std::size_t CharacterCount(std::string_view text) {
  std::size_t units = 0;
  for (std::size_t size = 0; !text.empty(); text.remove_prefix(size)) {
    size = CharacterSize(text);
    units += size > 3 ? 2 : 1;
  }
  return units;
}

bool EqualIgnoringCase(std::string_view left, std::string_view right) {
  if (left == right) return true;
  const auto unicode = [](std::string_view text) {
    return icu::UnicodeString::fromUTF8(
        icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())));
  };
  const auto isAscii = [](std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<signed char>(byte) >= 0; });
  };
  // Simple folding keeps lengths in ASCII, and this is asked once a row.
  if (left.size() != right.size() && isAscii(left) && isAscii(right)) return false;
  return unicode(left).caseCompare(unicode(right), U_FOLD_CASE_DEFAULT) == 0;
}

}  // namespace tarvis
