// The host's registry values on systems without a registry: one INI file.
//
//   [SOFTWARE\...\Setup]      a section is named by the registry key
//   SystemPath=/opt/host      an entry by the value name; its value is all that follows up to the line's end
//
//   [Tarvis]
//   CodePage=1252             the system's code page
//   PdfPrinter=yes            counts saving as PDF as a printer
#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/host_settings.h"

namespace tarvis {

// The file as it was when the object was made. A missing or unreadable file gives empty values.
class ConfigurationRegistry : public HostSettings {
 public:
  explicit ConfigurationRegistry(std::string path);

  std::string Value(const std::string& key, const std::string& valueName) override;

  int CodePageNumber() const override;
  bool CountsPdfPrinter() const override;

 private:
  std::string Find(const std::string& section, const std::string& entry) const;

  std::string path_;
  std::map<std::pair<std::string, std::string>, std::string> values_;
};

// $TARVIS_CONFIG if set; else tarvis/tarvis.ini in the user's configuration folder if there is one there;
// else the machine's own below /etc.
std::string ConfigurationPath();

}  // namespace tarvis
