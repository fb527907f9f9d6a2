#include "platform/files/windows_text.h"

#include <windows.h>

namespace tarvis {

std::string Utf8OfWide(std::wstring_view text) {
  constexpr std::size_t MostBytes = 3;  // of a unit of UTF-16
  std::string bytes(text.size() * MostBytes, '\0');
  const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                                       static_cast<int>(bytes.size()), nullptr, nullptr);
  bytes.resize(static_cast<std::size_t>(size));
  return bytes;
}

std::wstring WideOfUtf8(std::string_view text) {
  std::wstring wide(text.size(), L'\0');  // UTF-8 never has fewer bytes than UTF-16 has units
  const int size = MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), wide.data(),
                                       static_cast<int>(wide.size()));
  wide.resize(static_cast<std::size_t>(size));
  return wide;
}

}  // namespace tarvis
