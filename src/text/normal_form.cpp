#include "text/normal_form.h"

#include <unicode/bytestream.h>
#include <unicode/unistr.h>

#include <algorithm>

#include "text/code_page.h"
#include "text/normalizer.h"

namespace tarvis {
namespace {

// All characters below U+0300 are composed.
constexpr unsigned char FirstByteAbove = 0xCC;

icu::UnicodeString InForm(const icu::Normalizer2& form, const icu::UnicodeString& text) {
  UErrorCode error = U_ZERO_ERROR;
  icu::UnicodeString formed = form.normalize(text, error);
  return U_SUCCESS(error) ? formed : text;
}

void Append(FoldedText& folded, const icu::UnicodeString& units, std::uint32_t first, std::uint32_t end) {
  folded.Units.append(units.getBuffer(), static_cast<std::size_t>(units.length()));
  folded.Firsts.resize(folded.Units.size(), first);
  folded.Ends.resize(folded.Units.size(), end);
}

// Piece by piece, to know what became of each character.
void FoldPieces(const icu::Normalizer2& form, const icu::UnicodeString& units, FoldedText& folded) {
  icu::UnicodeString piece;  // characters that may be folded into each other
  std::uint32_t first = 0, count = 0;
  for (std::int32_t index = 0; index < units.length(); index = units.moveIndex32(index, 1), ++count) {
    const UChar32 character = units.char32At(index);
    if (form.hasBoundaryBefore(character) != 0) {
      Append(folded, InForm(form, piece), first, count);
      piece.remove();
      first = count;
    }
    piece.append(character);
  }
  Append(folded, InForm(form, piece), first, count);
}

std::u16string AsciiUnits(std::string_view text, bool withCase) {
  std::u16string units(text.begin(), text.end());
  if (withCase) return units;
  for (char16_t& unit : units) {
    if (unit >= u'A' && unit <= u'Z') unit = static_cast<char16_t>(unit + (u'a' - u'A'));
  }
  return units;
}

}  // namespace

std::optional<std::string> ToComposed(std::string_view text) {
  const auto isHigh = [](char byte) { return static_cast<unsigned char>(byte) >= FirstByteAbove; };
  if (std::ranges::none_of(text, isHigh)) return {};
  const icu::Normalizer2& form = NormalizerOf(icu::Normalizer2::getNFCInstance);
  const icu::StringPiece piece(text.data(), static_cast<std::int32_t>(text.size()));
  UErrorCode error = U_ZERO_ERROR;
  if (form.isNormalizedUTF8(piece, error) != 0 || U_FAILURE(error)) return {};
  std::string composed;
  icu::StringByteSink<std::string> sink(&composed);
  form.normalizeUTF8(0, piece, sink, nullptr, error);
  return U_SUCCESS(error) ? std::optional(composed) : std::nullopt;
}

FoldedText Fold(std::string_view text, bool withCase) {
  if (IsAscii(text)) return {AsciiUnits(text, withCase), {}, {}};
  const icu::Normalizer2& form =
      NormalizerOf(withCase ? icu::Normalizer2::getNFKCInstance : icu::Normalizer2::getNFKCCasefoldInstance);
  const auto units = icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
  UErrorCode error = U_ZERO_ERROR;
  FoldedText folded;
  if (!units.hasMoreChar32Than(0, units.length(), units.length() - 1) ||
      form.isNormalized(units, error) == 0) {
    FoldPieces(form, units, folded);
  } else {
    folded.Units.assign(units.getBuffer(), static_cast<std::size_t>(units.length()));
  }
  return folded;
}

}  // namespace tarvis
