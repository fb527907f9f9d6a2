#include "platform/system_printers.h"

#include <QMessageBox>
#include <QPrinterInfo>

namespace tarvis {

int SystemPrinters::NDevices() {
  if (countsPdf_) return 1;
  watch_.WaitsFor("the print system");
  const qsizetype count = QPrinterInfo::availablePrinterNames().size();
  watch_.WaitsFor("the files of the host");
  return static_cast<int>(count);
}

void SystemPrinters::PrintDialog() {
  QMessageBox box(QMessageBox::NoIcon, "Print", "No printer is installed. Install a printer and try again.",
                  QMessageBox::Ok);
  box.setObjectName("noPrinter");
  box.exec();
}

}  // namespace tarvis
