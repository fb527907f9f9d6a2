#include "text/encodable_form.h"

#include <unicode/unistr.h>
#include <unicode/utf16.h>

#include <optional>

#include "text/normalizer.h"

namespace tarvis {
namespace {

const icu::Normalizer2& Composition() {
  return NormalizerOf(icu::Normalizer2::getNFCInstance);
}

UChar32 First(std::u16string_view text) {
  return U16_IS_LEAD(text[0]) && text.size() > 1 ? U16_GET_SUPPLEMENTARY(text[0], text[1]) : text[0];
}

std::u16string Units(const icu::UnicodeString& text) {
  return {text.getBuffer(), static_cast<std::size_t>(text.length())};
}

// A letter and a mark as one character.
std::optional<std::u16string> Joined(UChar32 letter, UChar32 mark, const IsEncodable& isEncodable) {
  const UChar32 whole = Composition().composePair(letter, mark);
  if (whole < 0) return {};
  std::u16string joined = Units(icu::UnicodeString(whole));
  return isEncodable(joined) ? std::optional(joined) : std::nullopt;
}

// A character as its letter and its marks, of which one may stay joined to the letter: Vietnamese code pages
// have the letters with one mark, and the marks of the tones.
std::optional<std::u16string> Apart(UChar32 character, const IsEncodable& isEncodable) {
  icu::UnicodeString parts;
  if (Composition().getDecomposition(character, parts) == 0) return {};
  if (isEncodable(Units(parts))) return Units(parts);
  const UChar32 letter = parts.char32At(0);
  for (std::int32_t at = parts.moveIndex32(0, 1); at < parts.length(); at = parts.moveIndex32(at, 1)) {
    const UChar32 mark = parts.char32At(at);
    const auto joined = Joined(letter, mark, isEncodable);
    if (!joined) continue;
    icu::UnicodeString others(parts);
    others.remove(at, U16_LENGTH(mark)).remove(0, U16_LENGTH(letter));
    if (isEncodable(Units(others))) return *joined + Units(others);
  }
  return {};
}

}  // namespace

std::u16string EncodableForm(std::u16string_view text, const IsEncodable& isEncodable) {
  std::u16string form;
  std::size_t last = 0;  // where the last character begins
  while (!text.empty()) {
    const std::u16string_view unit = text.substr(0, U16_IS_LEAD(text[0]) && text.size() > 1 ? 2 : 1);
    text.remove_prefix(unit.size());
    const UChar32 character = First(unit);
    if (isEncodable(unit)) {
      last = form.size();
      form += unit;
    } else if (const auto joined = last < form.size() ? Joined(First(std::u16string_view(form).substr(last)),
                                                               character, isEncodable)
                                                      : std::nullopt) {
      form.replace(last, std::u16string::npos, *joined);
    } else {
      form += Apart(character, isEncodable).value_or(u"?");
      last = form.size();
    }
  }
  return form;
}

}  // namespace tarvis
