#include "platform/qt_desktop.h"

#include <QApplication>
#include <QCursor>
#include <QMessageBox>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <vector>

#include "platform/message_box.h"

namespace tarvis {
namespace {

constexpr std::chrono::milliseconds BeepDistance(200);

// During its lifetime, the pointer is the normal one even if the program is busy, because the user has to
// answer.
class PlainPointer {
 public:
  PlainPointer() {
    for (; QApplication::overrideCursor() != nullptr; QApplication::restoreOverrideCursor())
      taken_.push_back(*QApplication::overrideCursor());
  }
  ~PlainPointer() {
    for (; !taken_.empty(); taken_.pop_back()) QApplication::setOverrideCursor(taken_.back());
  }
  PlainPointer(const PlainPointer&) = delete;
  PlainPointer& operator=(const PlainPointer&) = delete;

 private:
  std::vector<QCursor> taken_;
};

// The window over which a message is shown. One that has only just been opened isn't active yet.
QWidget* Owner() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto shown = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->isVisible() && window->windowType() != Qt::ToolTip && window->windowType() != Qt::Popup;
  });
  return shown == windows.end() ? nullptr : *shown;
}

}  // namespace

void QtDesktop::Beep() {
  std::this_thread::sleep_until(nextBeep_);
  QApplication::beep();
  nextBeep_ = std::chrono::steady_clock::now() + BeepDistance;
}

void QtDesktop::ShowMessage(const std::string& title, const std::string& text) {
  const PlainPointer pointer;
  QMessageBox box(QMessageBox::NoIcon, QString::fromStdString(title), QString::fromStdString(text),
                  QMessageBox::Ok, Owner());
  box.setObjectName("message");
  box.setTextFormat(Qt::PlainText);
  ShowUntilAnswered(box);
}

void QtDesktop::Diagnose(const std::string& line) {
  const std::string whole = "tarvis: " + line + "\n";
  std::fputs(whole.c_str(), stderr);
}

void QtDesktop::EndProcess(int exitStatus) {
  std::fflush(nullptr);
  std::_Exit(exitStatus);
}

}  // namespace tarvis
