// Bytes of text records to characters, by the character set of the font.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "pictures/byte_reader.h"

namespace tarvis {

enum class Charset : std::uint8_t { Ansi = 0, Default = 1, Symbol = 2 };  // the others by number

struct TextCharacter {
  char32_t Code = 0;
  std::size_t Units = 1;  // bytes or 16-bit units that it took in the record: how many widths belong to it
};

// 8-bit text; characters of the symbol set keep their byte as code.
std::vector<TextCharacter> DecodeText(Bytes bytes, std::uint8_t charset);

// The code page of a character set; 0 if it has none.
int CodePageOf(std::uint8_t charset);

// 16-bit text, little-endian.
std::vector<TextCharacter> DecodeUnits(Bytes bytes);

// What the codes of a font show. `Letters` are those of text fonts that claim to be symbol fonts, `Unknown`
// are pictures of which no character is known.
enum class SymbolSet { None, Letters, Greek, Dingbats, MoreDingbats, WebSigns, PrintersDingbats, Unknown };

SymbolSet FindSymbolSet(const std::u16string& face, std::uint8_t charset);

// The character that a symbol font shows for `code` (0x20 to 0xFF, or the same in the private area at
// 0xF000); 0 if it is not known. Codes of fonts that are no symbol fonts come back unchanged.
char32_t SymbolCharacter(SymbolSet set, char32_t code);

}  // namespace tarvis
