#include "text/native_path.h"

#include <system_error>

#include "platform/base/file_names.h"

namespace tarvis {

std::filesystem::path NativePath(std::string_view path) {
  return FormOfSystem(path);
}

bool FileExists(std::string_view path) {
  if (path.empty() || path.find('\0') != std::string_view::npos) return false;
  std::error_code ignored;  // what can't be looked at doesn't exist for this program
  return std::filesystem::is_regular_file(StatusOf(NativePath(path), ignored));
}

}  // namespace tarvis
