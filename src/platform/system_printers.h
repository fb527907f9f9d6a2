// The printers that the system knows.
#pragma once

#include "run/desktop.h"

namespace tarvis {

class SystemPrinters : public Printers {
 public:
  // `countsPdf` counts saving as PDF as one more printer.
  explicit SystemPrinters(bool countsPdf) : countsPdf_(countsPdf) {}

  int NDevices() override;
  void PrintDialog() override;

 private:
  bool countsPdf_;
};

}  // namespace tarvis
