// When and how a real-time trace was taken.
#pragma once

#include "report/name_value_table.h"

namespace tarvis {

class rptRealTraceInfo : public NameValueTable {
 public:
  explicit rptRealTraceInfo(ReportContext context)
      : NameValueTable("rptRealTraceInfo", context, "Tracing Info", Entry::Plain, Columns,
                       RowsOf(context.Run.RealTrace)) {
    Label1.Width = 2976;
  }

 private:
  // The line break is part of the layout; it makes no second line.
  static constexpr TableColumns Columns{
      .Name = {"Items\r\n", 142, 3685}, .Value = {"Value", 3827, 5102}, .Unit = {}};

  static std::vector<TableRow> RowsOf(const RealTraceData& trace) {
    return {trace.StartTime, trace.SamplingCycle, trace.DispData};
  }
};

}  // namespace tarvis
