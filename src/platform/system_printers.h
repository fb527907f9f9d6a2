// The printers that the system knows.
#pragma once

#include "platform/first_window_watch.h"
#include "run/desktop.h"

namespace tarvis {

class SystemPrinters : public Printers {
 public:
  // `countsPdf` counts saving as PDF as a printer. `watch` must outlive the object.
  SystemPrinters(bool countsPdf, FirstWindowWatch& watch) : countsPdf_(countsPdf), watch_(watch) {}

  // A lower limit of their number: where saving as PDF counts, the print system isn't queried, since a print
  // server that doesn't answer takes two minutes. Otherwise the answer is waited for.
  int NDevices() override;
  void PrintDialog() override;

 private:
  bool countsPdf_;
  FirstWindowWatch& watch_;
};

}  // namespace tarvis
