// Watches the start of the toolkit, which without a display would abort the process after many lines of
// advice.
#pragma once

#include <QtGlobal>

#include "run/desktop.h"

namespace tarvis {

// During its lifetime, a start that fails ends the process with status 1 and one line on standard error.
// Messages of the toolkit during a start that succeeds are passed on. There is one object of this kind at a
// time.
class StartWatch {
 public:
  // `desktop` must outlive the watch.
  explicit StartWatch(Desktop& desktop);
  ~StartWatch();
  StartWatch(const StartWatch&) = delete;
  StartWatch& operator=(const StartWatch&) = delete;

 private:
  QtMessageHandler before_;
};

}  // namespace tarvis
