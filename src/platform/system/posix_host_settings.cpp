// Host settings without a registry: the configuration file.
#include "platform/system/configuration_registry.h"
#include "platform/system/host_settings.h"

namespace tarvis {

std::unique_ptr<HostSettings> OpenHostSettings(Desktop& desktop) {
  return std::make_unique<ConfigurationRegistry>(ConfigurationPath(), desktop);
}

}  // namespace tarvis
