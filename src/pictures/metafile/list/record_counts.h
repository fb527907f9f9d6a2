// How much of a metafile was played.
#pragma once

#include <cstdint>
#include <map>

namespace tarvis {

// Kinds are the numbers of record types: of WMF its functions, of EMF its types, of EMF+ its types with their
// high bits.
struct RecordCounts {
  int Played = 0;
  std::map<std::uint32_t, int> Skipped;

  int AllSkipped() const {
    int all = 0;
    for (const auto& [kind, count] : Skipped) all += count;
    return all;
  }
};

}  // namespace tarvis
