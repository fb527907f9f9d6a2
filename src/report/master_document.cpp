#include "report/master_document.h"

#include <string>

#include "report/rptTarvis.h"
#include "run/print_run.h"

namespace tarvis {

Document ComposeMasterReport(PrintRun& run, rptTarvis& report, const PageSetup& paper,
                             const TextMeasurer& measurer, PageTaker* taker) {
  run.Session.MasterReport = &report;
  const std::string title = run.Session.ActiveHeader.TitleText;  // before overlapped data sets add to it
  Document document = Compose(report, paper, measurer, taker);
  if (!title.empty()) document.Title = title;
  return document;
}

}  // namespace tarvis
