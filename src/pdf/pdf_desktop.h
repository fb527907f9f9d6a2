// The desktop of a program without a user: it collects the messages, and throws where the process would end.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "run/desktop.h"
#include "run/failures.h"

namespace tarvis {

// Thrown for a numbered failure, before anything is deleted.
struct ReportedFailure {
  Failure Number;
  std::string Reason;  // may be empty
};

// Thrown where the process would end for any other cause, which is among the notes.
struct ProcessWouldEnd {
  int ExitStatus;
};

class PdfDesktop : public Desktop {
 public:
  void NoticeFailure(Failure failure, const std::string& diagnosis) override {
    throw ReportedFailure{failure, diagnosis};
  }
  void Beep() override {}
  void ShowMessage(const std::string& title, const std::string& text) override {
    std::string line = "warning: " + title + ": " + text;
    std::ranges::replace(line, '\n', ' ');
    notes_.push_back(std::move(line));
  }
  void Diagnose(const std::string& line) override { notes_.push_back(line); }
  [[noreturn]] void EndProcess(int exitStatus) override { throw ProcessWouldEnd{exitStatus}; }

  // One line each, in the order in which they were said.
  const std::vector<std::string>& Notes() const { return notes_; }

 private:
  std::vector<std::string> notes_;
};

}  // namespace tarvis
