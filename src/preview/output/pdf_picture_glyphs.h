// Glyphs in the content of pictures, which the toolkit shows one by one.
#pragma once

#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>

namespace tarvis {

// What each code of a font represents, from 0 on, by the name of the font in content, such as "/F5".
using TextsByFont = std::map<std::string, std::span<const std::u32string>, std::less<>>;

// Whether a character is shown that no font has.
[[nodiscard]] bool HasBoxes(std::string_view content);

// The same content, where such a character is a box of the font "/Box".
[[nodiscard]] std::string WithBoxes(std::string_view content);

// The same content, where each glyph that represents a character of private use says so in a text of its own.
[[nodiscard]] std::string WithPrivateNamed(std::string_view content, const TextsByFont& texts);

}  // namespace tarvis
