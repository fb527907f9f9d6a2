// Windows that only note when they are asked for.
#pragma once

#include <string>
#include <vector>

#include "run/desktop.h"

namespace tarvis {

class FakeWindows : public ProgramWindows {
 public:
  void ShowPrintSetting() override { Calls.emplace_back("dialog"); }
  void UnloadMasterReport() override { Calls.emplace_back("unload"); }

  std::vector<std::string> Calls;
};

}  // namespace tarvis
