#include <utility>

#include "platform/end_signals.h"

namespace tarvis {

// Windows asks the windows of a program, and their closing ends the run.
EndSignals::EndSignals(std::function<void()> end) : end_(std::move(end)) {}

EndSignals::~EndSignals() = default;

// A window can't be asked while the event loop waits.
void EndSignals::Answer() {}

}  // namespace tarvis
