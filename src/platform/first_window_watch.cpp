#include "platform/first_window_watch.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>
#include <functional>
#include <system_error>
#include <utility>

namespace tarvis {
namespace {

// Observes the first window by the events of the application.
class WindowEvents : public QObject {
 public:
  WindowEvents(std::function<void(std::string)> waitsFor, std::function<void()> shown)
      : waitsFor_(std::move(waitsFor)), shown_(std::move(shown)) {}

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override {
    auto* window = qobject_cast<QWindow*>(receiver);
    if (window != nullptr && event->type() == QEvent::Expose && window->isExposed()) {
      shown_();
      qApp->removeEventFilter(this);
    } else if (receiver->isWidgetType() && event->type() == QEvent::Show) {
      waitsFor_("the window manager, which was asked to show a window");
    } else if (receiver->isWidgetType() && !std::exchange(isBuilding_, true)) {
      // Building widgets uses nothing outside but the buses, for assistive tools and global menus.
      waitsFor_("its dialog to be built, which asks the message buses of the desktop");
    }
    return QObject::eventFilter(receiver, event);
  }

 private:
  std::function<void(std::string)> waitsFor_;
  std::function<void()> shown_;
  bool isBuilding_ = false;
};

}  // namespace

FirstWindowWatch::FirstWindowWatch(Desktop& desktop, std::chrono::seconds patience)
    : desktop_(desktop), patience_(patience) {
  try {
    thread_ = std::thread([this] { Watch(); });
  } catch (const std::system_error&) {
    isEnded_ = true;  // the start is more important than its watch
  }
}

FirstWindowWatch::~FirstWindowWatch() {
  End();
  if (thread_.joinable()) thread_.join();
}

void FirstWindowWatch::WaitsFor(std::string what) {
  const std::lock_guard lock(mutex_);
  what_ = std::move(what);
  ++step_;
  changed_.notify_all();
}

void FirstWindowWatch::NoticeWindows() {
  windows_ = std::make_unique<WindowEvents>([this](std::string what) { WaitsFor(std::move(what)); },
                                            [this] { End(); });
  qApp->installEventFilter(windows_.get());
}

// The lock is held while the line is written, so that none appears after `End`.
void FirstWindowWatch::Watch() {
  std::unique_lock lock(mutex_);
  int step = step_;
  while (changed_.wait_for(lock, patience_, [&] { return isEnded_ || step_ != step; })) {
    if (isEnded_) return;
    step = step_;
  }
  desktop_.Diagnose("no window is shown yet; the start has waited " + std::to_string(patience_.count()) +
                    " s for " + what_);
}

void FirstWindowWatch::End() {
  const std::lock_guard lock(mutex_);
  isEnded_ = true;
  changed_.notify_all();
}

std::string DisplayName() {
  for (const char* variable : {"WAYLAND_DISPLAY", "DISPLAY"}) {
    const QByteArray name = qgetenv(variable);
    if (!name.isEmpty()) return "the display " + name.toStdString();
  }
  return "the display";
}

}  // namespace tarvis
