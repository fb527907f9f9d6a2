// Watches for the first window of a run. What the start waits for may prevent it for ever: a display, a print
// system or a message bus that takes connections and never answers, a window manager that is stuck.
#pragma once

#include <QObject>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "run/desktop.h"

namespace tarvis {

// Waits in a thread of its own, since the start is blocked in calls of the toolkit that return late or never.
// If one step of the start takes longer than `patience` and no window is shown, it reports once, on standard
// error, what the start waits for; the start itself goes on. A start that is only slow goes from step to
// step. Nothing is reported once a window has been shown or the object is destroyed.
class FirstWindowWatch {
 public:
  // `desktop` must outlive the watch; `Diagnose` is called from the thread. If no thread can be started,
  // nothing is watched.
  explicit FirstWindowWatch(Desktop& desktop, std::chrono::seconds patience = std::chrono::seconds(10));
  ~FirstWindowWatch();
  FirstWindowWatch(const FirstWindowWatch&) = delete;
  FirstWindowWatch& operator=(const FirstWindowWatch&) = delete;

  // What the start does from now on, as a text that follows "has waited 10 s for".
  void WaitsFor(std::string what);
  // To be called once the application object exists: from now on, its windows are observed.
  void NoticeWindows();

 private:
  void Watch();
  void End();

  Desktop& desktop_;
  const std::chrono::seconds patience_;
  std::unique_ptr<QObject> windows_;
  std::mutex mutex_;  // guards the rest
  std::condition_variable changed_;
  std::string what_ = "the system";
  int step_ = 0;  // counts what the start has waited for
  bool isEnded_ = false;
  std::thread thread_;
};

// The display of the environment, as a text for `FirstWindowWatch::WaitsFor`.
std::string DisplayName();

}  // namespace tarvis
