// Help files on POSIX systems: none has a viewer of its own.
#include "platform/help_viewer.h"

namespace tarvis {

// The desktop opens files of every kind.
bool OpenInHelpViewer(const std::filesystem::path& /*file*/, std::int32_t /*context*/) {
  return false;
}

}  // namespace tarvis
