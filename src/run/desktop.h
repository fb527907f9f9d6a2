// What the core asks of the desktop around it: how a run speaks to its user and how it ends.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

namespace tarvis {

enum class Failure : std::int16_t;

// The platform implements it with real beeps and windows; tests implement it to watch a run end.
class Desktop {
 public:
  virtual ~Desktop() = default;

  // Called first of all for a numbered failure; `diagnosis` is its reason, empty if there is none. When it
  // returns, the user gets the message and the run ends as every run does, with its data files deleted. A
  // program without a user throws.
  virtual void NoticeFailure(Failure /*failure*/, const std::string& /*diagnosis*/) {}
  virtual void Beep() = 0;
  // Shows a modal box with an OK button only and no icon, and returns when the user has answered.
  // `text` is UTF-8; a LF in it starts a new line.
  virtual void ShowMessage(const std::string& title, const std::string& text) = 0;
  // One line for the people who write host files; goes to standard error. No line end in `line`.
  virtual void Diagnose(const std::string& line) = 0;
  // Ends the process at once, without giving windows or reports a chance to close. Tests throw instead.
  [[noreturn]] virtual void EndProcess(int exitStatus) = 0;
};

// The windows of the program, as far as the core opens and closes them: the start of a run opens the dialog,
// and the preview's added tool changes from the preview to the dialog.
class ProgramWindows {
 public:
  virtual ~ProgramWindows() = default;

  // Shows the dialog "Printing Item Setting", modeless, loaded again.
  virtual void ShowPrintSetting() = 0;
  // Takes the preview away without ending the run (close mode other than 0).
  virtual void UnloadMasterReport() = 0;
};

// Not part of the standard library: returns when the bytes of the closed file `fresh` are on the
// disk, and gives it the owner of `replaced`, if there is such a file. False if the bytes may be lost.
using FileSettler =
    std::function<bool(const std::filesystem::path& fresh, const std::filesystem::path& replaced)>;

// The printers of the system.
class Printers {
 public:
  virtual ~Printers() = default;

  virtual int NDevices() = 0;
  // Blocks until the user has read that there is no printer.
  virtual void PrintDialog() = 0;
};

// Three texts for each edition: the registry where there is one, the configuration file elsewhere.
class HostRegistry {
 public:
  virtual ~HostRegistry() = default;

  // The value below HKEY_LOCAL_MACHINE, empty if key or value is missing, or if it is longer
  // than the system's buffer of 1024 characters.
  virtual std::string Value(const std::string& key, const std::string& valueName) = 0;
};

}  // namespace tarvis
