// What was simulated: control mode, reference, setting time.
#pragma once

#include "report/name_value_table.h"

namespace tarvis {

class rptSimInfo : public NameValueTable {
 public:
  explicit rptSimInfo(ReportContext context)
      : NameValueTable("rptSimInfo", context, "Simulation Information", Entry::Grouped, Columns,
                       {context.Run.Sim.Control, context.Run.Sim.Ref, context.Run.Sim.SettingTime}) {}

 private:
  static constexpr TableColumns Columns{.Name = {"Items", 142, 2834},
                                        .Value = {"Setting Value", 2976, 4252},
                                        .Unit = TableColumn{"Unit", 7228, 1701, Align::Right}};
};

}  // namespace tarvis
