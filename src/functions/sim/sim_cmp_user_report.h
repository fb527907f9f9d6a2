// The parameters of all simulations in one table, one column a simulation, in a narrow and a wide form.
#pragma once

#include <span>
#include <vector>

#include "functions/sim/sim_cmp_report.h"
#include "report/named_column.h"

namespace tarvis {

class SimCmpUserReport : public SimCmpReport {
 public:
  void ActiveReport_FetchData(bool& endOfData) override;

 protected:
  SimCmpUserReport(const char* name, ReportContext context, std::span<const NamedColumn> columns);

  Field& txtTitleNo = ghGuide.AddField("txtTitleNo", {142, 142, 708, 283}, TitleCell, "No.");
  Field& txtValueNo = Detail.AddField("txtValueNo", {142, 0, 708, 283}, CentredCell);
  std::vector<Field*> txtTitleFile;
  std::vector<Field*> txtValueVal;
};

}  // namespace tarvis
