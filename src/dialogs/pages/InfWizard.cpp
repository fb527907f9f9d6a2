#include "dialogs/pages/InfWizard.h"

#include "run/print_run.h"

namespace tarvis {

InfWizard::InfWizard(PrintRun& run, QWidget* parent)
    : ItemPage(run, {"InfWizard", PageId::InfWizard, "Parameter Wizard", {}}, parent) {
  const std::int16_t stored = Header().FileName;
  HeaderBox(&HeaderOptions::FileName).SetValue(0);
  Header().FileName = stored;  // building the page doesn't count as a click
  HeaderBox(&HeaderOptions::FileName).hide();
}

// The wizard prints no file name, whatever the options file says.
void InfWizard::LoadItems() {
  Header().FileName = 0;
}

}  // namespace tarvis
