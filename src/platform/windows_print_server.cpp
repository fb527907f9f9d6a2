// The print server on Windows: there is none.
#include "platform/print_server.h"

namespace tarvis {

// The system knows its printers without asking a server.
bool PrintServerIsSilent(std::chrono::milliseconds /*patience*/) {
  return false;
}

}  // namespace tarvis
