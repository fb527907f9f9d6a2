// Code pages as Windows converts them.
#include <windows.h>

#include <algorithm>
#include <array>
#include <stdexcept>

#include "platform/base/code_page_conversion.h"

namespace tarvis {
namespace {

constexpr char16_t Replacement = 0xFFFD;
constexpr UINT ShiftJis = 932;
constexpr UINT Gb18030 = 54936;
constexpr std::array<UINT, 2> Utf16 = {1200, 1201};  // they exist, but not for the functions used here

[[noreturn]] void FailConversion() {
  throw std::runtime_error("code page conversion failed: error " + std::to_string(GetLastError()));
}

int SizeOf(std::size_t size) {
  return static_cast<int>(size);
}

class WindowsConversion : public CodePageConversion {
 public:
  WindowsConversion(UINT number, UINT longestCharacter)
      : number_(number), longestCharacter_(longestCharacter) {}

  std::u16string Decode(std::string_view bytes) const override {
    if (bytes.empty()) return {};
    if (auto units = DecodeStrictly(bytes)) return *std::move(units);
    return longestCharacter_ > 2 ? DecodeByReplacing(bytes) : DecodeByCharacters(bytes);
  }

  std::optional<std::string> Encode(std::u16string_view units) const override {
    if (units.empty()) return std::string();
    // The two encodings of all of Unicode take no flag of the others.
    const bool hasAll = number_ == CP_UTF8 || number_ == Gb18030;
    BOOL isReplaced = FALSE;
    BOOL* const replaced = hasAll ? nullptr : &isReplaced;
    const DWORD flags = hasAll ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS;
    const std::wstring wide(units.begin(), units.end());
    std::string bytes(units.size() * longestCharacter_, '\0');
    const int size = WideCharToMultiByte(number_, flags, wide.data(), SizeOf(wide.size()), bytes.data(),
                                         SizeOf(bytes.size()), nullptr, replaced);
    if (size == 0 && GetLastError() != ERROR_NO_UNICODE_TRANSLATION) FailConversion();
    if (size == 0 || isReplaced != FALSE) return std::nullopt;
    bytes.resize(static_cast<std::size_t>(size));
    return bytes;
  }

 private:
  std::optional<std::u16string> DecodeWith(DWORD flags, std::string_view bytes) const {
    std::wstring wide(bytes.size() * 2, L'\0');
    const int size = MultiByteToWideChar(number_, flags, bytes.data(), SizeOf(bytes.size()), wide.data(),
                                         SizeOf(wide.size()));
    if (size == 0) return std::nullopt;
    return std::u16string(wide.begin(), wide.begin() + size);
  }

  std::optional<std::u16string> DecodeStrictly(std::string_view bytes) const {
    return DecodeWith(MB_ERR_INVALID_CHARS, bytes);
  }

  std::u16string DecodeByReplacing(std::string_view bytes) const {
    if (auto units = DecodeWith(0, bytes)) return *std::move(units);
    FailConversion();
  }

  // Each code page has another replacement of its own, which may well be a letter. So that none is taken for
  // one, it is the same for all of them here. Two bytes that are built as a character give one replacement.
  std::u16string DecodeByCharacters(std::string_view bytes) const {
    std::u16string units;
    while (!bytes.empty()) {
      const std::string_view character = bytes.substr(0, IsPair(bytes) ? 2 : 1);
      units += DecodeStrictly(character).value_or(std::u16string(1, Replacement));
      bytes.remove_prefix(character.size());
    }
    return units;
  }

  bool IsPair(std::string_view bytes) const {
    if (bytes.size() < 2 || IsDBCSLeadByteEx(number_, static_cast<BYTE>(bytes[0])) == FALSE) return false;
    constexpr unsigned char Lowest = 0x40, Delete = 0x7F;
    const unsigned char highest = number_ == ShiftJis ? 0xFC : 0xFE;
    const auto second = static_cast<unsigned char>(bytes[1]);
    return second >= Lowest && second <= highest && second != Delete;
  }

  UINT number_;
  UINT longestCharacter_;  // bytes
};

}  // namespace

std::unique_ptr<CodePageConversion> OpenCodePage(int number) {
  const auto page = static_cast<UINT>(number);
  if (std::ranges::find(Utf16, page) != Utf16.end()) return std::make_unique<WindowsConversion>(page, 2);
  CPINFO info = {};
  if (IsValidCodePage(page) == FALSE || GetCPInfo(page, &info) == FALSE) return nullptr;
  return std::make_unique<WindowsConversion>(page, std::max(info.MaxCharSize, UINT{1}));
}

}  // namespace tarvis
