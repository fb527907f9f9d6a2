// Content of a PDF that says in a text of its own what it is.
#pragma once

#include <string>
#include <string_view>

namespace tarvis {

// Whether a character means what a font or a company says: level A of archives asks for a text where its
// glyph is shown.
[[nodiscard]] bool IsPrivate(char32_t character);
[[nodiscard]] bool HasPrivate(std::u32string_view text);

// Begins what is read as `text`, up to `EndOfActualText`.
void AppendActualText(std::string& content, std::u32string_view text);

inline constexpr std::string_view EndOfActualText = "EMC\n";

}  // namespace tarvis
