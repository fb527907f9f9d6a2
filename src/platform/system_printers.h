// The printers that the system knows.
#pragma once

#include "platform/first_window_watch.h"
#include "run/desktop.h"

namespace tarvis {

class SystemPrinters : public Printers {
 public:
  // `countsPdf` counts saving as PDF as a printer. `desktop` and `watch` must outlive the object.
  SystemPrinters(bool countsPdf, Desktop& desktop, FirstWindowWatch& watch)
      : countsPdf_(countsPdf), desktop_(desktop), watch_(watch) {}

  // A lower limit of their number: where saving as PDF counts, the print system isn't queried. Otherwise its
  // answer is waited for, for half a minute at most; no answer counts as no printer, and is reported on
  // standard error.
  int NDevices() override;
  void PrintDialog() override;

 private:
  bool countsPdf_;
  Desktop& desktop_;
  FirstWindowWatch& watch_;
};

}  // namespace tarvis
