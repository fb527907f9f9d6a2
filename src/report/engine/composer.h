// Composes a report into a document, in one pass: no band is ever formatted twice.
#pragma once

#include "report/engine/active_report.h"
#include "report/engine/document.h"
#include "report/engine/text_measurer.h"

namespace tarvis {

// Runs `report` with all its sub-reports and places its bands on pages. No widget, printer or screen is
// asked. Exceptions of handlers (RunTimeFailure above all) pass through.
Document Compose(ActiveReport& report, const PageSetup& setup, const TextMeasurer& measurer);

}  // namespace tarvis
