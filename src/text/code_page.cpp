#include "text/code_page.h"

#include <unicode/ustring.h>

#include <algorithm>
#include <charconv>

#include "platform/base/code_page_conversion.h"
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

[[noreturn]] void Refuse(const char* reason, std::string_view number) {
  throw RunTimeFailure(reason, {.File = {}, .Line = 0, .Key = "CodePage", .Text = Excerpt(number)});
}

// Whether each printable ASCII character and each line end is one byte of the same number, as the grammar of
// the files needs it: not so in UTF-16, in UTF-7, and in the code pages of mainframes.
bool KeepsAscii(const CodePageConversion& conversion) {
  std::string ascii("\r\n");
  for (char c = ' '; c <= '~'; ++c) ascii += c;
  try {
    return conversion.Decode(ascii) == std::u16string(ascii.begin(), ascii.end());
  } catch (const std::runtime_error&) {
    return false;
  }
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
  std::unique_ptr<CodePageConversion> Conversion;
};

CodePage::CodePage(int number)
    : converter_(std::make_unique<Converter>(Converter{number, OpenCodePage(number)})) {
  if (converter_->Conversion == nullptr) Refuse("no such code page", std::to_string(number));
  if (!KeepsAscii(*converter_->Conversion))
    Refuse("not a code page that holds ASCII", std::to_string(number));
}

CodePage::~CodePage() = default;
CodePage::CodePage(CodePage&&) noexcept = default;
CodePage& CodePage::operator=(CodePage&&) noexcept = default;

int CodePage::Number() const {
  return converter_->Number;
}

std::string CodePage::ToUtf8(std::string_view bytes) const {
  if (IsAscii(bytes)) return std::string(bytes);
  Length(bytes.size());
  return UnitsToUtf8(converter_->Conversion->Decode(bytes));
}

std::string CodePage::FromUtf8(std::string_view text) const {
  if (IsAscii(text)) return std::string(text);
  const std::u16string units = Utf8ToUnits(text);
  const CodePageConversion& conversion = *converter_->Conversion;
  if (auto bytes = conversion.Encode(units)) return *std::move(bytes);
  const auto isEncodable = [&](std::u16string_view part) { return conversion.Encode(part).has_value(); };
  return conversion.Encode(EncodableForm(units, isEncodable)).value_or(std::string());
}

std::size_t CodePage::ByteLength(std::string_view text) const {
  return IsAscii(text) ? text.size() : FromUtf8(text).size();
}

}  // namespace tarvis
