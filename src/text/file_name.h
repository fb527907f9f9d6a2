// The name of a file without its folders.
#pragma once

#include <string_view>

namespace tarvis {

// The last part of `path`, whose folders are separated as on the host's system or on this one; a part of the
// same text.
constexpr std::string_view FileNameOf(std::string_view path) {
  return path.substr(path.find_last_of("\\/") + 1);
}

}  // namespace tarvis
