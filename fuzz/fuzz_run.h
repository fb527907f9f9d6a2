// A run for fuzzers: with a desktop that nothing may reach.
#pragma once

#include <cstdlib>
#include <string>
#include <string_view>

#include "run/print_run.h"

namespace tarvis {

class UnreachableDesktop : public Desktop {
 public:
  void Beep() override { std::abort(); }
  void ShowMessage(const std::string&, const std::string&) override { std::abort(); }
  void Diagnose(const std::string&) override { std::abort(); }
  [[noreturn]] void EndProcess(int) override { std::abort(); }
};

inline void Require(bool condition) {
  if (!condition) std::abort();
}

// Loads `bytes` as the file `name` and reads them. What comes of it must be one of the three outcomes of a
// reader. True if the file was accepted.
bool ReadBytes(PrintRun& run, bool (*reader)(PrintRun& run), const char* name, std::string_view bytes);

}  // namespace tarvis
