// Message buses on Windows: there are none.
#include "platform/message_buses.h"

namespace tarvis {

// The toolkit uses no message bus here.
void LeaveOutSilentBuses(Desktop& /*desktop*/, std::chrono::milliseconds /*patience*/) {}

}  // namespace tarvis
