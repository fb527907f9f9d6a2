// What the usual symbol fonts show, as characters that any font may have.
#include <algorithm>
#include <string_view>

#include "pictures/metafile/fonts/charset.h"

namespace tarvis {
namespace {

// Codes 0x20 to 0x7E of the Greek and mathematics font.
constexpr std::u16string_view GreekLow =
    u" !\u2200#\u2203%&\u220B()\u2217+,\u2212./0123456789:;<=>?"
    u"\u2245\u0391\u0392\u03A7\u0394\u0395\u03A6\u0393\u0397\u0399\u03D1\u039A\u039B\u039C\u039D\u039F"
    u"\u03A0\u0398\u03A1\u03A3\u03A4\u03A5\u03C2\u03A9\u039E\u03A8\u0396[\u2234]\u22A5_"
    u"\u203E\u03B1\u03B2\u03C7\u03B4\u03B5\u03C6\u03B3\u03B7\u03B9\u03D5\u03BA\u03BB\u03BC\u03BD\u03BF"
    u"\u03C0\u03B8\u03C1\u03C3\u03C4\u03C5\u03D6\u03C9\u03BE\u03C8\u03B6{|}\u223C";
// Codes 0xA0 to 0xFE; a zero stands where there is nothing.
constexpr char16_t GreekHigh[] = {
    0x20AC, 0x03D2, 0x2032, 0x2264, 0x2044, 0x221E, 0x0192, 0x2663, 0x2666, 0x2665, 0x2660, 0x2194,
    0x2190, 0x2191, 0x2192, 0x2193, 0x00B0, 0x00B1, 0x2033, 0x2265, 0x00D7, 0x221D, 0x2202, 0x2022,
    0x00F7, 0x2260, 0x2261, 0x2248, 0x2026, 0x23D0, 0x23AF, 0x21B5, 0x2135, 0x2111, 0x211C, 0x2118,
    0x2297, 0x2295, 0x2205, 0x2229, 0x222A, 0x2283, 0x2287, 0x2284, 0x2282, 0x2286, 0x2208, 0x2209,
    0x2220, 0x2207, 0x00AE, 0x00A9, 0x2122, 0x220F, 0x221A, 0x22C5, 0x00AC, 0x2227, 0x2228, 0x21D4,
    0x21D0, 0x21D1, 0x21D2, 0x21D3, 0x25CA, 0x2329, 0x00AE, 0x00A9, 0x2122, 0x2211, 0x239B, 0x239C,
    0x239D, 0x23A1, 0x23A2, 0x23A3, 0x23A7, 0x23A8, 0x23A9, 0x23AA, 0,      0x232A, 0x222B, 0x2320,
    0x23AE, 0x2321, 0x239E, 0x239F, 0x23A0, 0x23A4, 0x23A5, 0x23A6, 0x23AB, 0x23AC, 0x23AD};

struct Sign {
  std::uint8_t Code;
  char16_t Character;
};

// The signs of the dingbat font that documents use for bullets, arrows, boxes and ticks.
constexpr Sign Dingbats[] = {{0x20, 0x0020}, {0x22, 0x2702}, {0x23, 0x2701}, {0x28, 0x260E}, {0x2A, 0x2709},
                             {0x36, 0x231B}, {0x3F, 0x270D}, {0x41, 0x270C}, {0x45, 0x261C}, {0x46, 0x261E},
                             {0x47, 0x261D}, {0x48, 0x261F}, {0x4A, 0x263A}, {0x4C, 0x2639}, {0x4E, 0x2620},
                             {0x52, 0x263C}, {0x54, 0x2744}, {0x6C, 0x25CF}, {0x6D, 0x274D}, {0x6E, 0x25A0},
                             {0x6F, 0x25A1}, {0x71, 0x2751}, {0x72, 0x2752}, {0x73, 0x2B27}, {0x74, 0x29EB},
                             {0x75, 0x25C6}, {0x76, 0x2756}, {0x77, 0x2B25}, {0x9E, 0x00B7}, {0x9F, 0x2022},
                             {0xA1, 0x25CB}, {0xA7, 0x25AA}, {0xA8, 0x25FB}, {0xAB, 0x2605}, {0xD8, 0x27A2},
                             {0xDF, 0x2190}, {0xE0, 0x2192}, {0xE1, 0x2191}, {0xE2, 0x2193}, {0xE8, 0x2794},
                             {0xEF, 0x21E6}, {0xF0, 0x21E8}, {0xF1, 0x21E7}, {0xF2, 0x21E9}, {0xF3, 0x21D4},
                             {0xFB, 0x2717}, {0xFC, 0x2713}, {0xFD, 0x2612}, {0xFE, 0x2611}};

char32_t Greek(char32_t code) {
  if (code >= 0x20 && code < 0x20 + GreekLow.size()) return GreekLow[code - 0x20];
  return code >= 0xA0 && code < 0xA0 + std::size(GreekHigh) ? GreekHigh[code - 0xA0] : 0;
}

// The same of the second dingbat font.
char32_t MoreDingbat(char32_t code) {
  constexpr Sign signs[] = {{0x20, 0x0020}, {0x4F, 0x2717}, {0x50, 0x2713}, {0x51, 0x2612},
                            {0x52, 0x2611}, {0x53, 0x2612}, {0x69, 0x24EA}, {0x74, 0x24FF},
                            {0x95, 0x2022}, {0x97, 0x25CF}, {0x98, 0x2B24}};
  if (code >= 0x6A && code <= 0x73) return U'\u2460' + (code - 0x6A);  // 1 to 10 in circles
  if (code >= 0x75 && code <= 0x7E) return U'\u2776' + (code - 0x75);  // the same in black ones
  const auto found = std::ranges::find(signs, code, &Sign::Code);
  return found == std::end(signs) ? 0 : found->Character;
}

char32_t Dingbat(char32_t code) {
  const auto found = std::ranges::find(Dingbats, code, &Sign::Code);
  return found == std::end(Dingbats) ? 0 : found->Character;
}

struct SymbolFace {
  std::u16string_view Start;  // of the name, in small letters
  SymbolSet Set;
};

constexpr SymbolFace Faces[] = {
    {u"symbol", SymbolSet::Greek},        {u"wingdings 2", SymbolSet::MoreDingbats},
    {u"wingdings 3", SymbolSet::Unknown}, {u"wingdings", SymbolSet::Dingbats},
    {u"webdings", SymbolSet::Unknown},    {u"mt extra", SymbolSet::Unknown},
    {u"marlett", SymbolSet::Unknown},     {u"monotype sorts", SymbolSet::Unknown},
};

std::u16string InSmallLetters(std::u16string name) {
  for (char16_t& c : name)
    if (c >= u'A' && c <= u'Z') c = static_cast<char16_t>(c + (u'a' - u'A'));
  return name;
}

}  // namespace

SymbolSet FindSymbolSet(const std::u16string& face, std::uint8_t charset) {
  const std::u16string name = InSmallLetters(face);
  for (const SymbolFace& known : Faces)
    if (name.starts_with(known.Start)) return known.Set;
  return charset == static_cast<std::uint8_t>(Charset::Symbol) ? SymbolSet::Letters : SymbolSet::None;
}

char32_t SymbolCharacter(SymbolSet set, char32_t code) {
  const bool isPrivate = code >= 0xF000 && code <= 0xF0FF;
  const char32_t low = isPrivate ? code - 0xF000 : code;
  if (set == SymbolSet::None || low > 0xFF) return code;  // already the character itself
  switch (set) {
    case SymbolSet::Greek:
      return Greek(low);
    case SymbolSet::Dingbats:
      return Dingbat(low);
    case SymbolSet::MoreDingbats:
      return MoreDingbat(low);
    case SymbolSet::Unknown:
      return low == U' ' ? low : 0;
    default:
      return low;
  }
}

}  // namespace tarvis
