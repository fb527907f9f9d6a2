// What was overlapped: one row for each of the six channels, with a tick where its graph is displayed.
#pragma once

#include "report/function_report.h"

namespace tarvis {

class rptTraceObjectOverlap : public FunctionReport {
 public:
  explicit rptTraceObjectOverlap(ReportContext context);

  void ActiveReport_FetchData(bool& endOfData) override;

 private:
  Section& ghGuide = AddGuide(420);
  Field& txtTitleCheck = ghGuide.AddField("txtTitleCheck", {142, 142, 1134, 283}, TitleCell, "Display");
  Field& txtTitleName = ghGuide.AddField("txtTitleName", {1276, 142, 4677, 283}, TitleCell, "Target");
  Field& txtTitleUnit = ghGuide.AddField("txtTitleUnit", {5953, 142, 1984, 283}, TitleCell, "Unit");

  Section& Detail = AddRows(300);
  // Stays empty: it is the cell around the check box.
  Field& txtValueTrace = Detail.AddField("txtValueTrace", {142, 0, 1134, 283}, CentredCell);
  CheckBox& CheckValue = Detail.AddCheckBox("CheckValue", {567, 0, 283, 283});
  Field& txtValueName = Detail.AddField("txtValueName", {1276, 0, 4677, 283}, ValueCell);
  Field& txtValueUnit = Detail.AddField("txtValueUnit", {5953, 0, 1984, 283}, ValueCell);

  Section& GroupFooter2 = AddGrowing(SectionKind::GroupFooter, "GroupFooter2", 15);
  Section& GroupFooter1 = AddGrowing(SectionKind::GroupFooter, "GroupFooter1", 0);
};

}  // namespace tarvis
