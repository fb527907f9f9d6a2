// The event loop of the program. An exception that no routine handles ends the run as a run-time failure.
#pragma once

#include <QApplication>
#include <array>
#include <functional>
#include <memory>

#include "run/desktop.h"

namespace tarvis {

// The part of the command line that the toolkit gets: the program's name, and none of the arguments.
struct ToolkitArguments {
  explicit ToolkitArguments(char* programName) : Values{{programName, nullptr}} {}

  int Count = 1;
  std::array<char*, 2> Values;
};

class Application : public QApplication {
 public:
  // `arguments` and `desktop` must outlive the application.
  Application(ToolkitArguments& arguments, Desktop& desktop);

  // Runs `start`, then the event loop until the process ends.
  [[noreturn]] void Run(const std::function<void()>& start);

  // Catches exceptions that leave an event handler.
  bool notify(QObject* receiver, QEvent* event) override;

  // To be called in a catch block. Reports on standard error and in a box titled "Run-time error" what
  // happened and where, and ends the process with status 1. Deletes no file. The box is left out for a
  // failure while another one is being shown.
  [[noreturn]] void Fail();
  // While the box of a failure is shown.
  bool IsFailing() const { return failing_; }

 private:
  Desktop& desktop_;
  bool failing_ = false;
};

// Makes the application. A toolkit that can't start, most often because there is no display, ends the process
// with status 1 and one line on standard error.
std::unique_ptr<Application> StartApplication(ToolkitArguments& arguments, Desktop& desktop);

}  // namespace tarvis
