// Which text is copied for each glyph of a font.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvis {

// The map for codes from `firstCode` on, each with its text.
[[nodiscard]] std::string ToUnicodeMap(std::uint16_t firstCode, const std::vector<std::u32string>& texts);

// The texts of a map that the toolkit has written, for codes from 0 to `count` less one. Glyphs that have no
// character of their own have no text there; they get the replacement character. No text of the map is lost,
// whatever the count.
[[nodiscard]] std::vector<std::u32string> CompletedTexts(std::string_view map, std::size_t count);

}  // namespace tarvis
