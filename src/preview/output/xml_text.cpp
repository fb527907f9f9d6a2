#include "preview/output/xml_text.h"

#include <string>

namespace tarvis {

QString XmlLine(const QString& text) {
  std::u32string characters;
  for (const char32_t character : text.toStdU32String()) {
    const bool isControl = character < 0x20 || character == 0x7F;
    const bool isNone = (character & 0xFFFEU) == 0xFFFE || (character >= 0xD800 && character <= 0xDFFF);
    characters += isControl || isNone ? U' ' : character;
  }
  return QString::fromStdU32String(characters).normalized(QString::NormalizationForm_C);
}

}  // namespace tarvis
