// A desktop that remembers what it was asked and ends a run by an exception instead of the process.
#pragma once

#include <string>
#include <vector>

#include "launch/desktop.h"

namespace tarvis {

struct RunEnded {
  int ExitStatus;
};

class FakeDesktop : public Desktop {
 public:
  void Beep() override { ++Beeps; }
  void ShowMessage(const std::string& title, const std::string& text) override {
    Messages.push_back(title + "|" + text);
  }
  void Diagnose(const std::string& line) override { Diagnoses.push_back(line); }
  [[noreturn]] void EndProcess(int exitStatus) override { throw RunEnded{exitStatus}; }

  int Beeps = 0;
  std::vector<std::string> Messages;  // "title|text"
  std::vector<std::string> Diagnoses;
};

}  // namespace tarvis
