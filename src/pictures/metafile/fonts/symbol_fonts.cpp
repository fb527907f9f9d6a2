// What the usual symbol fonts show, as characters that any font may have.
#include <algorithm>
#include <span>
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
// Codes 0xA0 to 0xFE; 0 means that there is nothing.
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

// Codes 0x20 to 0xFF of the first dingbat font. Signs that only few fonts have are shown by the plainer one
// that is most like them; 0 means that there is none.
constexpr char16_t Dingbats[] = {
    0x0020, 0,      0x2702, 0x2701, 0,      0,      0,      0,      0x260E, 0x2706, 0x2709, 0,      0,
    0,      0,      0,      0,      0,      0,      0,      0,      0,      0x231B, 0,      0,      0,
    0,      0,      0,      0,      0x2707, 0x270D, 0,      0x270C, 0,      0,      0,      0x261C, 0x261E,
    0x261D, 0x261F, 0,      0x263A, 0,      0x2639, 0,      0x2620, 0,      0,      0x2708, 0x263C, 0,
    0x2744, 0,      0x271E, 0,      0x2720, 0x2721, 0x262A, 0x262F, 0,      0x2638, 0x2648, 0x2649, 0x264A,
    0x264B, 0x264C, 0x264D, 0x264E, 0x264F, 0x2650, 0x2651, 0x2652, 0x2653, 0x0026, 0x0026, 0x25CF, 0x274D,
    0x25A0, 0x25A1, 0x25A1, 0x2751, 0x2752, 0x29EB, 0x29EB, 0x25C6, 0x2756, 0x25C6, 0x2327, 0x2353, 0x2318,
    0x2740, 0x273F, 0x275D, 0x275E, 0,      0x24EA, 0x2460, 0x2461, 0x2462, 0x2463, 0x2464, 0x2465, 0x2466,
    0x2467, 0x2468, 0x2469, 0x24FF, 0x2776, 0x2777, 0x2778, 0x2779, 0x277A, 0x277B, 0x277C, 0x277D, 0x277E,
    0x277F, 0,      0,      0,      0,      0,      0,      0,      0,      0x00B7, 0x2022, 0x25AA, 0x25CB,
    0x25CB, 0x25CB, 0x25C9, 0x25CE, 0x274D, 0x25AA, 0x25FB, 0,      0x2726, 0x2605, 0x2736, 0x2734, 0x2739,
    0x2735, 0,      0x2316, 0x27E1, 0x2311, 0,      0x272A, 0x2730, 0,      0,      0,      0,      0,
    0,      0,      0,      0,      0,      0,      0,      0,      0,      0,      0,      0,      0,
    0,      0,      0,      0,      0,      0,      0,      0,      0,      0,      0,      0,      0x232B,
    0x2326, 0x25C4, 0x27A2, 0x25B2, 0x25BC, 0,      0x27B2, 0,      0,      0x2190, 0x2192, 0x2191, 0x2193,
    0x2196, 0x2197, 0x2199, 0x2198, 0x2190, 0x2794, 0x2191, 0x2193, 0x2196, 0x2197, 0x2199, 0x2198, 0x21E6,
    0x21E8, 0x21E7, 0x21E9, 0x2B04, 0x21F3, 0x2B01, 0x2B00, 0x2B03, 0x2B02, 0x25AD, 0x25AB, 0x2717, 0x2713,
    0x2612, 0x2611, 0};

// Signs of the fonts of which documents use few.
constexpr Sign MoreDingbats[] = {{0x20, 0x0020}, {0x4F, 0x2717}, {0x50, 0x2713}, {0x51, 0x2612},
                                 {0x52, 0x2611}, {0x53, 0x2612}, {0x69, 0x24EA}, {0x74, 0x24FF},
                                 {0x95, 0x2022}, {0x97, 0x25CF}, {0x98, 0x2B24}};
