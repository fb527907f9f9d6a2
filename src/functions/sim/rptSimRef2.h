// The reference setting of a free pattern: a list of points.
#pragma once

#include "functions/sim/sim_ref_report.h"

namespace tarvis {

class rptSimRef2 : public SimRefReport {
 public:
  explicit rptSimRef2(ReportContext context);

  void ActiveReport_ReportStart() override;
  void ActiveReport_FetchData(bool& endOfData) override;

 private:
  void RequireRoom() const;

  Section& ghGuide = AddGuide(420);
  Field& txtTitleNo = ghGuide.AddField("txtTitleNo", {142, 142, 708, 283}, TitleCell, "No");
  Field& txtTitleStartTime =
      ghGuide.AddField("txtTitleStartTime", {850, 142, 2693, 283}, TitleCell, "Start Time [ms]");
  Field& txtTitleEndTime =
      ghGuide.AddField("txtTitleEndTime", {3543, 142, 2693, 283}, TitleCell, "End Time [ms]");
  Field& txtTitleArrivalSpeed =
      ghGuide.AddField("txtTitleArrivalSpeed", {6236, 142, 2693, 283}, TitleCell, " Arrival Speed [min-1]");
  Section& Detail = AddRows(435);
  Field& txtValNo = Detail.AddField("txtValNo", {142, 0, 708, 283}, RightAlignedCell);
  Field& txtValStartTime = Detail.AddField("txtValStartTime", {850, 0, 2693, 283}, RightAlignedCell);
  Field& txtValEndTime = Detail.AddField("txtValEndTime", {3543, 0, 2693, 283}, RightAlignedCell);
  Field& txtValArrivalSpeed = Detail.AddField("txtValArrivalSpeed", {6236, 0, 2693, 283}, RightAlignedCell);
  Section& GroupFooter2 = AddGrowing(SectionKind::GroupFooter, "GroupFooter2", 15);
  Section& GroupFooter1 = AddGrowing(SectionKind::GroupFooter, "GroupFooter1", 0);
};

}  // namespace tarvis
