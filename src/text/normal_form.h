// Unicode's normal forms: one way to write each letter, and what a search compares.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvis {

// `text` (UTF-8) with each letter and its marks as one character where there is one (form NFC); nothing if it
// is so already.
std::optional<std::string> ToComposed(std::string_view text);

// A text as a search compares it (form NFKC): full and half width, and other ways to write a letter, are the
// same.
struct FoldedText {
  std::u16string Units;
  // The first character of the text (counted by code points) that each unit comes from, and the one after the
  // last, since several may be folded together. Empty if each unit is one character.
  std::vector<std::uint32_t> Firsts;
  std::vector<std::uint32_t> Ends;

  std::size_t FirstOf(std::size_t unit) const { return Firsts.empty() ? unit : Firsts[unit]; }
  std::size_t EndOf(std::size_t unit) const { return Ends.empty() ? unit + 1 : Ends[unit]; }
};

// `withCase` keeps capitals apart from small letters.
FoldedText Fold(std::string_view text, bool withCase);

}  // namespace tarvis
