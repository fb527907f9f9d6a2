// The host's registry values on systems without a registry: one INI file.
//
//   [SOFTWARE\...\Setup]      a section is named by the registry key
//   SystemPath=/opt/host      an entry by the value name; its value is all that follows up to the line's end
//
//   [Tarvis]
//   CodePage=1252             the system's code page
//   PdfPrinter=yes            counts saving as PDF as a printer
#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <utility>

#include "platform/system/host_settings.h"

namespace tarvis {

// The file as it was when the object was made, in UTF-8, with or without a byte order mark. A file or an
// entry that is missing or can't be read gives empty values, and a diagnosis that names it.
class ConfigurationRegistry : public HostSettings {
 public:
  // `desktop` must outlive the object.
  ConfigurationRegistry(std::string path, Desktop& desktop);

  std::string Value(const std::string& key, const std::string& valueName) override;

  CodePage SystemCodePage() const override;
  bool CountsPdfPrinter() const override;

 private:
  void ReadLines(std::istream& file);
  struct Entry {
    std::string Value;
    int Line = 0;  // counted from 1; 0 for an entry that is missing
  };
  Entry Find(const std::string& section, const std::string& entry) const;

  std::string path_;
  Desktop& desktop_;
  bool readable_ = false;
  std::map<std::pair<std::string, std::string>, Entry> values_;
};

// $TARVIS_CONFIG if set; else tarvis/tarvis.ini in the user's configuration folder if there is one there;
// else the machine's own below /etc.
std::string ConfigurationPath();

}  // namespace tarvis
