// How the trace was triggered.
#pragma once

#include "report/name_value_table.h"

namespace tarvis {

class rptTraceTrigger : public NameValueTable {
 public:
  explicit rptTraceTrigger(ReportContext context)
      : NameValueTable("rptTraceTrigger", context, "Trigger Setting", Entry::Grouped, Columns,
                       RowsOf(context.Run.Trace)) {}

 private:
  static constexpr TableColumns Columns{
      .Name = {"Items", 142, 3685}, .Value = {"Setting Value", 3827, 5102}, .Unit = {}};

  static std::vector<TableRow> RowsOf(const TraceData& trace) {
    return {trace.TriggerType, trace.TriggerLevel, trace.EdgeType, trace.PreTrigger, trace.SamplingCycle};
  }
};

}  // namespace tarvis
