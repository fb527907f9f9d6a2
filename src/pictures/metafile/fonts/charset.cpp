#include "pictures/metafile/fonts/charset.h"

#include <unicode/ucnv.h>

#include <algorithm>
#include <memory>

namespace tarvis {
namespace {

struct CharsetName {
  std::uint8_t Number;
  const char* Converter;
  int CodePage;
};

constexpr CharsetName Names[] = {
    {77, "macintosh", 10000},    {128, "windows-932", 932},   {129, "windows-949", 949},
    {130, "windows-949", 949},   {134, "windows-936", 936},   {136, "windows-950", 950},
    {161, "windows-1253", 1253}, {162, "windows-1254", 1254}, {163, "windows-1258", 1258},
    {177, "windows-1255", 1255}, {178, "windows-1256", 1256}, {186, "windows-1257", 1257},
    {204, "windows-1251", 1251}, {222, "windows-874", 874},   {238, "windows-1250", 1250},
    {255, "ibm-850", 850},
};

const CharsetName* Find(std::uint8_t charset) {
  const auto* const found = std::ranges::find(Names, charset, &CharsetName::Number);
  return found == std::end(Names) ? nullptr : found;
}

const char* ConverterName(std::uint8_t charset) {
  const CharsetName* const name = Find(charset);
  return name == nullptr ? "windows-1252" : name->Converter;
}

std::vector<TextCharacter> BytesAsCodes(Bytes bytes) {
  std::vector<TextCharacter> text;
  text.reserve(bytes.size());
  for (const std::uint8_t byte : bytes) text.push_back({byte, 1});
  return text;
}

}  // namespace

int CodePageOf(std::uint8_t charset) {
  const CharsetName* const name = Find(charset);
  return name == nullptr ? 0 : name->CodePage;
}

std::vector<TextCharacter> DecodeText(Bytes bytes, std::uint8_t charset) {
  const bool plain = std::ranges::all_of(bytes, [](std::uint8_t byte) { return byte < 0x80; });
  if (plain || charset == static_cast<std::uint8_t>(Charset::Symbol)) return BytesAsCodes(bytes);
  UErrorCode error = U_ZERO_ERROR;
  const std::unique_ptr<UConverter, decltype(&ucnv_close)> converter(
      ucnv_open(ConverterName(charset), &error), ucnv_close);
  if (U_FAILURE(error)) return BytesAsCodes(bytes);
  std::vector<TextCharacter> text;
  const auto* at = reinterpret_cast<const char*>(bytes.data());
  const char* end = at + bytes.size();
  while (at < end) {
    const char* start = at;
    const UChar32 code = ucnv_getNextUChar(converter.get(), &at, end, &error);
    if (error == U_INDEX_OUTOFBOUNDS_ERROR) break;
    if (at == start) break;
    text.push_back(
        {U_SUCCESS(error) ? static_cast<char32_t>(code) : U'\xFFFD', static_cast<std::size_t>(at - start)});
    error = U_ZERO_ERROR;
  }
  return text;
}

std::vector<TextCharacter> DecodeUnits(Bytes bytes) {
  std::vector<TextCharacter> text;
  text.reserve(bytes.size() / 2);
  ByteReader reader(bytes);
  while (reader.Left() >= 2) {
    const char32_t unit = reader.U16();
    const bool low = unit >= 0xDC00 && unit < 0xE000;
    if (low && !text.empty() && text.back().Code >= 0xD800 && text.back().Code < 0xDC00) {
      text.back() = {0x10000 + ((text.back().Code - 0xD800) << 10) + (unit - 0xDC00), 2};
    } else {
      text.push_back({unit, 1});
    }
  }
  for (TextCharacter& character : text)
    if (character.Code >= 0xD800 && character.Code < 0xE000) character.Code = 0xFFFD;
  return text;
}

}  // namespace tarvis
