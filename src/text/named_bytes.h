// What a file holds, with its name.
#pragma once

#include <string>

namespace tarvis {

struct NamedBytes {
  std::string Name;  // UTF-8, without folder
  std::string Bytes;
};

}  // namespace tarvis
