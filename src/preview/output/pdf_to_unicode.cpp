#include "preview/output/pdf_to_unicode.h"

#include <QRegularExpression>
#include <algorithm>

#include "preview/output/pdf_numbers.h"

namespace tarvis {
namespace {

constexpr char32_t Replacement = 0xFFFD;

// Archives take neither zero nor the two byte order marks as text of a glyph.
char32_t Allowed(char32_t character) {
  return character == 0 || character == 0xFEFF || character == 0xFFFE ? Replacement : character;
}

void AppendText(std::string& map, std::u32string text) {
  std::ranges::transform(text, text.begin(), Allowed);
  for (const QChar unit : QString::fromStdU32String(text)) AppendHex(map, unit.unicode());
}

// "<0041><030A>" and "<0041030A>" are the same text.
std::u32string TextOf(const QString& digits) {
  QString text;
  for (qsizetype index = 0; index + 4 <= digits.size(); index += 4)
    text += QChar(digits.mid(index, 4).toUShort(nullptr, 16));
  return text.toStdU32String();
}

// The toolkit writes ranges only, "<first> <last> <text of the first>" or "<first> <last> [<text> <text>
// ...]".
const QRegularExpression& RangePattern() {
  static const QRegularExpression Pattern(
      QStringLiteral("<([0-9A-F]{4})> <([0-9A-F]{4})> (?:<([0-9A-F]+)>|\\[([^]]*)\\])"),
      QRegularExpression::CaseInsensitiveOption);
  return Pattern;
}

void ReadRange(const QRegularExpressionMatch& range, std::vector<std::u32string>& texts) {
  const std::size_t first = range.captured(1).toUShort(nullptr, 16);
  const std::size_t end = range.captured(2).toUShort(nullptr, 16) + 1U;
  if (end > texts.size()) texts.resize(end, std::u32string(1, Replacement));
  std::u32string inARow = TextOf(range.captured(3));
  const QStringList listed = range.captured(4).split(QLatin1Char('>'));
  for (std::size_t code = first; code < end; ++code) {
    if (inARow.empty()) {
      texts[code] = TextOf(listed.value(static_cast<qsizetype>(code - first)).trimmed().mid(1));
    } else {
      texts[code] = inARow;
      ++inARow.back();
    }
  }
}

}  // namespace

std::string ToUnicodeMap(std::uint16_t firstCode, const std::vector<std::u32string>& texts) {
  std::string map =
      "/CIDInit /ProcSet findresource begin 12 dict begin begincmap\n"
      "/CIDSystemInfo << /Registry (Adobe) /Ordering (UCS) /Supplement 0 >> def\n"
      "/CMapName /Adobe-Identity-UCS def /CMapType 2 def\n"
      "1 begincodespacerange <0000> <FFFF> endcodespacerange\n";
  constexpr std::size_t BlockSize = 100;  // the format's limit
  for (std::size_t first = 0; first < texts.size(); first += BlockSize) {
    const std::size_t end = std::min(first + BlockSize, texts.size());
    map += std::to_string(end - first) + " beginbfchar\n";
    for (std::size_t index = first; index < end; ++index) {
      map += '<';
      AppendHex(map, static_cast<std::uint16_t>(firstCode + index));
      map += "> <";
      AppendText(map, texts[index]);
      map += ">\n";
    }
    map += "endbfchar\n";
  }
  return map + "endcmap CMapName currentdict /CMap defineresource pop end end\n";
}

std::vector<std::u32string> CompletedTexts(std::string_view map, std::size_t count) {
  std::vector<std::u32string> texts(count, std::u32string(1, Replacement));
  const QString source = QString::fromLatin1(map.data(), static_cast<qsizetype>(map.size()));
  for (auto range = RangePattern().globalMatch(source); range.hasNext();) ReadRange(range.next(), texts);
  return texts;
}

}  // namespace tarvis
