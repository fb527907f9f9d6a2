// Other ways to write letters with marks, for code pages that have them only together or only apart.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tarvis {

// Whether a code page has all of these characters (UTF-16).
using IsEncodable = std::function<bool(std::u16string_view)>;

// `text` (UTF-16) with the characters that the code page doesn't have written in another way: a letter and
// its marks apart, or together. What it has in no way becomes a question mark. All else stays as it is, so
// that lengths in bytes are those that the host counts.
std::u16string EncodableForm(std::u16string_view text, const IsEncodable& isEncodable);

}  // namespace tarvis
