// Setting time and control mode of each simulation.
#pragma once

#include "functions/sim/sim_cmp_report.h"

namespace tarvis {

class rptSimCmpTime : public SimCmpReport {
 public:
  explicit rptSimCmpTime(ReportContext context)
      : SimCmpReport("rptSimCmpTime", context, "Setting Time", Keep::All) {}

  void ActiveReport_FetchData(bool& endOfData) override {
    endOfData = Row >= Run.Session.OverlapNum;
    if (endOfData) return;
    const CmpTimeRow& row = Simulation(Row);
    txtValNo.Text = SimulationNo(Row);
    txtValueControl.Text = row.ControlMode;
    txtValueTime.Text = row.SettingTime;
    ++Row;
  }

 private:
  Field& txtTitleNo = ghGuide.AddField("txtTitleNo", {142, 142, 708, 283}, TitleCell, "No");
  Field& txtTitleControl =
      ghGuide.AddField("txtTitleControl", {850, 142, 6378, 283}, TitleCell, "Control Mode");
  Field& txtTitleTime =
      ghGuide.AddField("txtTitleTime", {7228, 142, 1701, 283}, TitleCell, "Setting time [ms]");
  Field& txtValNo = Detail.AddField("txtValNo", {142, 0, 708, 283}, CentredCell);
  Field& txtValueControl = Detail.AddField("txtValueControl", {850, 0, 6378, 283}, ValueCell);
  Field& txtValueTime = Detail.AddField("txtValueTime", {7228, 0, 1701, 283}, RightAlignedCell);
};

}  // namespace tarvis
