#include "platform/configuration_registry.h"
#include "platform/host_settings.h"

namespace tarvis {

std::unique_ptr<HostSettings> OpenHostSettings(Desktop& desktop) {
  return std::make_unique<ConfigurationRegistry>(ConfigurationPath(), desktop);
}

}  // namespace tarvis
