// The settings of the installation: the host's registry values and the two settings of the system itself.
#pragma once

#include <memory>

#include "run/desktop.h"
#include "text/code_page.h"

namespace tarvis {

class HostSettings : public HostRegistry {
 public:
  // The system's code page, 1252 if nothing names another. A text that names no code page is a
  // RunTimeFailure.
  virtual CodePage SystemCodePage() const = 0;
  // Whether saving as PDF counts as a printer, so that a run goes on where no printer is set up.
  virtual bool CountsPdfPrinter() const = 0;
};

// The registry where there is one, the configuration file elsewhere. `desktop` gets a diagnosis of what is
// missing, and must outlive the settings.
std::unique_ptr<HostSettings> OpenHostSettings(Desktop& desktop);

}  // namespace tarvis
