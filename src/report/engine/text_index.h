// Finds texts in a style that are known already, by what they are.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "report/engine/text_flow.h"

namespace tarvis {

struct TextKey {
  std::string_view Text;
  std::uint16_t Style = 0;
  TextFlow Paragraph = TextFlow::Plain;
  bool operator==(const TextKey&) const = default;
};

// A hash table in two pieces of memory, since each cell of a table is looked up, and the nodes of a standard
// map are scattered over the memory.
class TextIndex {
 public:
  TextIndex();

  [[nodiscard]] std::optional<std::uint32_t> Find(const TextKey& key) const;
  // The key must not be there yet, and its characters must outlive the index.
  void Add(const TextKey& key, std::uint32_t number);

 private:
  struct Entry {
    TextKey Key;
    std::uint32_t Number = 0;
  };
  // The first slot for a hash is given by its lowest bits; further ones follow it.
  struct Slot {
    std::uint32_t Hash = 0;
    std::uint32_t Entry = 0;  // index of entries_ and 1; 0 in a free slot
  };

  static std::uint32_t HashOf(const TextKey& key);
  void Place(const Slot& slot);
  void Grow();

  std::vector<Entry> entries_;
  std::vector<Slot> slots_;  // their count is a power of 2, at most half of them are taken
};

}  // namespace tarvis
