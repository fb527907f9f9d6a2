// Watches the toolkit start. Without a display it would abort the process after a page of advice.
#pragma once

#include <QtGlobal>

#include "run/desktop.h"

namespace tarvis {

// As long as it lives, a start that fails ends the process with status 1 and one line on standard error. What
// the toolkit says of a start that works is passed on. There is one object of this kind at a time.
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
