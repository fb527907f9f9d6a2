// Host settings on Windows: the registry.
#include <windows.h>

#include <array>
#include <optional>
#include <string_view>

#include "platform/files/windows_text.h"
#include "platform/system/host_settings.h"

namespace tarvis {
namespace {

constexpr std::size_t LongestValue = 1024;  // the registry buffer of the system

// A 32-bit host writes in the 32-bit view of the registry, which is another one than that of this program.
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

  // Up to the first NUL; nothing if there is no such value, or one that the buffer can't hold.
  std::optional<std::string> Value(const std::wstring& name) const {
    std::array<wchar_t, LongestValue> buffer{};
    DWORD size = sizeof(buffer);
    const auto bytes = reinterpret_cast<BYTE*>(buffer.data());
    if (key_ == nullptr ||
        RegQueryValueExW(key_, name.c_str(), nullptr, nullptr, bytes, &size) != ERROR_SUCCESS)
      return std::nullopt;
    const std::wstring_view value(buffer.data(), size / sizeof(wchar_t));
    return Utf8OfWide(value.substr(0, value.find(L'\0')));
  }

 private:
  HKEY key_ = nullptr;
};

class WindowsRegistry : public HostSettings {
 public:
  std::string Value(const std::string& key, const std::string& valueName) override {
    for (const REGSAM view : Views) {
      if (auto value = RegistryKey(WideOfUtf8(key), view).Value(WideOfUtf8(valueName)))
        return *std::move(value);
    }
    return {};
  }
  CodePage SystemCodePage() const override { return CodePage(static_cast<int>(GetACP())); }
  bool CountsPdfPrinter() const override { return false; }
};

}  // namespace

std::unique_ptr<HostSettings> OpenHostSettings(Desktop& /*desktop*/) {
  return std::make_unique<WindowsRegistry>();
}

}  // namespace tarvis
