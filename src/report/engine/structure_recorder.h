// Records what the bands of a document are while they are composed.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "report/engine/document.h"
#include "report/engine/section.h"
#include "report/engine/text_cache.h"

namespace tarvis {

// Where a band comes from.
struct BandOrigin {
  std::uint32_t Run = 0;    // index of DocumentStructure::Runs
  bool IsRepeated = false;  // a header at the head of a further page
};

class StructureRecorder {
 public:
  // Both must outlive it; `names` gives controls their numbers.
  StructureRecorder(DocumentStructure& structure, TextCache& names);

  // Returns the number of the run. The first one is the outermost.
  std::uint32_t BeginRun(const char* report, std::uint32_t parent);
  // The next band: `shown` are the controls of `section` that it shows, as indexes in ascending order.
  void AddBand(const Section& section, const std::vector<std::uint16_t>& shown, const BandOrigin& origin);

 private:
  struct KnownLayout {
    std::uint32_t Layout = 0;
    bool IsRepeated = false;
    std::vector<std::uint16_t> Shown;
  };
  struct KnownSection {
    std::uint32_t Run = 0;
    std::uint32_t Table = NoTable;
    std::vector<KnownLayout> Layouts;
  };

  std::uint32_t NewLayout(const Section& section, const std::vector<std::uint16_t>& shown,
                          const BandOrigin& origin, KnownSection& known);
  void AddParts(const Section& section, const std::vector<std::uint16_t>& shown);
  std::uint32_t TableOf(BandRole role, std::uint32_t run);

  DocumentStructure& structure_;
  TextCache& names_;
  std::unordered_map<const Section*, KnownSection> sections_;
  std::vector<std::uint32_t> tables_;  // the one that began last, by run
};

}  // namespace tarvis
