// Requests to terminate on Windows: Ctrl+C, the end of a console, of the user's session, or of the machine.
#include <windows.h>

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QMetaObject>
#include <atomic>
#include <utility>

#include "platform/end_signals.h"

namespace tarvis {
namespace {

enum class Request { None, Pending, Answered };

// Windows reports events of a console in a thread of its own.
std::atomic<Request> request = Request::None;
EndSignals* watcher = nullptr;

// False if there was one before.
bool NoteRequest() {
  Request expected = Request::None;
  return request.compare_exchange_strong(expected, Request::Pending);
}

// What is answered with FALSE ends the process at once, and so does a return from all but the first two.
BOOL WINAPI HandleConsoleEvent(DWORD event) {
  if (!NoteRequest()) return FALSE;
  QMetaObject::invokeMethod(
      watcher, [] { watcher->Answer(); }, Qt::QueuedConnection);
  if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) Sleep(INFINITE);
  return TRUE;
}

// The end of the session reaches a program with windows through them. It ends once it has answered.
class SessionEnd : public QObject, public QAbstractNativeEventFilter {
 public:
  explicit SessionEnd(EndSignals& owner) : QObject(&owner), owner_(owner) {
    qApp->installNativeEventFilter(this);
  }

  bool nativeEventFilter(const QByteArray& /*kind*/, void* event, qintptr* result) override {
    const MSG& message = *static_cast<const MSG*>(event);
    if (message.message != WM_QUERYENDSESSION && message.message != WM_ENDSESSION) return false;
    const bool ends = message.message == WM_ENDSESSION && message.wParam != FALSE;
    if (ends) {
      NoteRequest();
      owner_.Answer();
    }
    *result = TRUE;
    return true;
  }

 private:
  EndSignals& owner_;
};

// The end of the session is reported when the program looks for messages, whose queue stays as it is.
void TakeMessagesOfTheSystem() {
  MSG message;
  PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
}

}  // namespace

EndSignals::EndSignals(std::function<void()> end) : end_(std::move(end)) {
  request = Request::None;
  watcher = this;
  new SessionEnd(*this);
  SetConsoleCtrlHandler(HandleConsoleEvent, TRUE);
}

EndSignals::~EndSignals() {
  SetConsoleCtrlHandler(HandleConsoleEvent, FALSE);
}

void EndSignals::Answer() {
  if (request == Request::None) TakeMessagesOfTheSystem();
  Request expected = Request::Pending;
  if (request.compare_exchange_strong(expected, Request::Answered)) end_();
}

}  // namespace tarvis
