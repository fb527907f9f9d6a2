// What was traced or simulated: one row for each of the six channels, whether it is used or not.
#pragma once

#include "report/function_report.h"

namespace tarvis {

class rptTraceObject : public FunctionReport {
 public:
  explicit rptTraceObject(ReportContext context);

  void ActiveReport_ReportStart() override;
  void ActiveReport_FetchData(bool& endOfData) override;

 private:
  void ghTitle_Format();
  std::string RowLabel(std::size_t channel) const;

  Section& ghGuide = AddGuide(420);
  Field& txtTitleTrace = ghGuide.AddField("txtTitleTrace", {142, 142, 1275, 283}, TitleCell);
  Field& txtTitleName = ghGuide.AddField("txtTitleName", {1417, 142, 4677, 283}, TitleCell, "Target");
  Field& txtTitleUnit = ghGuide.AddField("txtTitleUnit", {6094, 142, 1701, 283}, TitleCell, "Unit");
  Field& txtTitleValue =
      ghGuide.AddField("txtTitleValue", {7795, 142, 1134, 283}, TitleCell, "Display graph");

  Section& Detail = AddRows(290);
  Field& txtValueTrace = Detail.AddField("txtValueTrace", {142, 0, 1275, 283}, TitleCell);
  Field& txtValueName = Detail.AddField("txtValueName", {1417, 0, 4677, 283}, ValueCell);
  Field& txtValueUnit = Detail.AddField("txtValueUnit", {6094, 0, 1701, 283}, ValueCell);
  Field& txtValueVal = Detail.AddField("txtValueVal", {7795, 0, 1134, 283}, ValueCell);

  Section& GroupFooter2 = AddGrowing(SectionKind::GroupFooter, "GroupFooter2", 15);
  Section& GroupFooter1 = AddGrowing(SectionKind::GroupFooter, "GroupFooter1", 0);
};

}  // namespace tarvis
