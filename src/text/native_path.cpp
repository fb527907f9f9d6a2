#include "text/native_path.h"

#include <algorithm>
#include <string>
#include <system_error>

namespace tarvis {

std::filesystem::path NativePath(std::string_view path) {
  std::u8string text(path.begin(), path.end());
  if constexpr (std::filesystem::path::preferred_separator == '/') std::ranges::replace(text, u8'\\', u8'/');
  return {text};
}

bool FileExists(std::string_view path) {
  if (path.empty() || path.find('\0') != std::string_view::npos) return false;
  std::error_code ignored;  // what can't be looked at doesn't exist for this program
  return std::filesystem::is_regular_file(NativePath(path), ignored);
}

}  // namespace tarvis
