// The document of the master report.
#pragma once

#include "report/engine/composer.h"
#include "report/engine/document.h"
#include "report/engine/text_measurer.h"

namespace tarvis {

struct PrintRun;
class rptTarvis;

// Composes `report`, which becomes the run's master report and must outlive the run or the next document. The
// document bears the title of the function, without what overlapped data sets add to it. For `taker`, see
// Compose.
Document ComposeMasterReport(PrintRun& run, rptTarvis& report, const PageSetup& paper,
                             const TextMeasurer& measurer, PageTaker* taker = nullptr);

}  // namespace tarvis