constexpr Sign WebSigns[] = {{0x20, 0x0020}, {0x33, 0x25C4}, {0x34, 0x25BA}, {0x35, 0x25B2},
                             {0x36, 0x25BC}, {0x59, 0x2665}, {0x61, 0x2714}, {0x63, 0x25A1},
                             {0x67, 0x25A0}, {0x6E, 0x25CF}, {0x72, 0x2716}};

// The dingbats after which a block of characters is named: `Count` codes from `First` on follow each other
// there, too. Earlier rows go first.
struct SignRun {
  std::uint8_t First;
  std::uint8_t Count;
  char16_t Character;
};
constexpr SignRun PrintersDingbats[] = {
    {0x20, 1, 0x0020}, {0x25, 1, 0x260E},  {0x2A, 1, 0x261B},  {0x2B, 1, 0x261E},  {0x48, 1, 0x2605},
    {0x6C, 1, 0x25CF}, {0x6E, 1, 0x25A0},  {0x73, 1, 0x25B2},  {0x74, 1, 0x25BC},  {0x75, 1, 0x25C6},
    {0x77, 1, 0x25D7}, {0x21, 94, 0x2701}, {0xA1, 7, 0x2761},  {0xA8, 1, 0x2663},  {0xA9, 1, 0x2666},
    {0xAA, 1, 0x2665}, {0xAB, 1, 0x2660},  {0xAC, 10, 0x2460}, {0xB6, 30, 0x2776}, {0xD4, 1, 0x2794},
    {0xD5, 1, 0x2192}, {0xD6, 2, 0x2194},  {0xD8, 24, 0x2798}, {0xF1, 14, 0x27B1}};

char32_t Greek(char32_t code) {
  if (code >= 0x20 && code < 0x20 + GreekLow.size()) return GreekLow[code - 0x20];
  return code >= 0xA0 && code < 0xA0 + std::size(GreekHigh) ? GreekHigh[code - 0xA0] : 0;
}

char32_t Find(std::span<const Sign> signs, char32_t code) {
  const auto found = std::ranges::find(signs, code, &Sign::Code);
  return found == signs.end() ? 0 : found->Character;
}

char32_t Dingbat(char32_t code) {
  return code >= 0x20 ? Dingbats[code - 0x20] : 0;
}

char32_t MoreDingbat(char32_t code) {
  if (code >= 0x6A && code <= 0x73) return U'\u2460' + (code - 0x6A);  // 1 to 10 in circles
  if (code >= 0x75 && code <= 0x7E) return U'\u2776' + (code - 0x75);  // the same in black ones
  return Find(MoreDingbats, code);
}

char32_t PrintersDingbat(char32_t code) {
  for (const SignRun& run : PrintersDingbats)
    if (code >= run.First && code < char32_t{run.First} + run.Count)
      return run.Character + (code - run.First);
  return 0;
}

struct SymbolFace {
  std::u16string_view Start;  // of the name, in small letters
  SymbolSet Set;
};

constexpr SymbolFace Faces[] = {
    {u"symbol", SymbolSet::Greek},
    {u"wingdings 2", SymbolSet::MoreDingbats},
    {u"wingdings 3", SymbolSet::Unknown},
    {u"wingdings", SymbolSet::Dingbats},
    {u"webdings", SymbolSet::WebSigns},
    {u"mt extra", SymbolSet::Unknown},
    {u"marlett", SymbolSet::Unknown},
    {u"monotype sorts", SymbolSet::PrintersDingbats},
    {u"zapfdingbats", SymbolSet::PrintersDingbats},
    {u"zapf dingbats", SymbolSet::PrintersDingbats},
    {u"itc zapf dingbats", SymbolSet::PrintersDingbats},
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
    case SymbolSet::WebSigns:
      return Find(WebSigns, low);
    case SymbolSet::PrintersDingbats:
      return PrintersDingbat(low);
    case SymbolSet::Unknown:
      return low == U' ' ? low : 0;
    default:
      return low;
  }
}

}  // namespace tarvis
