// Host settings on Windows: the registry.
#include <windows.h>

#include <QSettings>

#include "platform/system/host_settings.h"

namespace tarvis {
namespace {

constexpr qsizetype LongestValue = 1024;

// The host is a 32-bit program, so its keys are in the 32-bit view of the registry.
class WindowsRegistry : public HostSettings {
 public:
  std::string Value(const std::string& key, const std::string& valueName) override {
    const QSettings registry("HKEY_LOCAL_MACHINE\\" + QString::fromStdString(key),
                             QSettings::Registry32Format);
    const QString value = registry.value(QString::fromStdString(valueName)).toString();
    return value.size() > LongestValue ? std::string() : value.toStdString();
  }
  CodePage SystemCodePage() const override { return CodePage(static_cast<int>(GetACP())); }
  bool CountsPdfPrinter() const override { return false; }
};

}  // namespace

std::unique_ptr<HostSettings> OpenHostSettings(Desktop& /*desktop*/) {
  return std::make_unique<WindowsRegistry>();
}

}  // namespace tarvis
