// A desktop that remembers what it was asked and ends a run by an exception instead of the process.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "run/desktop.h"

namespace tarvis {

struct RunEnded {
  int ExitStatus;
};

// Notes every call in `Calls`, in order: "beep", "message TITLE|TEXT", "diagnose LINE", "end STATUS".
class FakeDesktop : public Desktop {
 public:
  void Beep() override { Note("beep"); }
  void ShowMessage(const std::string& title, const std::string& text) override {
    Messages.push_back(title + "|" + text);
    Note("message " + Messages.back());
  }
  void Diagnose(const std::string& line) override {
    Diagnoses.push_back(line);
    Note("diagnose " + line);
  }
  [[noreturn]] void EndProcess(int exitStatus) override {
    Note("end " + std::to_string(exitStatus));
    throw RunEnded{exitStatus};
  }

  std::vector<std::string> Calls;
  std::vector<std::string> Messages;  // "title|text"
  std::vector<std::string> Diagnoses;

 private:
  void Note(std::string call) { Calls.push_back(std::move(call)); }
};

}  // namespace tarvis
