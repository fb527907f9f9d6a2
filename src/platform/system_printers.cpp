#include "platform/system_printers.h"

#include <QMessageBox>
#include <QPrinterInfo>

namespace tarvis {

int SystemPrinters::NDevices() {
  return static_cast<int>(QPrinterInfo::availablePrinterNames().size()) + (countsPdf_ ? 1 : 0);
}

void SystemPrinters::PrintDialog() {
  QMessageBox box(QMessageBox::NoIcon, "Print", "No printer is installed. Install a printer and try again.",
                  QMessageBox::Ok);
  box.setObjectName("noPrinter");
  box.exec();
}

}  // namespace tarvis
