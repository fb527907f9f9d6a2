#include "platform/command_line.h"

namespace tarvis {

std::string_view ArgumentsOf(std::string_view line) {
  const std::size_t end = line.starts_with('"') ? line.find('"', 1) : line.find_first_of(" \t");
  return end == std::string_view::npos ? std::string_view() : line.substr(end + 1);
}

}  // namespace tarvis
