// What the comparisons of overlapped simulations share: row 0 is the target, row 1 the first of the others.
#pragma once

#include <string>

#include "report/function_report.h"

namespace tarvis {

class SimCmpReport : public FunctionReport {
 protected:
  SimCmpReport(const char* name, ReportContext context, const char* caption, Keep keep);

  // What the data file holds about a simulation. A row that has no room there throws RunTimeFailure.
  const CmpTimeRow& Simulation(int row) const;
  // Without any simulation there is no table.
  void ghGuide_BeforePrint();
  // "Target", then "1", "2" and on.
  static std::string SimulationNo(int row) { return row == 0 ? "Target" : std::to_string(row); }

  Section& ghGuide = AddGuide(420);
  Section& Detail = AddRows(300);
  Section& GroupFooter2 = AddGrowing(SectionKind::GroupFooter, "GroupFooter2", 10);
  Section& GroupFooter1 = AddGrowing(SectionKind::GroupFooter, "GroupFooter1", 0);
};

}  // namespace tarvis
