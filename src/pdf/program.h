// The work of tarvis-pdf, from what was asked for to the PDF.
#pragma once

#include "pdf/order.h"
#include "pdf/pdf_desktop.h"

namespace tarvis {

// What the process has got from its caller.
struct PdfProcess {
  char* Name = nullptr;
  bool IsOutputOpen = true;
};

// Makes, checks or answers what is asked for. Writes nothing but the output, and that only as a whole; a
// request to stop ends the process with nothing written. What goes wrong is thrown: PdfError, RunTimeFailure,
// or what `desktop` throws.
void CarryOut(const PdfOrder& order, const PdfProcess& process, PdfDesktop& desktop);

}  // namespace tarvis
