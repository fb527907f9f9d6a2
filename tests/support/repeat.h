// Long texts of one piece.
#pragma once

#include <string>

namespace tarvis {

inline std::string Repeat(const std::string& piece, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += piece;
  return text;
}

}  // namespace tarvis
