#include "functions/sim/SimCmpReport.h"

namespace tarvis {

SimCmpReport::SimCmpReport(const char* name, ReportContext context, const char* caption, Keep keep)
    : FunctionReport(name, 9000, context, caption, 690, Entry::Grouped, keep) {
  ghGuide.Repeat = true;
  ghGuide.BeforePrint = [this] { ghGuide_BeforePrint(); };
}

void SimCmpReport::ghGuide_BeforePrint() {
  if (Run.Session.OverlapNum == 0) Unload();
}

}  // namespace tarvis
