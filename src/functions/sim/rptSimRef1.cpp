#include "functions/sim/rptSimRef1.h"

#include "functions/sim/shown_columns.h"

namespace tarvis {

rptSimRef1::rptSimRef1(ReportContext context)
    : SimRefReport("rptSimRef1", 9855, context, 1725, "Label3", "Label4") {
  ghGuide.Repeat = true;
  ghGuide.Format = [this] { HideColumnsBeyond(Run.Sim.PatternSetting.PatternCount, txtTitleValue); };
  Detail.Format = [this] { HideColumnsBeyond(Run.Sim.PatternSetting.PatternCount, txtValueVal); };
  GroupFooter2.Format = [this] { GroupFooter2_Format(); };
  // The filter is a table of its own: its titles and its two rows.
  GroupFooter2.Role = BandRole::HeaderRow;
  for (Field* field : {&txtValueNameG1, &txtValueValG1, &txtValueUnitG1})
    field->Reads = {.As = PartRole::Cell, .Line = 1};
  for (Field* field : {&txtValueNameG2, &txtValueValG2, &txtValueUnitG2})
    field->Reads = {.As = PartRole::Cell, .Line = 2};
}

void rptSimRef1::ActiveReport_ReportStart() {
  SimRefReport::ActiveReport_ReportStart();
  txtValueSimTime.SetCaption(": " + Run.Sim.SimTime.Value + " [" + Run.Sim.SimTime.Unit + "]");
}

// Ten values are always read; what the pattern doesn't count is only hidden. An eleventh never prints.
void rptSimRef1::ActiveReport_FetchData(bool& endOfData) {
  endOfData = Row >= static_cast<int>(Patterns.size());
  if (endOfData) return;
  const PatternRow& pattern = Run.Sim.*Patterns[static_cast<std::size_t>(Row)];
  txtValueName.Text = pattern.Name;
  txtValueUnit.Text = pattern.Unit;
  for (std::size_t column = 0; column < Columns; ++column) {
    txtValueVal[column]->Text = pattern.Values[static_cast<int>(column)];
  }
  ++Row;
}

void rptSimRef1::GroupFooter2_Format() {
  const SimData& sim = Run.Sim;
  txtValueNameG1.Text = sim.FilType.Name;
  txtValueValG1.Text = sim.FilType.Value;
  txtValueUnitG1.Text = sim.FilType.Unit;
  txtValueNameG2.Text = sim.FilTime.Name;
  txtValueValG2.Text = sim.FilTime.Value;
  txtValueUnitG2.Text = sim.FilTime.Unit;
}

}  // namespace tarvis
