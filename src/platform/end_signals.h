// Requests by the operating system to terminate: the user logs out, the machine shuts down, an administrator
// ends the process.
#pragma once

#include <QObject>
#include <functional>

namespace tarvis {

// During its lifetime, the first such request calls `end` from the event loop, so never in the middle of the
// program's own work. A second one ends the process at once, as without this object. A signal that the parent
// process has set to be ignored stays ignored. There is one object of this kind at a time.
class EndSignals : public QObject {
 public:
  explicit EndSignals(std::function<void()> end);
  ~EndSignals() override;

  // For work that blocks the event loop: calls `end` if there was a request meanwhile.
  void Answer();

 private:
  std::function<void()> end_;
};

}  // namespace tarvis
