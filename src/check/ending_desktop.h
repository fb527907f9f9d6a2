// The desktop of a program that has no windows.
#pragma once

#include <string>

#include "run/desktop.h"

namespace tarvis {

// Thrown where the process of the print module would end.
struct RunWouldEnd {};

class EndingDesktop : public Desktop {
 public:
  void Beep() override {}
  void ShowMessage(const std::string& /*title*/, const std::string& /*text*/) override {}
  void Diagnose(const std::string& /*line*/) override {}
  [[noreturn]] void EndProcess(int /*exitStatus*/) override { throw RunWouldEnd{}; }
};

}  // namespace tarvis
