// The host's data files that a document was made of, for those who want the numbers beside the pages.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "report/print_function.h"
#include "text/named_bytes.h"

namespace tarvis {

class DataFiles {
 public:
  // Notes which files the print reads, and how they are now. To be called when a document is composed.
  DataFiles(const PrintRun& run, FunctionTable functions);

  // What they hold. A file that was changed or deleted since then is a RunTimeFailure: its numbers are not
  // those of the document.
  [[nodiscard]] std::vector<NamedBytes> Read() const;

 private:
  struct State {
    std::uintmax_t Size = 0;
    std::filesystem::file_time_type Changed;
    bool operator==(const State&) const = default;
  };
  struct Entry {
    std::string Name;
    std::filesystem::path Path;
    State Noted;
  };
  static State StateOf(const std::filesystem::path& path);

  std::vector<Entry> files_;
};

}  // namespace tarvis
