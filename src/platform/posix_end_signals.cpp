// Requests to terminate on POSIX systems: signals.
#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <utility>

#include "platform/end_signals.h"

namespace tarvis {
namespace {

constexpr std::array WatchedSignals = {SIGTERM, SIGHUP, SIGINT};

// From the signal handler, in which hardly anything is allowed, to the event loop.
std::array<int, 2> pipeToLoop = {-1, -1};

void Wake(int /*signal*/) {
  const char byte = 0;
  static_cast<void>(!write(pipeToLoop[1], &byte, 1));
}

auto HandlerOf(int signal) {
  struct sigaction action = {};
  sigaction(signal, nullptr, &action);
  return action.sa_handler;
}

void Watch(int signal) {
  if (HandlerOf(signal) == SIG_IGN) return;
  struct sigaction action = {};
  action.sa_handler = Wake;
  action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
  sigaction(signal, &action, nullptr);
}

}  // namespace

EndSignals::EndSignals(std::function<void()> end) : end_(std::move(end)) {
  if (pipe2(pipeToLoop.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;  // signals then end the process as usual
  auto* notifier = new QSocketNotifier(pipeToLoop[0], QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [this] { Answer(); });
  for (const int signal : WatchedSignals) Watch(signal);
}

void EndSignals::Answer() {
  char byte = 0;
  if (read(pipeToLoop[0], &byte, 1) == 1) end_();
}

EndSignals::~EndSignals() {
  for (const int signal : WatchedSignals) {
    if (HandlerOf(signal) == Wake) std::signal(signal, SIG_DFL);
  }
  for (int& end : pipeToLoop) {
    close(end);
    end = -1;
  }
}

}  // namespace tarvis
