#include "platform/files/windows_registry.h"

#include <windows.h>

#include <array>
#include <string_view>
#include <vector>

#include "platform/files/windows_text.h"
#include "text/code_page.h"

namespace tarvis {
namespace {

constexpr std::size_t LongestValue = 1024;  // characters; the registry buffer of the system

// The host is a 32-bit program and writes in a view of its own. A value may also be in that of this program.
constexpr std::array Views = {REGSAM{KEY_WOW64_32KEY}, REGSAM{KEY_WOW64_64KEY}};

// A key that is only read. Nothing is made where it is missing.
class RegistryKey {
 public:
  RegistryKey(const std::wstring& name, REGSAM view) {
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, name.c_str(), 0, KEY_QUERY_VALUE | view, &key_) != ERROR_SUCCESS)
      key_ = nullptr;
  }
  ~RegistryKey() {
    if (key_ != nullptr) RegCloseKey(key_);
  }
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;

  std::optional<std::string> Value(const std::wstring& name) const {
    std::vector<wchar_t> buffer(LongestValue + 1);  // with a NUL after the last character
    auto size = static_cast<DWORD>(buffer.size() * sizeof(wchar_t));
    DWORD type = REG_NONE;
    auto* const bytes = reinterpret_cast<BYTE*>(buffer.data());
    if (key_ == nullptr ||
        RegQueryValueExW(key_, name.c_str(), nullptr, &type, bytes, &size) != ERROR_SUCCESS)
      return std::nullopt;
    if (type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ)
      return TextOf({buffer.data(), size / sizeof(wchar_t)});
    return BytesOf({reinterpret_cast<const char*>(buffer.data()), size});
  }

 private:
  static std::optional<std::string> TextOf(std::wstring_view value) {
    const std::wstring_view text = value.substr(0, value.find(L'\0'));
    if (text.size() > LongestValue) return std::nullopt;
    return Utf8OfWide(text);
  }
  static std::optional<std::string> BytesOf(std::string_view value) {
    const std::string_view text = value.substr(0, value.find('\0'));
    if (value.size() > LongestValue) return std::nullopt;
    return CodePage(static_cast<int>(GetACP())).ToUtf8(text);
  }

  HKEY key_ = nullptr;
};

}  // namespace

std::optional<std::string> RegistryValue(const std::string& key, const std::string& name) {
  for (const REGSAM view : Views) {
    if (auto value = RegistryKey(WideOfUtf8(key), view).Value(WideOfUtf8(name))) return value;
  }
  return std::nullopt;
}

}  // namespace tarvis
