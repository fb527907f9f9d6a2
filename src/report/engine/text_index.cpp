#include "report/engine/text_index.h"

#include <functional>
#include <utility>

namespace tarvis {
namespace {

constexpr std::size_t FirstSlots = 1024;

}  // namespace

TextIndex::TextIndex() : slots_(FirstSlots) {}

std::optional<std::uint32_t> TextIndex::Find(const TextKey& key) const {
  const std::uint32_t hash = HashOf(key);
  const std::size_t last = slots_.size() - 1;
  for (std::size_t place = hash & last; slots_[place].Entry != 0; place = (place + 1) & last) {
    if (slots_[place].Hash != hash) continue;
    const Entry& entry = entries_[slots_[place].Entry - 1];
    if (entry.Key == key) return entry.Number;
  }
  return std::nullopt;
}

void TextIndex::Add(const TextKey& key, std::uint32_t number) {
  if (2 * (entries_.size() + 1) > slots_.size()) Grow();
  entries_.push_back({key, number});
  Place({HashOf(key), static_cast<std::uint32_t>(entries_.size())});
}

// The upper half of a hash takes part, too.
std::uint32_t TextIndex::HashOf(const TextKey& key) {
  constexpr std::uint64_t Spread = 0x9E3779B97F4A7C15U;
  const std::uint64_t look = std::uint64_t{key.Style} << 8U | static_cast<std::uint64_t>(key.Paragraph);
  const std::uint64_t hash = std::hash<std::string_view>{}(key.Text) ^ (look * Spread);
  return static_cast<std::uint32_t>(hash ^ (hash >> 32U));
}

void TextIndex::Place(const Slot& slot) {
  const std::size_t last = slots_.size() - 1;
  std::size_t place = slot.Hash & last;
  while (slots_[place].Entry != 0) place = (place + 1) & last;
  slots_[place] = slot;
}

void TextIndex::Grow() {
  const std::vector<Slot> old = std::exchange(slots_, std::vector<Slot>(2 * slots_.size()));
  for (const Slot& slot : old) {
    if (slot.Entry != 0) Place(slot);
  }
}

}  // namespace tarvis
