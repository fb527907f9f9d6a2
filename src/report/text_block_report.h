// The two reports that are nothing but the band and one text below it.
#pragma once

#include <utility>

#include "report/function_report.h"

namespace tarvis {

class TextBlockReport : public FunctionReport {
 protected:
  TextBlockReport(const char* name, ReportContext context, const char* caption)
      : FunctionReport(name, 9000, context, caption, 1125, Entry::Grouped, Keep::All) {
    // These two enter the contents before printing, all others after it.
    ghTitle.BeforePrint = std::exchange(ghTitle.AfterPrint, {});
  }

  Field& Field1 = ghTitle.AddField("Field1", {0, 850, 8929, 284});
  Section& Detail = AddGrowing(SectionKind::Detail, "Detail", 15);
  Section& GroupFooter1 = AddGrowing(SectionKind::GroupFooter, "GroupFooter1", 0);
};

}  // namespace tarvis
