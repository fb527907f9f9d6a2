// An application that keeps what a handler threw until the test asks for it: nothing may fly through the
// toolkit's event loop.
#pragma once

#include <QApplication>
#include <QFont>
#include <exception>
#include <utility>

#include "dialogs/controls/place.h"

namespace tarvis {

// Sets the size of the desktop's font.
inline void SetUserFont(int pixels) {
  QFont font = QApplication::font();
  font.setPixelSize(pixels);
  QApplication::setFont(font);
}

class TestApplication : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override {
    try {
      return QApplication::notify(receiver, event);
    } catch (...) {
      if (!thrown_) thrown_ = std::current_exception();
      return true;
    }
  }

  static TestApplication& Instance() { return *static_cast<TestApplication*>(qApp); }
  void RethrowWhatHandlersThrew() {
    if (thrown_) std::rethrow_exception(std::exchange(thrown_, nullptr));
  }
  bool HasThrown() const { return thrown_ != nullptr; }

 private:
  std::exception_ptr thrown_;
};

}  // namespace tarvis
