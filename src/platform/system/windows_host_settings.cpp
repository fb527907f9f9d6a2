// Host settings on Windows: the registry.
#include <windows.h>

#include "platform/files/windows_registry.h"
#include "platform/system/host_settings.h"

namespace tarvis {
namespace {

class WindowsSettings : public HostSettings {
 public:
  std::string Value(const std::string& key, const std::string& valueName) override {
    return RegistryValue(key, valueName).value_or(std::string());
  }
  CodePage SystemCodePage() const override { return CodePage(static_cast<int>(GetACP())); }
  bool CountsPdfPrinter() const override { return false; }
};

}  // namespace

std::unique_ptr<HostSettings> OpenHostSettings(Desktop& /*desktop*/) {
  return std::make_unique<WindowsSettings>();
}

}  // namespace tarvis
