// The system's wish that the process ends: the user logs out, the machine goes down, an administrator asks.
#pragma once

#include <QObject>
#include <functional>

namespace tarvis {

// As long as it lives, the first such wish calls `end` from the event loop, so never in the middle of the
// program's own work. A second one ends the process as if nobody watched. A wish that the caller has told the
// process to ignore stays ignored. There is one object of this kind at a time.
class EndSignals : public QObject {
 public:
  explicit EndSignals(std::function<void()> end);
  ~EndSignals() override;

  // For work that keeps the event loop waiting: calls `end` if there was such a wish by now.
  void Answer();

 private:
  std::function<void()> end_;
};

}  // namespace tarvis
