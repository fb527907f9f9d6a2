// The real desktop: message boxes, the system beep, standard error, and the end of the process.
#pragma once

#include <chrono>

#include "run/desktop.h"

namespace tarvis {

// Needs a QApplication for Beep and ShowMessage; Diagnose and EndProcess work without one.
class QtDesktop : public Desktop {
 public:
  // Beeps that follow one another are delayed so that each can be heard.
  void Beep() override;
  void ShowMessage(const std::string& title, const std::string& text) override;
  void Diagnose(const std::string& line) override;
  [[noreturn]] void EndProcess(int exitStatus) override;

 private:
  std::chrono::steady_clock::time_point nextBeep_;
};

}  // namespace tarvis
