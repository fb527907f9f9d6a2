// The event loop of the program, with a floor under it: what no routine handles ends the run as a run-time
// failure.
#pragma once

#include <QApplication>
#include <array>
#include <functional>
#include <memory>

#include "run/desktop.h"

namespace tarvis {

// What the toolkit is told of the command line: the program's name, and none of the arguments.
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

  // Catches what escapes an event handler.
  bool notify(QObject* receiver, QEvent* event) override;

  // To be called in a catch block. Says on standard error and in a box titled "Run-time error" what happened
  // and where, and ends the process with status 1. Deletes no file. The box is left out for a failure while
  // another one is being shown.
  [[noreturn]] void Fail();
  // While the box of a failure is shown.
  bool IsFailing() const { return failing_; }

 private:
  Desktop& desktop_;
  bool failing_ = false;
};

// Makes the application. A toolkit that can't start, for want of a display above all, ends the process with
// status 1 and one line on standard error.
std::unique_ptr<Application> StartApplication(ToolkitArguments& arguments, Desktop& desktop);

}  // namespace tarvis
