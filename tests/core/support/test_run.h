// A run that a test makes for itself: with a desktop that notes what the user would see, and a folder of its
// own.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "launch/desktop.h"
#include "launch/print_run.h"

namespace tarvis {

// Thrown where the process would end.
struct EndedProcess {
  int ExitStatus;
};

// Notes every call in `Calls`, in order: "beep", "message TITLE|TEXT", "diagnose LINE", "end STATUS".
class NotingDesktop : public Desktop {
 public:
  void Beep() override { Calls.push_back("beep"); }
  void ShowMessage(const std::string& title, const std::string& text) override {
    Calls.push_back("message " + title + "|" + text);
  }
  void Diagnose(const std::string& line) override { Calls.push_back("diagnose " + line); }
  [[noreturn]] void EndProcess(int exitStatus) override {
    Calls.push_back("end " + std::to_string(exitStatus));
    throw EndedProcess{exitStatus};
  }

  std::vector<std::string> Calls;
};

// A fresh folder that goes with the object.
class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  // The name of a file in it, as the system forms paths: with a backslash before it.
  std::string HostPath(std::string_view name = {}) const;
  void Write(std::string_view name, std::string_view bytes) const;
  std::string Read(std::string_view name) const;
  bool Has(std::string_view name) const;

 private:
  std::filesystem::path path_;
};

// A run whose clock stands at 2026/03/05 17:04:09.
struct TestRun {
  TestRun();

  // Loads lines, each ended by CR LF, as if they were the file `name`.
  void Load(std::string_view name, const std::vector<std::string>& lines);

  NotingDesktop Desktop;
  PrintRun Run{Desktop};
};

// The message of the RunTimeFailure that `call` throws; a test failure if it throws none.
template <typename Call>
std::string RunTimeFailureOf(Call call) {
  try {
    call();
  } catch (const RunTimeFailure& failure) {
    return failure.what();
  }
  return "(no failure)";
}

}  // namespace tarvis
