#include "platform/system_printers.h"

#include <QPrinterInfo>

#include "platform/message_box.h"
#include "platform/print_server.h"

namespace tarvis {

int SystemPrinters::NDevices() {
  if (countsPdf_) return 1;
  watch_.WaitsFor("the print system");
  const bool isSilent = PrintServerIsSilent();
  if (isSilent) desktop_.Diagnose("the print system does not answer, so no printer is known");
  const qsizetype count = isSilent ? 0 : QPrinterInfo::availablePrinterNames().size();
  watch_.WaitsFor("the files of the host");
  return static_cast<int>(count);
}

void SystemPrinters::PrintDialog() {
  QMessageBox box(QMessageBox::NoIcon, "Print", "No printer is installed. Install a printer and try again.",
                  QMessageBox::Ok);
  box.setObjectName("noPrinter");
  ShowUntilAnswered(box);
}

}  // namespace tarvis
