// Progress for people, in one line of standard error that is written over again and again.
#pragma once

#include <chrono>
#include <cstdio>
#include <string>

namespace tarvis {

class ProgressLine {
 public:
  // Says nothing unless `isShown`.
  explicit ProgressLine(bool isShown) : isShown_(isShown) {}
  // What follows on standard error has a line of its own.
  ~ProgressLine() {
    if (isShown_) std::fputs(Clear, stderr);
  }
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  void Show(const std::string& text) const {
    if (isShown_) std::fputs((Clear + text).c_str(), stderr);
  }
  // The same for a step of many, as often as people can read. A total of 0 isn't known yet.
  void ShowStep(const std::string& text, int done, int total) {
    const auto now = std::chrono::steady_clock::now();
    if (now < next_) return;
    next_ = now + Pause;
    Show(text + " " + std::to_string(done) + (total > 0 ? " of " + std::to_string(total) : std::string()));
  }

 private:
  static constexpr const char* Clear = "\r\x1B[K";
  static constexpr std::chrono::milliseconds Pause{100};

  bool isShown_;
  std::chrono::steady_clock::time_point next_;
};

}  // namespace tarvis
