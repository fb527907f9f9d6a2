#include "platform/application.h"

#include <QSettings>
#include <cstdlib>
#include <exception>
#include <new>
#include <string>

#include "platform/start_watch.h"
#include "run/failures.h"

namespace tarvis {
namespace {

// Describes the exception that is being handled.
std::string Description() {
  try {
    throw;
  } catch (const std::bad_alloc&) {
    return "there is not enough memory";
  } catch (const std::exception& failure) {
    return failure.what();
  } catch (...) {
    return "unknown exception";
  }
}

// The toolkit's file dialog would store folders, names and column widths in a settings file of its own in the
// user's home folder, but only the print options may outlive a run. Below a device there is no folder to
// write to. Where the toolkit shows the system's own dialog, that dialog stores its own settings.
void KeepNoToolkitSettings() {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
}

}  // namespace

Application::Application(ToolkitArguments& arguments, Desktop& desktop)
    : QApplication(arguments.Count, arguments.Values.data()), desktop_(desktop) {
  setApplicationName("tarvis");
  KeepNoToolkitSettings();
  setQuitOnLastWindowClosed(false);  // only the end of the run ends the process
}

void Application::Run(const std::function<void()>& start) {
  try {
    start();
  } catch (...) {
    Fail();
  }
  desktop_.EndProcess(exec());
  std::abort();  // not reached; the compiler doesn't see that of a virtual call
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (...) {
    Fail();
  }
}

void Application::Fail() {
  const std::string description = Description();
  desktop_.Diagnose("run-time error: " + description);
  if (!failing_) {
    failing_ = true;
    desktop_.ShowMessage("Run-time error", description);
  }
  desktop_.EndProcess(ExitAfterRunTimeFailure);
  std::abort();  // not reached
}

std::unique_ptr<Application> StartApplication(ToolkitArguments& arguments, Desktop& desktop) {
  const StartWatch watch(desktop);
  return std::make_unique<Application>(arguments, desktop);
}

}  // namespace tarvis
