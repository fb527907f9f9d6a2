#include "preview/output/pdf_actual_text.h"

#include <QString>
#include <algorithm>

#include "preview/output/pdf_numbers.h"

namespace tarvis {

bool IsPrivate(char32_t character) {
  return (character >= 0xE000 && character <= 0xF8FF) || character >= 0xF0000;
}

bool HasPrivate(std::u32string_view text) {
  return std::ranges::any_of(text, IsPrivate);
}

void AppendActualText(std::string& content, std::u32string_view text) {
  content += "/Span<</ActualText<FEFF";
  for (const QChar unit : QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size())))
    AppendHex(content, unit.unicode());
  content += ">>>BDC\n";
}

}  // namespace tarvis
