#include "report/engine/document.h"

#include <algorithm>

namespace tarvis {

std::uint16_t StyleIndex(Document& document, const TextStyle& style) {
  auto& styles = document.Styles;
  auto found = std::find(styles.begin(), styles.end(), style);
  if (found == styles.end()) found = styles.insert(styles.end(), style);
  return static_cast<std::uint16_t>(found - styles.begin());
}

}  // namespace tarvis
