#include "functions/sim/sim_cmp_user_report.h"

#include "functions/sim/shown_columns.h"

namespace tarvis {

SimCmpUserReport::SimCmpUserReport(const char* name, ReportContext context,
                                   std::span<const NamedColumn> columns)
    : SimCmpReport(name, context, "Parameter", Keep::FirstDetail) {
  for (const NamedColumn& column : columns) {
    txtTitleFile.push_back(&ghGuide.AddField(column.TitleControl, {column.Left, 142, column.Width, 283},
                                             TitleCell, column.Title));
    txtValueVal.push_back(
        &Detail.AddField(column.ValueControl, {column.Left, 0, column.Width, 283}, RightAlignedCell));
  }
  // The titles go when the title band is formatted, before their own section.
  ghTitle.Format = [this] { HideColumnsBeyond(Run.Session.OverlapNum, txtTitleFile); };
  Detail.Format = [this] { HideColumnsBeyond(Run.Session.OverlapNum, txtValueVal); };
}

void SimCmpUserReport::ActiveReport_FetchData(bool& endOfData) {
  endOfData = Row >= Run.Sim.CmpUserNum;
  if (endOfData) return;
  const CmpUserRow& row = Run.Sim.CmpUser[Row];
  txtValueNo.Text = row.No;
  for (std::size_t column = 0; column < txtValueVal.size(); ++column) {
    txtValueVal[column]->Text = row.Values[static_cast<int>(column)];
  }
  ++Row;
}

}  // namespace tarvis
