#include "text/code_page.h"

#include <unicode/ucnv.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <charconv>
#include <optional>

#include "text/encodable_form.h"
#include "text/excerpt.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

constexpr UChar32 Replacement = 0xFFFD;

void Expect(UErrorCode error) {
  if (U_FAILURE(error))
    throw RunTimeFailure(std::string("code page conversion failed: ") + u_errorName(error));
}

// A length for the code page library, which counts in 32 bits.
std::int32_t Length(std::size_t size) {
  if (size > 0x20000000) throw RunTimeFailure("text too long for the code page conversion");
  return static_cast<std::int32_t>(size);
}

std::u16string Utf8ToUnits(std::string_view text) {
  std::u16string units(text.size(), u'\0');  // UTF-8 never has fewer bytes than UTF-16 has units
  std::int32_t length = 0;
  UErrorCode error = U_ZERO_ERROR;
  u_strFromUTF8WithSub(units.data(), Length(units.size()), &length, text.data(), Length(text.size()),
                       Replacement, nullptr, &error);
  Expect(error);
  units.resize(static_cast<std::size_t>(length));
  return units;
}

std::string UnitsToUtf8(std::u16string_view units) {
  std::string text(units.size() * 3, '\0');
  std::int32_t length = 0;
  UErrorCode error = U_ZERO_ERROR;
  u_strToUTF8WithSub(text.data(), Length(text.size()), &length, units.data(), Length(units.size()),
                     Replacement, nullptr, &error);
  Expect(error);
  text.resize(static_cast<std::size_t>(length));
  return text;
}

// Nothing if the code page doesn't have all of the characters.
std::optional<std::string> Encode(UConverter& converter, std::u16string_view units) {
  std::string bytes(
      static_cast<std::size_t>(UCNV_GET_MAX_BYTES_FOR_STRING(units.size(), ucnv_getMaxCharSize(&converter))),
      '\0');
  UErrorCode error = U_ZERO_ERROR;
  const std::int32_t length = ucnv_fromUChars(&converter, bytes.data(), Length(bytes.size()), units.data(),
                                              Length(units.size()), &error);
  if (error == U_INVALID_CHAR_FOUND) return {};
  Expect(error);
  bytes.resize(static_cast<std::size_t>(length));
  return bytes;
}

[[noreturn]] void Refuse(const char* reason, std::string_view number) {
  throw RunTimeFailure(reason, {.File = {}, .Line = 0, .Key = "CodePage", .Text = Excerpt(number)});
}

// Whether each printable ASCII character and each line end is one byte of the same number, as the grammar of
// the files needs it: not so in UTF-16, in UTF-7, and in the code pages of mainframes.
bool KeepsAscii(UConverter& converter) {
  std::string ascii("\r\n");
  for (char c = ' '; c <= '~'; ++c) ascii += c;
  std::u16string units(ascii.size() * 2, u'\0');
  UErrorCode error = U_ZERO_ERROR;
  const std::int32_t length = ucnv_toUChars(&converter, units.data(), Length(units.size()), ascii.data(),
                                            Length(ascii.size()), &error);
  if (U_FAILURE(error)) return false;
  units.resize(static_cast<std::size_t>(length));
  return units == std::u16string(ascii.begin(), ascii.end());
}

}  // namespace

bool IsAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

int CodePageNumber(std::string_view text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) Refuse("not a code page number", text);
  return number;
}

struct CodePage::Converter {
  int Number = 0;
  std::unique_ptr<UConverter, decltype(&ucnv_close)> Handle{nullptr, ucnv_close};
};

CodePage::CodePage(int number) : converter_(std::make_unique<Converter>()) {
  converter_->Number = number;
  UErrorCode error = U_ZERO_ERROR;
  converter_->Handle.reset(ucnv_open(("windows-" + std::to_string(number)).c_str(), &error));
  if (U_FAILURE(error)) Refuse("no such code page", std::to_string(number));
  if (!KeepsAscii(*converter_->Handle)) Refuse("not a code page that holds ASCII", std::to_string(number));
  // It also makes half a character the usual replacement, where some converters have a control character.
  ucnv_setSubstChars(converter_->Handle.get(), "?", 1, &error);
  ucnv_setFromUCallBack(converter_->Handle.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                        &error);
  Expect(error);
}

CodePage::~CodePage() = default;
CodePage::CodePage(CodePage&&) noexcept = default;
CodePage& CodePage::operator=(CodePage&&) noexcept = default;

int CodePage::Number() const {
  return converter_->Number;
}

std::string CodePage::ToUtf8(std::string_view bytes) const {
  if (IsAscii(bytes)) return std::string(bytes);
  std::u16string units(bytes.size() * 2, u'\0');
  UErrorCode error = U_ZERO_ERROR;
  const std::int32_t length = ucnv_toUChars(converter_->Handle.get(), units.data(), Length(units.size()),
                                            bytes.data(), Length(bytes.size()), &error);
  Expect(error);
  return UnitsToUtf8(std::u16string_view(units).substr(0, static_cast<std::size_t>(length)));
}

std::string CodePage::FromUtf8(std::string_view text) const {
  if (IsAscii(text)) return std::string(text);
  const std::u16string units = Utf8ToUnits(text);
  UConverter& converter = *converter_->Handle;
  if (auto bytes = Encode(converter, units)) return *std::move(bytes);
  const auto isEncodable = [&](std::u16string_view part) { return Encode(converter, part).has_value(); };
  return Encode(converter, EncodableForm(units, isEncodable)).value_or(std::string());
}

std::size_t CodePage::ByteLength(std::string_view text) const {
  return IsAscii(text) ? text.size() : FromUtf8(text).size();
}

}  // namespace tarvis
