// Requests to terminate on Windows, where the windows of the program get them.
#include <utility>

#include "platform/end_signals.h"

namespace tarvis {

// The system closes the windows of a program, and that ends the run.
EndSignals::EndSignals(std::function<void()> end) : end_(std::move(end)) {}

EndSignals::~EndSignals() = default;

// No window can be closed while the event loop is blocked.
void EndSignals::Answer() {}

}  // namespace tarvis
